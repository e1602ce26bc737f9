// The controls scene headless and live. Headless, a fixed script of SDL
// events steps, pages, drags and types, and a picture is written at each
// moment worth seeing. Where the script presses depends on where the
// widgets stand at that moment, so it reads their geometry from them.
#include <cstdio>
#include <string>

#include <SDL.h>

#include <kvt/ui/bars/horz_value_bar.h>
#include <kvt/ui/bars/vert_scroll_bar.h>
#include <kvt/ui/edit/text_edit.h>

#include "controls_scene.h"
#include "png_file.h"
#include "scenes.h"
#include "script_events.h"

namespace kvt_demo {

namespace {

const char kLiveStatus[] =
    "Step with the end buttons, page on the track, drag the thumb or the "
    "end of the fill. Click into name and type; Backspace, Delete, Left "
    "and Right edit. Tab moves the focus. Space and the arrow keys change "
    "scene where no field or bar takes them; Escape ends the demo.";

class ScriptPlayer {
public:
    ScriptPlayer(ControlsScene &scene, SDL_Surface *screen, const std::string &outDir)
        : events(scene, screen), scene_(scene), screen_(screen), outDir_(outDir)
    {
    }

    // The column through the middle of the scroll bar, and the row through
    // the middle of its thumb as it stands now.
    int ScrollX() const { return Rect(kScrollBar).x + Rect(kScrollBar).w / 2; }
    int ThumbMiddle() const
    {
        const CUIVertScrollBar &bar = scene_.ScrollBar();
        return bar.y + bar.buttonLength + bar.thumbOffset + bar.thumbLength / 2;
    }
    // The x of the end of the level bar's fill, and the row through it.
    int FillEnd() const
    {
        const CUIHorzValueBar &bar = scene_.LevelBar();
        return bar.x + bar.buttonLength + bar.fillLength;
    }
    int LevelY() const { return Rect(kLevelBar).y + Rect(kLevelBar).h / 2; }
    // The centre of an end button: the first (up, left) or the second.
    void ClickButton(int widget, bool second)
    {
        const SDL_Rect r = Rect(widget);
        const bool vertical = widget == kScrollBar;
        const int length = vertical ? r.w : r.h; // the buttons are square
        const int along = second ? (vertical ? r.h : r.w) - length / 2 : length / 2;
        if (vertical)
            events.Click(r.x + r.w / 2, r.y + along);
        else
            events.Click(r.x + along, r.y + r.h / 2);
    }
    void ClickCentre(int widget)
    {
        const SDL_Rect r = Rect(widget);
        events.Click(r.x + r.w / 2, r.y + r.h / 2);
    }
    // Writes controls-<moment>.png with `status` shown under the widgets.
    bool Shoot(const char *moment, const char *status)
    {
        scene_.ShowStatus(screen_, status);
        const std::string path = outDir_ + "/controls-" + moment + ".png";
        if (!WritePng(screen_, path.c_str()))
            return false;
        std::printf("%s\n", path.c_str());
        std::fflush(stdout);
        return true;
    }

    EventScript events;

private:
    SDL_Rect Rect(int widget) const { return scene_.WidgetRect(widget); }

