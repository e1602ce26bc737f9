#ifndef KVT_UI_BUTTONS_SIGN_BUTTON_H
#define KVT_UI_BUTTONS_SIGN_BUTTON_H

// A small button showing an arrow drawn in code: no font, no sprite. It
// looks and reacts to the mouse like the text button, and serves mostly as
// the end button of the integer bars, which own two and talk to them
// directly.

#include <cstdint>

#include <SDL.h>

#include <kvt/ui/core/object.h>
#include <kvt/export.h>

// Arrow directions, counted counter-clockwise from the right. Any other
// value draws no arrow: face and frame alone.
enum {
    CUISIGN_RIGHT = 1,
    CUISIGN_UP = 2,
    CUISIGN_LEFT = 3,
    CUISIGN_DOWN = 4,
};

class KVT_API CUISignButton : public CUIObject {
public:
    int sign; // which arrow, fixed at construction

    // Stores its arguments; draws nothing.
    CUISignButton(int x, int y, int width, int height, CUITheme *theme, int sign);

    // Treats DRAW, MOUSEDOWN, MOUSEUP, MOUSEENTER and MOUSELEAVE (each
    // answers true); everything else goes to DefaultSendMessage.
    bool SendMessage(int message, intptr_t param1, intptr_t param2,
                     SDL_Surface *surface) override;

private:
    void Draw(SDL_Surface *surface);
    void DrawArrow(SDL_Surface *surface) const;
};

#endif
