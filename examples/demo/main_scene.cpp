#include "main_scene.h"

#include <kvt/kvt.h>

#include "sprite_pictures.h"

namespace kvt_demo {

namespace {

const SDL_Rect kWidgetsPanel = {16, 50, 400, 414};
const SDL_Rect kReportsPanel = {432, 50, 192, 414};
const size_t kReportLines = 19;

const struct {
    int x, y;
    const char *text;
} kLabels[] = {
    {32, 82, "CUINormalButton: the file dialogs"},
    {32, 138, "CUIGfxButton, CUIMultiGfxButton, CUISignButton"},
    {32, 216, "CUITextEdit, CUIHorzValueBar"},
    {32, 274, "CUIStringList, CUIVertScrollBar, CUIFileLister"},
};

} // namespace

const SDL_Rect MainScene::kDialog = {140, 70, 360, 340};

MainScene::MainScene(Assets &assets)
    : assets_(assets),
      board_({&assets.theme, &assets.font, &assets.icons, kGemIcon, kIconBox}),
      log_(kReportsPanel, kReportLines)
{
}

// The board goes first, and then the sample folder it scanned.
MainScene::~MainScene() = default;

void MainScene::Draw(SDL_Surface *screen)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    KVT_DisplayText(screen, &assets_.titleFont, 16, 12, "kvt: every widget, and the dialogs");
    PaintPanel(screen, assets_, kWidgetsPanel, "Tab order: left to right, top to bottom");
    for (const auto &label : kLabels)
        KVT_DisplayText(screen, &assets_.accentFont, label.x, label.y, label.text);
    board_.screen.DrawScreen(screen);
    log_.Paint(screen, assets_);
}

bool MainScene::KeepsKey(SDLKey key) const
{
    const int focus = board_.screen.focusWidget;
    const bool steps = focus == WidgetBoard::kValueBar || focus == WidgetBoard::kFileChooser;
    return focus == WidgetBoard::kTextField || (key != SDLK_SPACE && steps);
}

void MainScene::HandleEvent(SDL_Event *event, SDL_Surface *screen)
{
    board_.screen.ProcessDefaultEvent(event, screen);
    if (board_.screen.GetClicked() == WidgetBoard::kOpenButton)
        RunOpenDialog(screen);
    else if (board_.screen.GetClicked() == WidgetBoard::kSaveButton)
        RunSaveDialog(screen);
}

bool MainScene::RunOpenDialog(SDL_Surface *screen)
{
    char name[KVT_DIALOG_RESULT_SIZE];
    const SDL_Rect &d = kDialog;
    const bool chosen = KVT_OpenFileDialog(screen, d.x, d.y, d.w, d.h, &assets_.theme,
                                           &assets_.font, "Open a text file", "OK", "Cancel",
                                           name, kExtension);
    log_.Log(chosen ? std::string("open: ") + name : "open: nothing chosen");
    log_.Show(screen, assets_);
    return chosen;
}

bool MainScene::RunSaveDialog(SDL_Surface *screen)
{
    char name[KVT_DIALOG_RESULT_SIZE] = "";
    const SDL_Rect &d = kDialog;
    const bool chosen = KVT_SaveFileDialog(screen, d.x, d.y, d.w, d.h, &assets_.theme,
                                           &assets_.font, "Save as text", "Save", "Cancel",
                                           name, kExtension);
    log_.Log(chosen ? std::string("save: ") + name : "save: nothing chosen");
    log_.Show(screen, assets_);
    return chosen;
}

} // namespace kvt_demo