    ControlsScene &scene_;
    SDL_Surface *screen_;
    std::string outDir_;
};

std::string Num(int value) { return std::to_string(value); }

// End buttons and arrow keys move by one; a press on the track pages by
// the number of lines in view.
bool PlaySteppingAndPaging(ScriptPlayer &p, const ControlsScene &scene)
{
    if (!p.Shoot("start", "The first DrawScreen puts the focus on the scroll bar, widget 0. "
                          "Its thumb is 8/50 of the track: 8 of the 50 lines are in view."))
        return false;
    p.ClickButton(kScrollBar, true);
    p.ClickButton(kScrollBar, true);
    p.events.Key(SDLK_DOWN);
    p.ClickButton(kLevelBar, true);
    p.ClickButton(kLevelBar, true);
    p.events.Key(SDLK_LEFT);
    const std::string stepped = "Two clicks on the scroll bar's down button and the Down key: "
                                "three lines on. Two clicks on the level's right button, then "
                                "Left: " + Num(scene.LevelBar().GetVal()) + ".";
    if (!p.Shoot("step", stepped.c_str()))
        return false;
    const int below = p.ThumbMiddle() + 60, above = p.ThumbMiddle();
    for (int y : {below, below + 30}) {
        p.events.Button(SDL_MOUSEBUTTONDOWN, p.ScrollX(), y);
        p.events.Button(SDL_MOUSEBUTTONUP, p.ScrollX(), y);
    }
    const int paged = scene.ScrollBar().GetBaseVal();
    p.events.Button(SDL_MOUSEBUTTONDOWN, p.ScrollX(), above);
    p.events.Button(SDL_MOUSEBUTTONUP, p.ScrollX(), above);
    const std::string pages = "Two presses on the track below the thumb page down by 8 lines "
                              "each, to " + Num(paged) + "; one above it pages back up to " +
                              Num(scene.ScrollBar().GetBaseVal()) + ".";
    return p.Shoot("page", pages.c_str());
}

// A drag moves the thumb by the pointer's distance from where it was
// grabbed; the fill's end follows the pointer and is clamped to the track.
bool PlayDragging(ScriptPlayer &p, const ControlsScene &scene)
{
    const int grab = p.ThumbMiddle(), from = scene.ScrollBar().GetBaseVal();
    p.events.MoveTo(p.ScrollX(), grab, 0);
    p.events.Button(SDL_MOUSEBUTTONDOWN, p.ScrollX(), grab);
    for (int step = 1; step <= 3; ++step)
        p.events.MoveTo(p.ScrollX(), grab + 20 * step, SDL_BUTTON_LMASK);
    const std::string thumb = "The thumb grabbed and dragged 60 pixels down, in three moves: the "
                              "list follows, from line " + Num(from) + " to " +
                              Num(scene.ScrollBar().GetBaseVal()) + ".";
    if (!p.Shoot("drag-thumb", thumb.c_str()))
        return false;
    p.events.Button(SDL_MOUSEBUTTONUP, p.ScrollX(), grab + 60);
    const int end = p.FillEnd(), y = p.LevelY();
    p.events.MoveTo(end + 1, y, 0);
    p.events.Button(SDL_MOUSEBUTTONDOWN, end + 1, y);
    p.events.MoveTo(end + 20, y, SDL_BUTTON_LMASK);
    p.events.MoveTo(end + 150, y, SDL_BUTTON_LMASK);
    const std::string fill = "The end of the fill grabbed and dragged right, past the bar: it "
                             "stops at " + Num(scene.LevelBar().GetVal()) + ", short of the top, " +
                             Num(scene.LevelBar().maxVal) + ", which only the keys and the "
                             "right button reach.";
    if (!p.Shoot("drag-fill", fill.c_str()))
        return false;
    p.events.Button(SDL_MOUSEBUTTONUP, end + 150, y);
    return true;
}

// Each key press brings the field a CUIMSG_CHAR with the key's character.
bool PlayTyping(ScriptPlayer &p)
{
    p.ClickCentre(kNameField);
    p.events.Type("Hello kvt");
    for (int i = 0; i < 3; ++i)
        p.events.Key(SDLK_LEFT);
    p.events.Type("dear ");
    if (!p.Shoot("typing", "A click puts the focus on name. Typed: Hello kvt, then Left three "
                           "times and dear: it goes in at the caret, before kvt."))
        return false;
    p.events.Key(SDLK_TAB, '\t');
    p.events.Type("x");
    for (int i = 0; i < CUITextEdit::kMaxLength; ++i)
        p.events.Key(SDLK_RIGHT);
    for (int i = 0; i < 5; ++i)
        p.events.Key(SDLK_BACKSPACE, '\b');
    return p.Shoot("read-only", "Tab to the read-only note: it shows the tail of its text and "
                                "no caret, and refuses the typed x. Its keys still act: Right "
                                "to the end, then Backspace five times.");
}

} // namespace

void PaintControlsScene(SDL_Surface *screen, Assets &assets)
{
    ControlsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, kLiveStatus);
}

bool PlayControlsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir)
{
    ControlsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, "");
    ScriptPlayer player(scene, screen, outDir);
    return PlaySteppingAndPaging(player, scene) && PlayDragging(player, scene) &&
           PlayTyping(player);
}

std::unique_ptr<LiveScene> StartControlsScene(SDL_Surface *screen, Assets &assets)
{
    auto scene = std::make_unique<ControlsScene>(assets, LayoutOf(screen));
    scene->Draw(screen, kLiveStatus);
    SDL_UpdateRect(screen, 0, 0, 0, 0);
    return scene;
}

} // namespace kvt_demo
