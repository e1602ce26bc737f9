#ifndef KVT_DEMO_BUTTONS_SCENE_H
#define KVT_DEMO_BUTTONS_SCENE_H

// The buttons scene: one CUIScreen with every kind of button on it. The
// scene hands events to the screen and reports, one line each on stdout
// and in a panel beside the widgets, every click that GetClicked gives,
// every move of the focus and every change of a widget's value. The
// headless script and the live window drive the same object.

#include <memory>
#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/ui/buttons/bool_chooser.h>
#include <kvt/ui/buttons/multi_gfx_button.h>
#include <kvt/ui/core/screen.h>

#include "assets.h"
#include "scene_parts.h"
#include "scenes.h"

namespace kvt_demo {

// The widgets by index in the screen's array, which is also the Tab order.
enum ButtonsWidget {
    kOkButton,
    kCancelButton,
    kApplyButton,
    kGemButton,
    kPictureButton,
    kLeftSign,
    kUpSign,
    kDownSign,
    kRightSign,
    kSoundChooser,
    kButtonsWidgets
};

// The name a widget has in the reports ("clicked: cancel").
const char *ButtonsWidgetName(int widget);

struct ButtonsLayout;

class ButtonsScene : public LiveScene {
public:
    ButtonsScene(Assets &assets, Layout layout);
    ~ButtonsScene() override;

    // Paints the whole scene: background, panels, the widgets through
    // DrawScreen, the reports so far and `status`. Does not update the
    // display.
    void Draw(SDL_Surface *screen, const char *status);
    // Replaces the text under the widgets and updates its area.
    void ShowStatus(SDL_Surface *screen, const char *status);
    // Gives the event to the screen's ProcessDefaultEvent, then reports
    // what changed and updates the reports' area if it grew.
    void HandleEvent(SDL_Event *event, SDL_Surface *screen) override;

    // Where a widget lies on the screen.
    SDL_Rect WidgetRect(int widget) const;
    // A point inside the widgets' panel that no widget covers.
    SDL_Rect EmptyPoint() const;

private:
    void Report(SDL_Surface *screen);

    const ButtonsLayout &layout_;
    Assets &assets_;
    CUIScreen screen_;
    std::unique_ptr<CUIObject> widgets_[kButtonsWidgets];
    CUIMultiGfxButton *picture_;
    CUIBoolChooser *sound_;
    // What was last reported, to tell a change.
    int reportedFocus_;
    int reportedPicture_;
    bool reportedSound_;
    ReportLog log_;
};

} // namespace kvt_demo

#endif
