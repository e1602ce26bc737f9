#ifndef KVT_TESTS_SUPPORT_EVENTS_H
#define KVT_TESTS_SUPPORT_EVENTS_H

// SDL events as an application's loop would receive them, built by hand
// so that widget tests can drive a screen without a display, and a way to
// hold a key down in the array that SDL_GetKeyState(NULL) returns.

#include <initializer_list>
#include <vector>

#include <SDL.h>

namespace kvt_test {

// `buttons` is the mask of buttons held (SDL_BUTTON(1) for the left one).
SDL_Event MotionEvent(int x, int y, Uint8 buttons = 0);
SDL_Event ButtonDownEvent(int x, int y, Uint8 button = SDL_BUTTON_LEFT);
SDL_Event ButtonUpEvent(int x, int y, Uint8 button = SDL_BUTTON_LEFT);
SDL_Event KeyDownEvent(SDLKey sym, Uint16 unicode = 0, SDLMod mod = KMOD_NONE);
SDL_Event KeyUpEvent(SDLKey sym, Uint16 unicode = 0, SDLMod mod = KMOD_NONE);

// Marks `key` as held in SDL's keyboard state for its lifetime, as the
// screen reads it for Shift+Tab, and puts the old entry back afterwards.
class HeldKey {
public:
    explicit HeldKey(SDLKey key);
    ~HeldKey();
    HeldKey(const HeldKey &) = delete;
    HeldKey &operator=(const HeldKey &) = delete;

private:
    SDLKey key_;
    Uint8 before_;
};

// Events as a user makes them, in runs: clicks (pressed at one point and
// released at another, or at the same), and keys typed as text, with
// '\t', '\r' and '\b' for Tab, Return and Backspace.
using Events = std::vector<SDL_Event>;

struct Point {
    int x, y;
};

Events Join(std::initializer_list<Events> parts);
Events Click(Point at, Point release);
inline Events Click(Point at) { return Click(at, at); }
Events Type(const char *text);

} // namespace kvt_test

#endif
