#include "controls_scene.h"

#include <vector>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/bars/horz_value_bar.h>
#include <kvt/ui/bars/vert_scroll_bar.h>
#include <kvt/ui/edit/text_edit.h>

namespace kvt_demo {

// Where the panels, the list, the widgets and their titles stand.
struct ControlsLayout {
    Layout layout;
    SDL_Rect widgetsPanel, statusPanel, reportsPanel;
    size_t reportLines;
    const char *reportsTitle;
    const char *panelTitle;
    // A second panel, for the handheld layout's second column.
    SDL_Rect sidePanel;
    // The list that the scroll bar moves: a well of kListVisible rows.
    SDL_Rect listBox;
    // Where the level's value is written, right-aligned.
    SDL_Rect levelValue;
    SDL_Rect places[kControlsWidgets];
    std::vector<Label> labels;
};

namespace {

const int kListRow = 20;
const int kBarButton = 20;   // the scroll bar's end buttons are square
const int kLevelMax = 64;    // two pixels of fill per step on the desktop's 128 track
const int kLevelStart = 32;

const char *const kNames[kControlsWidgets] = {"scroll", "level", "name", "note"};

// The widgets sit in the left panel, the reports fill the right one and
// the status text the panel under the widgets.
const ControlsLayout kDesktop = {
    Layout::kDesktop, {16, 50, 372, 244}, {16, 306, 372, 158}, {404, 50, 220, 414}, 19,
    ReportLog::kTitle, "Tab order: scroll, level, name, note", {0, 0, 0, 0},
    {32, 108, 100, 172}, {340, 86, 32, 20},
    {{134, 108, kBarButton, 172}, {200, 108, 172, 22}, {200, 166, 172, 24}, {200, 224, 172, 24}},
    {{32, 86, "CUIVertScrollBar"}, {200, 86, "CUIHorzValueBar"}, {200, 144, "CUITextEdit: name"},
     {200, 202, "read-only: note"}},
};

// Two columns: the list and its bar at their full height on the left; the
// value bar, the fields and the reports on the right, narrower.
const ControlsLayout kHandheld = {
    Layout::kHandheld, {4, 30, 122, 206}, {0, 0, 0, 0}, {130, 140, 186, 96}, 3,
    "Reports", "Tab order", {130, 30, 186, 106},
    {12, 58, 84, 172}, {282, 39, 28, 20},
    {{98, 58, kBarButton, 172}, {138, 38, 140, 22}, {138, 68, 172, 24}, {138, 100, 172, 24}},
    {},
};

// Longer than the field, so that it shows its tail.
const char kNoteText[] = "A read-only field shows the tail of a long text";
const char kNoName[] = "";

CUIObject *MakeWidget(const SDL_Rect &r, int index, Assets &assets)
{
    CUITheme *theme = &assets.theme;
    switch (index) {
    case kScrollBar:
        return new CUIVertScrollBar(r.x, r.y, r.w, r.h, theme, 0, ControlsScene::kListLines - 1, 0,
                                    ControlsScene::kListVisible, kBarButton);
    case kLevelBar:
        return new CUIHorzValueBar(r.x, r.y, r.w, r.h, theme, 0, kLevelMax, kLevelStart);
    case kNameField:
        return new CUITextEdit(r.x, r.y, r.w, r.h, theme, &assets.font, kNoName, false);
    default:
        return new CUITextEdit(r.x, r.y, r.w, r.h, theme, &assets.font, kNoteText, true);
    }
}

// A sunken groove for a bar's track to lie in.
void PaintGroove(SDL_Surface *screen, Assets &assets, int x, int y, int w, int h)
{
    KVT_FillRectAlpha(screen, x, y, w, h, KVT_RGB(8, 10, 16, 90));
    assets.theme.DrawFrame(screen, x, y, w, h, CUIFrame::SunkenRest);
}

// The panel's well under a part that is painted again: the tile, then the
// same translucent fill as PaintPanel gives it.
void PaintPanelGround(SDL_Surface *screen, Assets &assets, const SDL_Rect &part)
{
    SDL_Rect area = part;
    assets.theme.DrawBackground(screen, &area);
    KVT_FillRectAlpha(screen, part.x, part.y, part.w, part.h, KVT_RGB(14, 18, 26, 120));
}

} // namespace

const char *ControlsWidgetName(int widget) { return kNames[widget]; }

SDL_Rect ControlsScene::WidgetRect(int widget) const { return layout_.places[widget]; }

ControlsScene::ControlsScene(Assets &assets, Layout layout)
    : layout_(layout == Layout::kDesktop ? kDesktop : kHandheld), assets_(assets),
      screen_(kControlsWidgets), reportedFocus_(0), reportedScroll_(0),
      reportedLevel_(kLevelStart),
      log_(layout_.reportsPanel, layout_.reportLines, layout_.reportsTitle)
{
    for (int i = 0; i < kControlsWidgets; ++i) {
        widgets_[i].reset(MakeWidget(layout_.places[i], i, assets));
        screen_.widgets[i] = widgets_[i].get();
    }
    scroll_ = static_cast<CUIVertScrollBar *>(widgets_[kScrollBar].get());
    level_ = static_cast<CUIHorzValueBar *>(widgets_[kLevelBar].get());
    name_ = static_cast<CUITextEdit *>(widgets_[kNameField].get());
    note_ = static_cast<CUITextEdit *>(widgets_[kNoteField].get());
    reportedName_ = name_->GetText();
    reportedNote_ = note_->GetText();
}

// The screen only frees its array; the widgets go with widgets_.
ControlsScene::~ControlsScene() = default;

void ControlsScene::Draw(SDL_Surface *screen, const char *status)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    PaintHeading(screen, assets_, layout_.layout, "Bars, scrolling and typing",
                 "one CUIScreen, four widgets");
    PaintPanel(screen, assets_, layout_.widgetsPanel, layout_.panelTitle);
    if (layout_.sidePanel.w)
        PaintPanel(screen, assets_, layout_.sidePanel, "");
    PaintLabels(screen, assets_, layout_.labels);
    PaintList(screen);
    PaintLevelValue(screen);
    PaintGrooves(screen);
    screen_.DrawScreen(screen);
    log_.Paint(screen, assets_);
    PaintStatusPanel(screen, assets_, layout_.statusPanel, status);
}

