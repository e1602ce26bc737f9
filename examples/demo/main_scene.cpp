#include "main_scene.h"

#include <kvt/kvt.h>

#include "sprite_pictures.h"

namespace kvt_demo {

namespace {

const SDL_Rect kWidgetsPanel = {16, 50, 400, 414};
const SDL_Rect kReportsPanel = {432, 50, 192, 414};
const size_t kReportLines = 19;
const int kBar = 20; // scroll bars' width and their end buttons' length
const int kRow = 18; // the string list's and the lister's rows

const SDL_Rect kPlaces[kMainWidgets] = {
    {32, 102, 110, 26},  {154, 102, 110, 26},                     // Open..., Save...
    {32, 158, kIconBox + 2, kIconBox + 2}, {92, 158, kIconBox + 2, kIconBox + 2},
    {152, 169, 24, 24},  {182, 169, 24, 24},                      // sign buttons
    {222, 170, 150, 22},                                          // bool chooser
    {32, 236, 172, 24},  {220, 237, 180, 22},                     // field, value bar
    {32, 294, 140, 126}, {180, 294, kBar, 126}, {212, 294, 188, 126}, // lists, bar
    {32, 430, 368, 22},                                           // file chooser
};

const struct {
    int x, y;
    const char *text;
} kLabels[] = {
    {32, 82, "CUINormalButton: the file dialogs"},
    {32, 138, "CUIGfxButton, CUIMultiGfxButton, CUISignButton"},
    {32, 216, "CUITextEdit, CUIHorzValueBar"},
    {32, 274, "CUIStringList, CUIVertScrollBar, CUIFileLister"},
};

CUIObject *MakeWidget(int index, Assets &assets, List *entries, int entryCount)
{
    const SDL_Rect &r = kPlaces[index];
    CUITheme *theme = &assets.theme;
    switch (index) {
    case kOpenButton:
    case kSaveButton:
        return new CUINormalButton(r.x, r.y, r.w, r.h, theme, &assets.font,
                                   index == kOpenButton ? "Open..." : "Save...", true);
    case kGfxButton:
        return new CUIGfxButton(r.x, r.y, r.w, r.h, theme, &assets.icons, kGemIcon, false);
    case kMultiGfxButton:
        return new CUIMultiGfxButton(r.x, r.y, r.w, r.h, theme, &assets.icons, false);
    case kLeftSign:
    case kRightSign:
        return new CUISignButton(r.x, r.y, r.w, r.h, theme,
                                 index == kLeftSign ? CUISIGN_LEFT : CUISIGN_RIGHT);
    case kBoolChooser:
        return new CUIBoolChooser(r.x, r.y, r.w, r.h, theme, &assets.font, " Sound", true);
    case kTextField:
        return new CUITextEdit(r.x, r.y, r.w, r.h, theme, &assets.font, "Player one", false);
    case kValueBar:
        return new CUIHorzValueBar(r.x, r.y, r.w, r.h, theme, 0, 100, 60);
    case kStringList: {
        auto *list = new CUIStringList(r.x, r.y, r.w, r.h, theme, entryCount, kRow, kBar);
        list->SetFont(&assets.font);
        list->SetStringList(entries);
        return list;
    }
    case kScrollBar:
        return new CUIVertScrollBar(r.x, r.y, r.w, r.h, theme, 0, 40, 0, 8, kBar);
    case kFileLister: {
        auto *lister = new CUIFileLister(r.x, r.y, r.w, r.h, theme, kRow, kBar, &assets.font);
        lister->Scan("");
        return lister;
    }
    default: {
        auto *chooser = new CUIFileChooser(r.x, r.y, r.w, r.h, theme, &assets.font, false);
        chooser->Scan(MainScene::kExtension);
        return chooser;
    }
    }
}

} // namespace

const SDL_Rect MainScene::kDialog = {140, 70, 360, 340};

SDL_Rect MainScene::WidgetRect(int widget) { return kPlaces[widget]; }

MainScene::MainScene(Assets &assets)
    : assets_(assets), screen_(kMainWidgets), log_(kReportsPanel, kReportLines)
{
    for (const char *word : {"level", "save", "map", "sprite", "theme", "font", "sound"})
        entryTexts_.push_back(std::string("a ") + word);
    for (auto text = entryTexts_.rbegin(); text != entryTexts_.rend(); ++text)
        entries_.AddElement(&(*text)[0]);
    for (int i = 0; i < kMainWidgets; ++i) {
        widgets_[i].reset(MakeWidget(i, assets, &entries_, int(entryTexts_.size())));
        screen_.widgets[i] = widgets_[i].get();
    }
}

// The screen only frees its array; the widgets go with widgets_, and then
// the sample folder.
MainScene::~MainScene() = default;

void MainScene::Draw(SDL_Surface *screen)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    KVT_DisplayText(screen, &assets_.titleFont, 16, 12, "kvt: every widget, and the dialogs");
    PaintPanel(screen, assets_, kWidgetsPanel, "Tab order: left to right, top to bottom");
    for (const auto &label : kLabels)
        KVT_DisplayText(screen, &assets_.accentFont, label.x, label.y, label.text);
    screen_.DrawScreen(screen);
    log_.Paint(screen, assets_);
}

bool MainScene::KeepsKey(SDLKey key) const
{
    const int focus = screen_.focusWidget;
    return focus == kTextField || (key != SDLK_SPACE && (focus == kValueBar || focus == kFileChooser));
}

void MainScene::HandleEvent(SDL_Event *event, SDL_Surface *screen)
{
    screen_.ProcessDefaultEvent(event, screen);
    if (screen_.GetClicked() == kOpenButton)
        RunOpenDialog(screen);
    else if (screen_.GetClicked() == kSaveButton)
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
