// The lists scene headless and live. Headless, a fixed script of SDL
// events clicks rows, moves the selection with the keys, drags the thumbs
// and steps the chooser, and a picture is written at each moment worth
// seeing. The file widgets hold the names in the order the directory gave
// them, which differs between file systems, so the script finds a file's
// row by its name, and reads every place it presses from the widgets.
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>

#include <SDL.h>

#include <kvt/ui/lists/file_chooser.h>
#include <kvt/ui/lists/file_lister.h>
#include <kvt/ui/lists/string_list.h>

#include "lists_scene.h"
#include "png_file.h"
#include "scenes.h"
#include "script_events.h"

namespace kvt_demo {

namespace {

const char kLiveStatus[] =
    "Click a row, or use Up and Down, to select; the bar at a list's left "
    "moves only the view. The chooser's arrows, or Left and Right, step "
    "through the .txt files and wrap. Tab moves the focus; Escape ends it.";

class ScriptPlayer {
public:
    // `outDir` names the folder as the user gave it, for the printed paths;
    // `writeDir` is the same folder as an absolute path, since the scene
    // works in its sample folder.
    ScriptPlayer(ListsScene &scene, SDL_Surface *screen, const std::string &outDir,
                 const std::string &writeDir)
        : events(scene, screen), scene_(scene), screen_(screen), outDir_(outDir),
          writeDir_(writeDir)
    {
    }

    // The middle of row `row` of the view.
    void ClickRow(const CUIGenericList &list, int row)
    {
        events.Click(list.x + (list.barWidth + list.width) / 2,
                     list.y + row * list.rowHeight + list.rowHeight / 2);
    }
    // An end button of a list's scroll bar: up, or down when `down`.
    void ClickBarButton(const CUIGenericList &list, bool down)
    {
        const CUIVertScrollBar &bar = *list.scrollBar;
        const int half = bar.buttonLength / 2;
        events.Click(BarX(list), down ? bar.y + bar.height - 1 - half : bar.y + half);
    }
    // Grabs the thumb in its middle and drags it `distance` pixels down in
    // three moves, leaving the button held.
    void DragThumb(const CUIGenericList &list, int distance)
    {
        const CUIVertScrollBar &bar = *list.scrollBar;
        const int grab = bar.y + bar.buttonLength + bar.thumbOffset + bar.thumbLength / 2;
        events.MoveTo(BarX(list), grab, 0);
        events.Button(SDL_MOUSEBUTTONDOWN, BarX(list), grab);
        for (int step = 1; step <= 3; ++step)
            events.MoveTo(BarX(list), grab + distance * step / 3, SDL_BUTTON_LMASK);
        dropY_ = grab + distance;
    }
    void DropThumb(const CUIGenericList &list)
    {
        events.Button(SDL_MOUSEBUTTONUP, BarX(list), dropY_);
    }
    // Scrolls the lister until the file is in view and clicks its row.
    // False when the folder has no such file.
    bool ClickFile(const std::string &name)
    {
        const CUIFileLister &files = scene_.Files();
        int element = 0;
        while (element < files.names.count && scene_.FileName(element) != name)
            ++element;
        if (element == files.names.count)
            return false;
        for (int guard = 0; guard < files.names.count; ++guard) {
            const int first = files.scrollBar->GetBaseVal();
            if (element >= first && element < first + files.visibleRows)
                break;
            ClickBarButton(files, element >= first);
        }
        ClickRow(files, element - files.scrollBar->GetBaseVal());
        return true;
    }
    void ClickChooserButton(bool right)
    {
        const CUIFileChooser &chooser = scene_.Chooser();
        const int half = chooser.buttonLength / 2;
        const int x = right ? chooser.x + chooser.width - 1 - half : chooser.x + half;
        events.Click(x, chooser.y + chooser.height / 2);
    }
    // Writes lists-<moment>.png with `status` shown under the widgets.
    bool Shoot(const char *moment, const std::string &status)
    {
        scene_.ShowStatus(screen_, status.c_str());
        const std::string name = std::string("/lists-") + moment + ".png";
        if (!WritePng(screen_, (writeDir_ + name).c_str()))
            return false;
        const std::string path = outDir_ + name;
        std::printf("%s\n", path.c_str());
        std::fflush(stdout);
        return true;
    }

    EventScript events;

private:
    static int BarX(const CUIGenericList &list) { return list.x + list.barWidth / 2; }

