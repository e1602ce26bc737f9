#include "main_scene.h"

#include <vector>

#include <kvt/kvt.h>

#include "sprite_pictures.h"

namespace kvt_demo {

// Where the heading, the panels, the labels and the dialogs stand.
struct MainLayout {
    Layout layout;
    const char *title;
    SDL_Rect widgetsPanel, reportsPanel;
    size_t reportLines;
    const char *reportsTitle; // null for an untitled strip
    const char *panelTitle;
    std::vector<Label> labels;
    SDL_Rect dialog;
    WidgetBoard::Size board;
};

namespace {

const MainLayout kDesktop = {
    Layout::kDesktop, "kvt: every widget, and the dialogs",
    {16, 50, 400, 414}, {432, 50, 192, 414}, 19, ReportLog::kTitle,
    "Tab order: left to right, top to bottom",
    {{32, 82, "CUINormalButton: the file dialogs"},
     {32, 138, "CUIGfxButton, CUIMultiGfxButton, CUISignButton"},
     {32, 216, "CUITextEdit, CUIHorzValueBar"},
     {32, 274, "CUIStringList, CUIVertScrollBar, CUIFileLister"}},
    {140, 70, 360, 340}, WidgetBoard::Size::kDesktop,
};

// The board packed into one untitled panel; the latest report, in a strip
// beside the title, is what each dialog gave.
const MainLayout kHandheld = {
    Layout::kHandheld, "kvt widgets",
    {4, 28, 312, 210}, {150, 2, 166, 24}, 1, nullptr,
    "",
    {},
    {16, 12, 288, 216}, WidgetBoard::Size::kHandheld,
};

} // namespace

MainScene::MainScene(Assets &assets, Layout layout)
    : layout_(layout == Layout::kDesktop ? kDesktop : kHandheld), assets_(assets),
      board_({&assets.theme, &assets.font, &assets.icons, kGemIcon, kIconBox}, layout_.board),
      log_(layout_.reportsPanel, layout_.reportLines, layout_.reportsTitle)
{
}

// The board goes first, and then the sample folder it scanned.
MainScene::~MainScene() = default;

const SDL_Rect &MainScene::Dialog() const { return layout_.dialog; }

void MainScene::Draw(SDL_Surface *screen)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    PaintHeading(screen, assets_, layout_.layout, layout_.title, nullptr);
    PaintPanel(screen, assets_, layout_.widgetsPanel, layout_.panelTitle);
    PaintLabels(screen, assets_, layout_.labels);
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
    const SDL_Rect &d = layout_.dialog;
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
    const SDL_Rect &d = layout_.dialog;
    const bool chosen = KVT_SaveFileDialog(screen, d.x, d.y, d.w, d.h, &assets_.theme,
                                           &assets_.font, "Save as text", "Save", "Cancel",
                                           name, kExtension);
    log_.Log(chosen ? std::string("save: ") + name : "save: nothing chosen");
    log_.Show(screen, assets_);
    return chosen;
}

} // namespace kvt_demo
