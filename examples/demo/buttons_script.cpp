// The buttons scene headless and live. Headless, a fixed script of SDL
// events goes straight to the screen, and a picture is written at each
// moment worth seeing.
#include <cstdio>
#include <string>

#include <SDL.h>

#include "buttons_scene.h"
#include "png_file.h"
#include "scenes.h"
#include "script_events.h"

namespace kvt_demo {

namespace {

const char kLiveStatus[] =
    "Point at the widgets, press and drag off, release. "
    "Tab and Shift+Tab move the focus frame; Return "
    "clicks a button, or moves the picture on, or "
    "switches Sound. Space and the arrow keys change "
    "scene; Escape ends the demo.";

class ScriptPlayer {
public:
    ScriptPlayer(ButtonsScene &scene, SDL_Surface *screen, const std::string &outDir)
        : scene_(scene), screen_(screen), outDir_(outDir), events_(scene, screen)
    {
    }

    void MoveTo(int x, int y, Uint8 buttons) { events_.MoveTo(x, y, buttons); }
    void MoveOnto(int widget, Uint8 buttons)
    {
        const SDL_Rect r = scene_.WidgetRect(widget);
        MoveTo(r.x + r.w / 2, r.y + r.h / 2, buttons);
    }
    // A press or release of the left button over the centre of a widget.
    void Button(Uint8 type, int widget)
    {
        const SDL_Rect r = scene_.WidgetRect(widget);
        events_.Button(type, r.x + r.w / 2, r.y + r.h / 2);
    }
    void Click(int widget)
    {
        MoveOnto(widget, 0);
        Button(SDL_MOUSEBUTTONDOWN, widget);
        Button(SDL_MOUSEBUTTONUP, widget);
    }
    void MoveOffWidgets(Uint8 buttons)
    {
        const SDL_Rect empty = scene_.EmptyPoint();
        MoveTo(empty.x, empty.y, buttons);
    }
    void Key(SDLKey sym, bool leftShift = false)
    {
        events_.Key(sym, sym == SDLK_TAB ? '\t' : sym == SDLK_RETURN ? '\r' : 0, leftShift);
    }
    // Writes buttons-<moment>.png with `status` shown under the widgets.
    bool Shoot(const char *moment, const char *status)
    {
        scene_.ShowStatus(screen_, status);
        const std::string path = outDir_ + "/buttons-" + moment + ".png";
        if (!WritePng(screen_, path.c_str()))
            return false;
        std::printf("%s\n", path.c_str());
        std::fflush(stdout);
        return true;
    }

private:
    ButtonsScene &scene_;
    SDL_Surface *screen_;
    std::string outDir_;
    EventScript events_;
};

// Hover, press, drag off and back, release: the frames of a normal
// button and the click that GetClicked reports.
bool PlayMouse(ScriptPlayer &p)
{
    if (!p.Shoot("start", "The first DrawScreen puts the focus frame on OK, widget 0."))
        return false;
    p.MoveOnto(kCancelButton, 0);
    if (!p.Shoot("hover", "The pointer over Cancel: its active frame. The focus stays on OK."))
        return false;
    p.Button(SDL_MOUSEBUTTONDOWN, kCancelButton);
    if (!p.Shoot("pressed", "Pressed on Cancel: the focus frame moves there and its frame sinks."))
        return false;
    p.MoveOffWidgets(SDL_BUTTON_LMASK);
    if (!p.Shoot("drag-off", "Dragged off with the button held: Cancel shows its rest frame and "
                             "keeps the focus."))
        return false;
    p.MoveOnto(kCancelButton, SDL_BUTTON_LMASK);
    p.Button(SDL_MOUSEBUTTONUP, kCancelButton);
    return p.Shoot("clicked", "Dragged back (sunken again) and released over Cancel: a click, "
                              "which GetClicked reports.");
}

// Values change at the press; Tab and Shift+Tab walk the array and wrap;
// Return clicks a button but only moves the picture button on.
bool PlayValuesAndKeys(ScriptPlayer &p)
{
    p.Click(kPictureButton);
    p.Click(kPictureButton);
    p.Click(kSoundChooser);
    if (!p.Shoot("values", "Two presses moved the picture button on to the flag; one press "
                           "switched Sound on. Each release over the widget is a click too."))
        return false;
    for (int i = 0; i < 3; ++i)
        p.Key(SDLK_TAB);
    if (!p.Shoot("tab", "Tab three times from Sound, the last widget: round to OK, on to "
                        "Cancel and Apply."))
        return false;
    p.Key(SDLK_TAB, true);
    p.Key(SDLK_RETURN);
    if (!p.Shoot("shift-tab", "Left Shift+Tab goes back to Cancel, and Return there is a click."))
        return false;
    for (int i = 0; i < 3; ++i)
        p.Key(SDLK_TAB);
    p.Key(SDLK_RETURN);
    return p.Shoot("return", "Tab on to the picture button: Return moves it on to the gem, and "
                             "is no click there, since the button takes the key itself.");
}

} // namespace

void PaintButtonsScene(SDL_Surface *screen, Assets &assets)
{
    ButtonsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, kLiveStatus);
}

bool PlayButtonsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir)
{
    ButtonsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, "");
    ScriptPlayer player(scene, screen, outDir);
    return PlayMouse(player) && PlayValuesAndKeys(player);
}

std::unique_ptr<LiveScene> StartButtonsScene(SDL_Surface *screen, Assets &assets)
{
    auto scene = std::make_unique<ButtonsScene>(assets, LayoutOf(screen));
    scene->Draw(screen, kLiveStatus);
    SDL_UpdateRect(screen, 0, 0, 0, 0);
    return scene;
}

} // namespace kvt_demo