    ListsScene &scene_;
    SDL_Surface *screen_;
    std::string outDir_;
    std::string writeDir_;
    int dropY_ = 0;
};

std::string Num(int value) { return std::to_string(value); }

// A press on a row selects; the keys move the selection by one and the
// view only as far as the selection leaves it.
bool PlaySelecting(ScriptPlayer &p, const ListsScene &scene)
{
    const CUIStringList &strings = scene.Strings();
    if (!p.Shoot("start", "The first DrawScreen puts the focus on the string list, entry 0 "
                          "selected and framed. The file lister shows the sample folder's " +
                              Num(scene.Files().names.count) +
                              " entries in the order the directory gave them."))
        return false;
    p.ClickRow(strings, 3);
    for (int i = 0; i < 5; ++i)
        p.events.Key(SDLK_DOWN);
    return p.Shoot("keys", "A click on row 3 selects entry 3; Down five times takes it to " +
                               Num(strings.GetSelectedElement()) + ". The view follows by one "
                               "row at a time once the selection leaves it: first in view now " +
                               Num(strings.scrollBar->GetBaseVal()) + ".");
}

// The thumb moves the view and never the selection.
bool PlayDragging(ScriptPlayer &p, const ListsScene &scene)
{
    const CUIStringList &strings = scene.Strings();
    p.DragThumb(strings, 60);
    if (!p.Shoot("drag", "The thumb dragged 60 pixels down: entries from " +
                             Num(strings.scrollBar->GetBaseVal()) + " are in view, the "
                             "selection stays at " + Num(strings.GetSelectedElement()) +
                             ", out of view, so no row is framed."))
        return false;
    p.DropThumb(strings);
    p.ClickRow(strings, 2);
    const int clicked = strings.GetSelectedElement();
    p.events.Key(SDLK_UP);
    return p.Shoot("pick", "A click on row 2 of the new view selects entry " + Num(clicked) +
                               " and frames it; Up moves the selection to " +
                               Num(strings.GetSelectedElement()) + ".");
}

// Files are picked by name: where a name stands depends on the folder.
bool PlayFiles(ScriptPlayer &p, const ListsScene &scene)
{
    const CUIFileLister &files = scene.Files();
    p.DragThumb(files, 40);
    p.DropThumb(files);
    const int dragged = files.scrollBar->GetBaseVal();
    if (!p.ClickFile("todo.txt") || !p.ClickFile("pictures"))
        return p.Shoot("files", "The sample folder could not be made: the file widgets are empty.");
    return p.Shoot("files", "The lister's thumb dragged down shows names from " + Num(dragged) +
                                " on. Then todo.txt and the folder pictures are picked: a "
                                "directory with a fitting name is listed like a file.");
}

// Three clicks on the right arrow and two Right keys, then Left five
// times: with wrap on, each round visits every .txt file once.
bool PlayChooser(ScriptPlayer &p, const ListsScene &scene)
{
    const int count = scene.Chooser().names.count;
    for (int i = 0; i < 3; ++i)
        p.ClickChooserButton(true);
    const std::string shown = scene.ChooserText();
    if (!p.Shoot("chooser", "Three clicks on the chooser's right arrow: it shows " + shown +
                                ", at position " + Num(scene.Chooser().GetVal()) + " of " +
                                Num(count) + " .txt files counted from 0, the name cut at "
                                "its last dot."))
        return false;
    for (int i = 0; i < 2; ++i)
        p.events.Key(SDLK_RIGHT);
    for (int i = 0; i < 5; ++i)
        p.events.Key(SDLK_LEFT);
    return p.Shoot("wrap", "Right twice wraps past the last name to the first; Left five "
                           "times goes once round backwards. notes.v2.txt shows as notes.v2.");
}

} // namespace

void PaintListsScene(SDL_Surface *screen, Assets &assets)
{
    ListsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, kLiveStatus);
}

bool PlayListsScene(SDL_Surface *screen, Assets &assets, const std::string &outDir)
{
    std::error_code error;
    const std::string writeDir = std::filesystem::absolute(outDir, error).string();
    if (error)
        return false;
    ListsScene scene(assets, LayoutOf(screen));
    scene.Draw(screen, "");
    ScriptPlayer player(scene, screen, outDir, writeDir);
    return PlaySelecting(player, scene) && PlayDragging(player, scene) &&
           PlayFiles(player, scene) && PlayChooser(player, scene);
}

std::unique_ptr<LiveScene> StartListsScene(SDL_Surface *screen, Assets &assets)
{
    auto scene = std::make_unique<ListsScene>(assets, LayoutOf(screen));
    scene->Draw(screen, kLiveStatus);
    SDL_UpdateRect(screen, 0, 0, 0, 0);
    return scene;
}

} // namespace kvt_demo
