#ifndef KVT_UI_CORE_SCREEN_H
#define KVT_UI_CORE_SCREEN_H

// The widgets of one screen or dialog, and the only link between SDL events
// and widgets: it turns each event into messages in a fixed order, keeps
// the focus and the hover as indices into `widgets`, decides when the
// surface goes to the display, and records which widget was clicked.

#include <SDL.h>

#include <kvt/ui/core/object.h>
#include <kvt/export.h>

class KVT_API CUIScreen {
public:
    int lastOverWidget; // under the pointer at the previous motion, -1 for none
    int overWidget;     // under the pointer at the motion being treated
    int hitWidget;      // last result of GetMouseOverWidget
    int focusWidget;    // 0 .. nbWidgets - 1, never -1
    int clickedWidget;  // clicked by the event being treated, -1 for none
    int keyWidget;      // got CUIMSG_CHAR for the event being treated, -1 for none
    bool firstDraw;     // true until the first DrawScreen
    CUIObject **widgets; // nbWidgets pointers from malloc, filled by the owner
    int nbWidgets;       // at least 1

    explicit CUIScreen(int nbWidgets);
    // Frees the array only: the widgets belong to whoever created them.
    ~CUIScreen();
    CUIScreen(const CUIScreen &) = delete;
    CUIScreen &operator=(const CUIScreen &) = delete;

    // The lowest index whose IsPtOnObject holds, or -1; kept in hitWidget.
    int GetMouseOverWidget(int x, int y);
    // Draws every widget in array order, then the focus frame. The surface
    // must show no focus frame when this runs, since drawing saves the ring
    // around each widget. It does not update the display.
    void DrawScreen(SDL_Surface *surface);
    // Turns one SDL event into widget messages; see GetClicked afterwards.
    void ProcessDefaultEvent(SDL_Event *event, SDL_Surface *surface);
    // The widget clicked by the last event given to ProcessDefaultEvent, or -1.
    int GetClicked() const { return clickedWidget; }

private:
    CUIObject *Focused() const { return widgets[focusWidget]; }
    void MoveFocus(int to, intptr_t param1, intptr_t param2, SDL_Surface *surface);
    void OnKeyDown(const SDL_KeyboardEvent &key, SDL_Surface *surface);
    void OnTab(SDL_Surface *surface);
    void OnMouseMotion(const SDL_MouseMotionEvent &motion, SDL_Surface *surface);
    void OnMouseButtonDown(const SDL_MouseButtonEvent &button, SDL_Surface *surface);
    void OnMouseButtonUp(const SDL_MouseButtonEvent &button, SDL_Surface *surface);
};

#endif
