#ifndef KVT_DEMO_CONTROLS_SCENE_H
#define KVT_DEMO_CONTROLS_SCENE_H

// The controls scene: one CUIScreen with a scroll bar beside a list of
// lines, a value bar, and two text fields, the second read-only. The
// scene hands events to the screen and reports, one line each on stdout
// and in a panel, every move of the focus, every change of the scroll
// bar's first line in view and of the value bar's value, and every change
// of a field's text. The headless script and the live window drive the
// same object.

#include <memory>
#include <string>

#include <SDL.h>

#include <kvt/ui/core/screen.h>

#include "assets.h"
#include "scene_parts.h"
#include "scenes.h"

class CUIVertScrollBar;
class CUIHorzValueBar;
class CUITextEdit;

namespace kvt_demo {

// The widgets by index in the screen's array, which is also the Tab order.
enum ControlsWidget { kScrollBar, kLevelBar, kNameField, kNoteField, kControlsWidgets };

// The name a widget has in the reports ("focus: name").
const char *ControlsWidgetName(int widget);

struct ControlsLayout;

class ControlsScene : public LiveScene {
public:
    // The lines of the list that the scroll bar moves through.
    static const int kListLines = 50;
    static const int kListVisible = 8;

    ControlsScene(Assets &assets, Layout layout);
    ~ControlsScene() override;

    // Paints the whole scene: background, panels, the list, the widgets
    // through DrawScreen, the reports so far and `status`. Does not update
    // the display.
    void Draw(SDL_Surface *screen, const char *status);
    // Replaces the text under the widgets and updates its area.
    void ShowStatus(SDL_Surface *screen, const char *status);
    // Gives the event to the screen's ProcessDefaultEvent, then reports
    // what changed, and repaints the list when the scroll bar moved.
    void HandleEvent(SDL_Event *event, SDL_Surface *screen) override;
    // A text field keeps Space, Left and Right, the value bar Left and
    // Right: they type and step there rather than change scene.
    bool KeepsKey(SDLKey key) const override;

    // Where a widget lies on the screen.
    SDL_Rect WidgetRect(int widget) const;
    const CUIVertScrollBar &ScrollBar() const { return *scroll_; }
    const CUIHorzValueBar &LevelBar() const { return *level_; }

private:
    void Report(SDL_Surface *screen);
    void ReportText(CUITextEdit &field, int widget, std::string *reported);
    void PaintList(SDL_Surface *screen);
    void PaintLevelValue(SDL_Surface *screen);
    void PaintGrooves(SDL_Surface *screen);

    const ControlsLayout &layout_;
    Assets &assets_;
    CUIScreen screen_;
    std::unique_ptr<CUIObject> widgets_[kControlsWidgets];
    CUIVertScrollBar *scroll_;
    CUIHorzValueBar *level_;
    CUITextEdit *name_;
    CUITextEdit *note_;
    // What was last reported, to tell a change.
    int reportedFocus_;
    int reportedScroll_;
    int reportedLevel_;
    std::string reportedName_;
    std::string reportedNote_;
    ReportLog log_;
};

} // namespace kvt_demo

#endif
