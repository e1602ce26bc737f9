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

namespace {

// The widgets sit in the left panel, the reports fill the right one and
// the status text the panel under the widgets.
const SDL_Rect kWidgetsPanel = {16, 50, 372, 244};
const SDL_Rect kStatusPanel = {16, 306, 372, 158};
const SDL_Rect kReportsPanel = {404, 50, 220, 414};
const size_t kReportLines = 19;

struct WidgetPlace {
    const char *name;
    SDL_Rect rect;
};

const WidgetPlace kPlaces[kButtonsWidgets] = {
    {"ok", {40, 108, 96, 22}},
    {"cancel", {148, 108, 96, 22}},
    {"apply", {256, 108, 96, 22}},
    {"gem", {40, 166, kIconBox + 2, kIconBox + 2}},
    {"picture", {208, 166, kIconBox + 2, kIconBox + 2}},
    {"left", {40, 248, 24, 24}},
    {"up", {70, 248, 24, 24}},
    {"down", {100, 248, 24, 24}},
    {"right", {130, 248, 24, 24}},
    {"sound", {208, 249, 120, 22}},
};

// Section titles above the rows of widgets.
const struct {
    int x, y;
    const char *text;
} kLabels[] = {
    {32, 86, "CUINormalButton"},
    {32, 144, "CUIGfxButton"},
    {200, 144, "CUIMultiGfxButton"},
    {32, 226, "CUISignButton"},
    {200, 226, "CUIBoolChooser"},
};

CUIObject *MakeWidget(int index, Assets &assets)
{
    const SDL_Rect &r = kPlaces[index].rect;
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

const char *ButtonsWidgetName(int widget) { return kPlaces[widget].name; }

SDL_Rect ButtonsScene::WidgetRect(int widget) { return kPlaces[widget].rect; }

ButtonsScene::ButtonsScene(Assets &assets)
    : assets_(assets), screen_(kButtonsWidgets), reportedFocus_(0), reportedPicture_(0),
      reportedSound_(false), log_(kReportsPanel, kReportLines)
{
    for (int i = 0; i < kButtonsWidgets; ++i) {
        widgets_[i].reset(MakeWidget(i, assets));
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
    KVT_DisplayText(screen, &assets_.titleFont, 16, 12, "Buttons, focus and clicks");
    PaintPanel(screen, assets_, kWidgetsPanel, "Tab order: left to right, row by row");
    for (const auto &label : kLabels)
        KVT_DisplayText(screen, &assets_.accentFont, label.x, label.y, label.text);
    const char *note = "one CUIScreen, ten widgets";
    KVT_DisplayText(screen, &assets_.font, 624 - KVT_GetTextWidth(&assets_.font, note), 20, note);
    screen_.DrawScreen(screen);
    log_.Paint(screen, assets_);
    PaintStatusPanel(screen, assets_, kStatusPanel, status);
}

void ButtonsScene::ShowStatus(SDL_Surface *screen, const char *status)
{
    PaintStatusPanel(screen, assets_, kStatusPanel, status);
    SDL_UpdateRect(screen, kStatusPanel.x, kStatusPanel.y, kStatusPanel.w, kStatusPanel.h);
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