void ControlsScene::ShowStatus(SDL_Surface *screen, const char *status)
{
    ShowStatusPanel(screen, assets_, layout_.statusPanel, status);
}

// The bars keep what lies under their tracks: the scroll bar draws only
// its thumb there, the value bar only its fill.
void ControlsScene::PaintGrooves(SDL_Surface *screen)
{
    const SDL_Rect &scroll = layout_.places[kScrollBar];
    PaintGroove(screen, assets_, scroll.x, scroll.y + kBarButton, scroll.w,
                scroll.h - 2 * kBarButton);
    const SDL_Rect &level = layout_.places[kLevelBar];
    PaintGroove(screen, assets_, level.x + level.h, level.y, level.w - 2 * level.h, level.h);
}

void ControlsScene::HandleEvent(SDL_Event *event, SDL_Surface *screen)
{
    screen_.ProcessDefaultEvent(event, screen);
    Report(screen);
}

bool ControlsScene::KeepsKey(SDLKey key) const
{
    switch (screen_.focusWidget) {
    case kNameField:
    case kNoteField:
        return key == SDLK_SPACE || key == SDLK_LEFT || key == SDLK_RIGHT;
    case kLevelBar:
        return key == SDLK_LEFT || key == SDLK_RIGHT;
    default:
        return false;
    }
}

// A press moves the focus before it changes a value, so the focus line
// comes first.
void ControlsScene::Report(SDL_Surface *screen)
{
    const long before = log_.Count();
    if (screen_.focusWidget != reportedFocus_) {
        reportedFocus_ = screen_.focusWidget;
        log_.Log(std::string("focus: ") + ControlsWidgetName(reportedFocus_));
    }
    if (scroll_->GetBaseVal() != reportedScroll_) {
        reportedScroll_ = scroll_->GetBaseVal();
        log_.Log("value: scroll = " + std::to_string(reportedScroll_));
        PaintList(screen);
        const SDL_Rect &box = layout_.listBox;
        SDL_UpdateRect(screen, box.x, box.y, box.w, box.h);
    }
    if (level_->GetVal() != reportedLevel_) {
        reportedLevel_ = level_->GetVal();
        log_.Log("value: level = " + std::to_string(reportedLevel_));
        PaintLevelValue(screen);
        const SDL_Rect &value = layout_.levelValue;
        SDL_UpdateRect(screen, value.x, value.y, value.w, value.h);
    }
    ReportText(*name_, kNameField, &reportedName_);
    ReportText(*note_, kNoteField, &reportedNote_);
    if (log_.Count() != before)
        log_.Show(screen, assets_);
}

void ControlsScene::ReportText(CUITextEdit &field, int widget, std::string *reported)
{
    const char *text = field.GetText();
    if (*reported == text)
        return;
    *reported = text;
    log_.Log(std::string("text: ") + ControlsWidgetName(widget) + " = \"" + text + "\"");
}

void ControlsScene::PaintLevelValue(SDL_Surface *screen)
{
    const SDL_Rect &value = layout_.levelValue;
    PaintPanelGround(screen, assets_, value);
    const std::string text = std::to_string(level_->GetVal());
    const int right = value.x + value.w;
    KVT_DisplayText(screen, &assets_.font, right - KVT_GetTextWidth(&assets_.font, text.c_str()),
                    value.y, text.c_str());
}

// The lines in view, from the scroll bar's first one, every fifth in the
// accent colour so that a jump is easy to follow.
void ControlsScene::PaintList(SDL_Surface *screen)
{
    const SDL_Rect &box = layout_.listBox;
    SDL_Rect area = box;
    assets_.theme.DrawBackground(screen, &area);
    KVT_FillRectAlpha(screen, box.x, box.y, box.w, box.h, KVT_RGB(14, 18, 26, 60));
    assets_.theme.DrawFrame(screen, box.x, box.y, box.w, box.h, CUIFrame::SunkenRest);
    const int first = scroll_->GetBaseVal();
    for (int row = 0; row < kListVisible && first + row < kListLines; ++row) {
        const int line = first + row;
        KVT_Sprite *font = line % 5 == 0 ? &assets_.accentFont : &assets_.font;
        const std::string text = "line " + std::to_string(line);
        KVT_DisplayText(screen, font, box.x + 10, box.y + 6 + row * kListRow, text.c_str());
    }
}

} // namespace kvt_demo
