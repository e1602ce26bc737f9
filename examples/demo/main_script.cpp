// The main scene: painted as it stands, played headless with both file
// dialogs shot while they are open, and started live in the window.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

#include <kvt/util/dirlister.h>

#include "dialog_shot.h"
#include "main_scene.h"
#include "png_file.h"

namespace kvt_demo {

namespace {

// The names that the dialogs list for `extension`: the directory's order,
// turned round, since each name goes in at the head of the list.
std::vector<std::string> DialogNames(const char *extension)
{
    std::vector<std::string> names;
    KVT_DirLister lister(extension);
    for (const char *name = lister.GetNextName(); name; name = lister.GetNextName())
        if (std::strcmp(name, ".") != 0 && std::strcmp(name, "..") != 0)
            names.push_back(name);
    std::reverse(names.begin(), names.end());
    return names;
}

// The middle of the row that shows `name` in the list of a dialog standing
// at `d`, or of the first row when the name is not listed.
SDL_Rect RowOf(const SDL_Rect &d, const char *name)
{
    const std::vector<std::string> names = DialogNames(MainScene::kExtension);
    const int row = int(std::find(names.begin(), names.end(), name) - names.begin());
    const int inList = row < int(names.size()) ? row : 0;
    return {Sint16(d.x + 4 + MainScene::kDialogBarWidth + 40),
            Sint16(d.y + 30 + inList * MainScene::kDialogRowHeight + MainScene::kDialogRowHeight / 2),
            0, 0};
}

// The middle of the OK button, the left one under each dialog.
SDL_Rect OkButton(const SDL_Rect &d)
{
    const int buttonWidth = (d.w - 16) >> 1;
    return {Sint16(d.x + 4 + buttonWidth / 2), Sint16(d.y + d.h - 32 + 14), 0, 0};
}

// The scene works inside its sample folder, so a picture is written by
// its absolute path and printed by the one the user gave.
struct Picture {
    std::string shown, written;
};

Picture PictureIn(const std::string &outDir, const char *name)
{
    std::error_code error;
    const std::string absolute = std::filesystem::absolute(outDir, error).string();
    return {outDir + "/" + name, (error ? outDir : absolute) + "/" + name};
}

bool Write(SDL_Surface *surface, const Picture &picture)
{
    if (!surface || !WritePng(surface, picture.written.c_str()))
        return false;
    std::printf("%s\n", picture.shown.c_str());
    std::fflush(stdout);
    return true;
}

// Runs one dialog with `before` queued, shoots it, and lets `after` end it.
bool ShootDialog(MainScene &scene, SDL_Surface *screen, bool save, const QueuedInput &before,
                 const QueuedInput &after, const Picture &picture)
{
    DialogShot shot(screen, before, after);
    if (!shot.Start()) {
        SDL_Event dropped;
        while (SDL_PollEvent(&dropped)) {
        }
        return false;
    }
    if (save)
        scene.RunSaveDialog(screen);
    else
        scene.RunOpenDialog(screen);
    SDL_Surface *copy = shot.Finish();
    const bool written = Write(copy, picture);
    SDL_FreeSurface(copy);
    return written;
}

} // namespace

void PaintMainScene(SDL_Surface *screen, Assets &assets)
{
    MainScene scene(assets, LayoutOf(screen));
    scene.Draw(screen);
}

// The main screen, then the open dialog with todo.txt clicked, and the save
// dialog with a name typed into its field; OK ends each.
bool PlayMainScene(SDL_Surface *screen, Assets &assets, const std::string &outDir)
{
    // Before the scene enters its sample folder.
    const Picture main = PictureIn(outDir, "main.png");
    const Picture open = PictureIn(outDir, "dialog-open.png");
    const Picture save = PictureIn(outDir, "dialog-save.png");
    MainScene scene(assets, LayoutOf(screen));
    scene.Draw(screen);
    if (!Write(screen, main))
        return false;
    const SDL_Rect &d = scene.Dialog();
    const SDL_Rect ok = OkButton(d);
    QueuedInput finish;
    finish.Click(ok.x, ok.y);

    QueuedInput pickTodo;
    const SDL_Rect row = RowOf(d, "todo.txt");
    pickTodo.Click(row.x, row.y);
    if (!ShootDialog(scene, screen, false, pickTodo, finish, open))
        return false;

    // The field is the one wide widget just above the buttons.
    QueuedInput typeName;
    typeName.Click(d.x + d.w / 2, d.y + d.h - 70 + 14);
    typeName.Type("story");
    return ShootDialog(scene, screen, true, typeName, finish, save);
}

std::unique_ptr<LiveScene> StartMainScene(SDL_Surface *screen, Assets &assets)
{
    auto scene = std::make_unique<MainScene>(assets, LayoutOf(screen));
    scene->Draw(screen);
    SDL_UpdateRect(screen, 0, 0, 0, 0);
    return scene;
}

} // namespace kvt_demo
