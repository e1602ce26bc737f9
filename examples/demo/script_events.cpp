#include "script_events.h"

#include <cctype>

namespace kvt_demo {

void EventScript::MoveTo(int x, int y, Uint8 buttons)
{
    SDL_Event event = {};
    event.type = SDL_MOUSEMOTION;
    event.motion.type = SDL_MOUSEMOTION;
    event.motion.state = buttons;
    event.motion.x = Uint16(x);
    event.motion.y = Uint16(y);
    scene_.HandleEvent(&event, screen_);
}

void EventScript::Button(Uint8 type, int x, int y)
{
    SDL_Event event = {};
    event.type = type;
    event.button.type = type;
    event.button.button = SDL_BUTTON_LEFT;
    event.button.state = type == SDL_MOUSEBUTTONDOWN ? SDL_PRESSED : SDL_RELEASED;
    event.button.x = Uint16(x);
    event.button.y = Uint16(y);
    scene_.HandleEvent(&event, screen_);
}

void EventScript::Click(int x, int y)
{
    MoveTo(x, y, 0);
    Button(SDL_MOUSEBUTTONDOWN, x, y);
    Button(SDL_MOUSEBUTTONUP, x, y);
}

void EventScript::Key(SDLKey sym, Uint16 unicode, bool leftShift)
{
    Uint8 *keys = SDL_GetKeyState(nullptr);
    keys[SDLK_LSHIFT] = leftShift ? 1 : 0;
    SDL_Event event = {};
    event.type = SDL_KEYDOWN;
    event.key.type = SDL_KEYDOWN;
    event.key.state = SDL_PRESSED;
    event.key.keysym.sym = sym;
    event.key.keysym.mod = leftShift ? KMOD_LSHIFT : KMOD_NONE;
    event.key.keysym.unicode = unicode;
    scene_.HandleEvent(&event, screen_);
    keys[SDLK_LSHIFT] = 0;
}

// SDL's key symbols of the printable keys are their unshifted ASCII codes.
void EventScript::Type(const char *text)
{
    for (const unsigned char *c = reinterpret_cast<const unsigned char *>(text); *c; ++c)
        Key(SDLKey(std::tolower(*c)), *c, std::isupper(*c) != 0);
}

} // namespace kvt_demo
