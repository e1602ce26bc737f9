#include "buttons_scene.h"

#include <cstdio>
#include <cstring>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/buttons/gfx_button.h>
#include <kvt/ui/buttons/normal_button.h>
#include <kvt/ui/buttons/sign_button.h>

#include "sprite_pictures.h"

namespace kvt_demo {

// Where the panels, widgets and section titles stand.
struct ButtonsLayout {
    Layout layout;
    SDL_Rect widgetsPanel, statusPanel, reportsPanel;
    size_t reportLines;
    const char *panelTitle;
    SDL_Rect places[kButtonsWidgets];
    std::vector<Label> labels;
    SDL_Rect empty; // a point in the widgets' panel that no widget covers
};

namespace {

const char *const kNames[kButtonsWidgets] = {"ok",   "cancel", "apply", "gem",   "picture",
                                              "left", "up",     "down",  "right", "sound"};

const int kIcon = kIconBox + 2;

// The widgets sit in the left panel, the reports fill the right one and
// the status text the panel under the widgets.
const ButtonsLayout kDesktop = {
    Layout::kDesktop, {16, 50, 372, 244}, {16, 306, 372, 158}, {404, 50, 220, 414}, 19,
    "Tab order: left to right, row by row",
    {{40, 108, 96, 22}, {148, 108, 96, 22}, {256, 108, 96, 22}, {40, 166, kIcon, kIcon},
     {208, 166, kIcon, kIcon}, {40, 248, 24, 24}, {70, 248, 24, 24}, {100, 248, 24, 24},
     {130, 248, 24, 24}, {208, 249, 120, 22}},
    {{32, 86, "CUINormalButton"}, {32, 144, "CUIGfxButton"}, {200, 144, "CUIMultiGfxButton"},
     {32, 226, "CUISignButton"}, {200, 226, "CUIBoolChooser"}},
    {300, 180, 0, 0},
};

// The same rows without their section titles, and the reports under them.
const ButtonsLayout kHandheld = {
    Layout::kHandheld, {4, 30, 312, 112}, {0, 0, 0, 0}, {4, 146, 312, 90}, 3,
    "Tab order: row by row",
    {{12, 58, 94, 22}, {112, 58, 94, 22}, {212, 58, 94, 22}, {12, 88, kIcon, kIcon},
     {64, 88, kIcon, kIcon}, {120, 99, 24, 24}, {148, 99, 24, 24}, {176, 99, 24, 24},
     {204, 99, 24, 24}, {234, 100, 74, 22}},
    {},
    {280, 128, 0, 0},
};

CUIObject *MakeWidget(const SDL_Rect &r, int index, Assets &assets)
{
    CUITheme *theme = &assets.theme;
    static const char *const captions[] = {"OK", "Cancel", "Apply"};
    static const int signs[] = {CUISIGN_LEFT, CUISIGN_UP, CUISIGN_DOWN, CUISIGN_RIGHT};
    switch (index) {
    case kOkButton:
    case kCancelButton:
    case kApplyButton:
        return new CUINormalButton(r.x, r.y, r.w, r.h, theme, &assets.font, captions[index], true);
    case kGemButton:
        return new CUIGfxButton(r.x, r.y, r.w, r.h, theme, &assets.icons, kGemIcon, false);
    case kPictureButton:
        return new CUIMultiGfxButton(r.x, r.y, r.w, r.h, theme, &assets.icons, false);
    case kSoundChooser:
        return new CUIBoolChooser(r.x, r.y, r.w, r.h, theme, &assets.font, " Sound", false);
    default:
        return new CUISignButton(r.x, r.y, r.w, r.h, theme, signs[index - kLeftSign]);
    }
}

} // namespace

const char *ButtonsWidgetName(int widget) { return kNames[widget]; }

SDL_Rect ButtonsScene::WidgetRect(int widget) const { return layout_.places[widget]; }

SDL_Rect ButtonsScene::EmptyPoint() const { return layout_.empty; }

ButtonsScene::ButtonsScene(Assets &assets, Layout layout)
    : layout_(layout == Layout::kDesktop ? kDesktop : kHandheld), assets_(assets),
      screen_(kButtonsWidgets), reportedFocus_(0), reportedPicture_(0), reportedSound_(false),
      log_(layout_.reportsPanel, layout_.reportLines)
{
    for (int i = 0; i < kButtonsWidgets; ++i) {
        widgets_[i].reset(MakeWidget(layout_.places[i], i, assets));
        screen_.widgets[i] = widgets_[i].get();
    }
    picture_ = static_cast<CUIMultiGfxButton *>(widgets_[kPictureButton].get());
    sound_ = static_cast<CUIBoolChooser *>(widgets_[kSoundChooser].get());
}

// The screen only frees its array; the widgets go with widgets_.
ButtonsScene::~ButtonsScene() = default;

void ButtonsScene::Draw(SDL_Surface *screen, const char *status)
{
    SDL_Rect whole = {0, 0, Uint16(screen->w), Uint16(screen->h)};
    assets_.theme.DrawBackground(screen, &whole);
    PaintHeading(screen, assets_, layout_.layout, "Buttons, focus and clicks",
                 "one CUIScreen, ten widgets");
    PaintPanel(screen, assets_, layout_.widgetsPanel, layout_.panelTitle);
    PaintLabels(screen, assets_, layout_.labels);
    screen_.DrawScreen(screen);
    log_.Paint(screen, assets_);
    PaintStatusPanel(screen, assets_, layout_.statusPanel, status);
}

void ButtonsScene::ShowStatus(SDL_Surface *screen, const char *status)
{
    ShowStatusPanel(screen, assets_, layout_.statusPanel, status);
}

void ButtonsScene::HandleEvent(SDL_Event *event, SDL_Surface *screen)
{
    screen_.ProcessDefaultEvent(event, screen);
    Report(screen);
}

// One event moves the focus before it changes a value (a press), and the
// click comes last (the release), so the lines keep that order.
void ButtonsScene::Report(SDL_Surface *screen)
{
    const long before = log_.Count();
    if (screen_.focusWidget != reportedFocus_) {
        reportedFocus_ = screen_.focusWidget;
        log_.Log(std::string("focus: ") + ButtonsWidgetName(reportedFocus_));
    }
    if (picture_->GetFrame() != reportedPicture_) {
        reportedPicture_ = picture_->GetFrame();
        log_.Log("value: picture = " + std::to_string(reportedPicture_));
    }
    if (sound_->GetValue() != reportedSound_) {
        reportedSound_ = sound_->GetValue();
        log_.Log(std::string("value: sound = ") + (reportedSound_ ? "on" : "off"));
    }
    if (screen_.GetClicked() >= 0)
        log_.Log(std::string("clicked: ") + ButtonsWidgetName(screen_.GetClicked()));
    if (log_.Count() != before)
        log_.Show(screen, assets_);
}

} // namespace kvt_demo
