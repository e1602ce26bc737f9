#include "lists_scene.h"

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/edit/text_edit.h>
#include <kvt/ui/lists/file_chooser.h>
#include <kvt/ui/lists/file_lister.h>
#include <kvt/ui/lists/string_list.h>

namespace kvt_demo {

// Where the panels, the widgets and their titles stand.
struct ListsLayout {
    Layout layout;
    SDL_Rect widgetsPanel, statusPanel, reportsPanel;
    size_t reportLines;
    const char *panelTitle;
    SDL_Rect places[kListsWidgets];
    std::vector<Label> labels;
};

namespace {

// Rows of 20 pixels; a bar of 20 gives end buttons 16 pixels long.
const int kRowHeight = 20;
const int kBarWidth = 20;

// The widgets sit in the left panel, the reports fill the right one and
// the status text the panel under the widgets. The reports panel is wider
// than in the other scenes, for the quoted entries. The lists show seven
// whole rows and a strip of 4 pixels below them.
const ListsLayout kDesktop = {
    Layout::kDesktop, {16, 50, 328, 272}, {16, 334, 328, 130}, {360, 50, 264, 414}, 19,
    "Tab order: strings, files, chooser",
    {{32, 108, 140, 144}, {188, 108, 144, 144}, {32, 288, 300, 24}},
    {{32, 86, "CUIStringList: 50"}, {188, 86, "CUIFileLister: all"},
     {32, 266, "CUIFileChooser: *.txt, extension hidden"}},
};

// The lists four rows high, the chooser under them and the reports below.
const ListsLayout kHandheld = {
    Layout::kHandheld, {4, 30, 312, 130}, {0, 0, 0, 0}, {4, 164, 312, 72}, 2,
    "",
    {{12, 38, 140, 84}, {160, 38, 148, 84}, {12, 128, 296, 24}},
    {},
};

CUIObject *MakeWidget(const SDL_Rect &r, int index, Assets &assets, List *entries)
{
    CUITheme *theme = &assets.theme;
    switch (index) {
    case kStringList: {
        auto *list = new CUIStringList(r.x, r.y, r.w, r.h, theme, ListsScene::kEntries,
                                       kRowHeight, kBarWidth);
        list->SetFont(&assets.font);
        list->SetStringList(entries);
        return list;
    }
    case kFileLister: {
        auto *lister =
            new CUIFileLister(r.x, r.y, r.w, r.h, theme, kRowHeight, kBarWidth, &assets.font);
        lister->Scan("");
        return lister;
    }
    default: {
        auto *chooser = new CUIFileChooser(r.x, r.y, r.w, r.h, theme, &assets.font, true);
        chooser->wrap = true;
        chooser->Scan(ListsScene::kChooserSuffix);
        return chooser;
    }
    }
}

// A sunken groove under a list's scroll bar, whose track shows what lies
// under it, and a well under its rows, whose face is translucent.
void PaintListGround(SDL_Surface *screen, Assets &assets, const SDL_Rect &list)
{
    const int button = kBarWidth * 4 / 5;
    KVT_FillRectAlpha(screen, list.x, list.y + button, kBarWidth, list.h - 2 * button,
                      KVT_RGB(8, 10, 16, 90));
    assets.theme.DrawFrame(screen, list.x, list.y + button, kBarWidth, list.h - 2 * button,
                           CUIFrame::SunkenRest);
    KVT_FillRectAlpha(screen, list.x + kBarWidth, list.y, list.w - kBarWidth, list.h,
                      KVT_RGB(8, 10, 16, 70));
}

std::string Quoted(const std::string &text) { return "\"" + text + "\""; }

} // namespace

SDL_Rect ListsScene::WidgetRect(int widget) const { return layout_.places[widget]; }

ListsScene::ListsScene(Assets &assets, Layout layout)
    : layout_(layout == Layout::kDesktop ? kDesktop : kHandheld), assets_(assets),
      screen_(kListsWidgets), reportedEntry_(0), reportedFile_(0),
      log_(layout_.reportsPanel, layout_.reportLines)
{
    // A List gives the element added last first, so the texts go in from
    // the end for element i to be "entry i".
    for (int i = 0; i < kEntries; ++i)
        entryTexts_.push_back("entry " + std::to_string(i));
    for (int i = kEntries - 1; i >= 0; --i)
        entries_.AddElement(&entryTexts_[i][0]);
    for (int i = 0; i < kListsWidgets; ++i) {
        widgets_[i].reset(MakeWidget(layout_.places[i], i, assets, &entries_));
        screen_.widgets[i] = widgets_[i].get();
    }
    strings_ = static_cast<CUIStringList *>(widgets_[kStringList].get());
    files_ = static_cast<CUIFileLister *>(widgets_[kFileLister].get());
    chooser_ = static_cast<CUIFileChooser *>(widgets_[kFileChooser].get());
}

// The screen only frees its array; the widgets go with widgets_, and then
// the sample folder.
ListsScene::~ListsScene() = default;

std::string ListsScene::FileName(int element) const
{
    if (element < 0 || element >= files_->names.GetNbElement())
        return "";
    return static_cast<const char *>(files_->names.GetElementN(element));
}

const char *ListsScene::ChooserText() const { return chooser_->nameField->GetText(); }

void ListsScene::Draw(SDL_Surface *screen, const char *status)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    PaintHeading(screen, assets_, layout_.layout, "Lists, files and choosing",
                 "a folder of samples, made for the scene");
    PaintPanel(screen, assets_, layout_.widgetsPanel, layout_.panelTitle);
    PaintLabels(screen, assets_, layout_.labels);
    PaintListGround(screen, assets_, layout_.places[kStringList]);
    PaintListGround(screen, assets_, layout_.places[kFileLister]);
    screen_.DrawScreen(screen);
    reportedChooser_ = ChooserText(); // the chooser shows its first name on DRAW
    log_.Paint(screen, assets_);
    PaintStatusPanel(screen, assets_, layout_.statusPanel, status);
}

void ListsScene::ShowStatus(SDL_Surface *screen, const char *status)
{
    ShowStatusPanel(screen, assets_, layout_.statusPanel, status);
}

void ListsScene::HandleEvent(SDL_Event *event, SDL_Surface *screen)
{
    screen_.ProcessDefaultEvent(event, screen);
    const long before = log_.Count();
    Report(event);
    if (log_.Count() != before)
        log_.Show(screen, assets_);
}

bool ListsScene::KeepsKey(SDLKey key) const
{
    return screen_.focusWidget == kFileChooser && (key == SDLK_LEFT || key == SDLK_RIGHT);
}

// A release over the lister's rows: the screen names the lister clicked
// after any release over it, its scroll bar included.
bool ListsScene::IsRowRelease(const SDL_Event *event) const
{
    return event->type == SDL_MOUSEBUTTONUP && event->button.x - files_->x >= files_->barWidth;
}

// A file is reported as picked when a click on a row, or Return, ends, so
// that picking the name already selected is reported too; the press that
// starts the click changes the selection but leaves the report to it.
void ListsScene::Report(SDL_Event *event)
{
    const int entry = strings_->GetSelectedElement();
    if (entry != reportedEntry_) {
        reportedEntry_ = entry;
        const std::string text = static_cast<const char *>(entries_.GetElementN(entry));
        log_.Log("select: strings = " + std::to_string(entry) + " " + Quoted(text));
    }
    const int file = files_->GetSelectedElement();
    const bool picked = screen_.GetClicked() == kFileLister &&
                        (event->type == SDL_KEYDOWN || IsRowRelease(event));
    if (event->type != SDL_MOUSEBUTTONDOWN && (picked || file != reportedFile_)) {
        reportedFile_ = file;
        log_.Log("select: files = " + Quoted(FileName(file)));
    }
    const char *shown = ChooserText();
    if (reportedChooser_ != shown) {
        reportedChooser_ = shown;
        log_.Log("file: chooser = " + Quoted(shown));
    }
}

} // namespace kvt_demo
