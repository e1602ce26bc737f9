#include "events.h"

#include <cstring>

namespace kvt_test {

SDL_Event MotionEvent(int x, int y, Uint8 buttons)
{
    SDL_Event event;
    memset(&event, 0, sizeof event);
    event.motion.type = SDL_MOUSEMOTION;
    event.motion.state = buttons;
    event.motion.x = Uint16(x);
    event.motion.y = Uint16(y);
    return event;
}

static SDL_Event ButtonEvent(Uint8 type, Uint8 state, int x, int y, Uint8 button)
{
    SDL_Event event;
    memset(&event, 0, sizeof event);
    event.button.type = type;
    event.button.state = state;
    event.button.button = button;
    event.button.x = Uint16(x);
    event.button.y = Uint16(y);
    return event;
}

SDL_Event ButtonDownEvent(int x, int y, Uint8 button)
{
    return ButtonEvent(SDL_MOUSEBUTTONDOWN, SDL_PRESSED, x, y, button);
}

SDL_Event ButtonUpEvent(int x, int y, Uint8 button)
{
    return ButtonEvent(SDL_MOUSEBUTTONUP, SDL_RELEASED, x, y, button);
}

static SDL_Event KeyEvent(Uint8 type, Uint8 state, SDLKey sym, Uint16 unicode, SDLMod mod)
{
    SDL_Event event;
    memset(&event, 0, sizeof event);
    event.key.type = type;
    event.key.state = state;
    event.key.keysym.sym = sym;
    event.key.keysym.unicode = unicode;
    event.key.keysym.mod = mod;
    return event;
}

SDL_Event KeyDownEvent(SDLKey sym, Uint16 unicode, SDLMod mod)
{
    return KeyEvent(SDL_KEYDOWN, SDL_PRESSED, sym, unicode, mod);
}

SDL_Event KeyUpEvent(SDLKey sym, Uint16 unicode, SDLMod mod)
{
    return KeyEvent(SDL_KEYUP, SDL_RELEASED, sym, unicode, mod);
}

HeldKey::HeldKey(SDLKey key) : key_(key), before_(SDL_GetKeyState(nullptr)[key])
{
    SDL_GetKeyState(nullptr)[key] = 1;
}

HeldKey::~HeldKey() { SDL_GetKeyState(nullptr)[key_] = before_; }

Events Join(std::initializer_list<Events> parts)
{
    Events all;
    for (const Events &part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Events Click(Point at, Point release)
{
    return {ButtonDownEvent(at.x, at.y), ButtonUpEvent(release.x, release.y)};
}

Events Type(const char *text)
{
    Events typed;
    for (const char *c = text; *c != '\0'; ++c)
        typed.push_back(KeyDownEvent(SDLKey(Uint8(*c)), Uint8(*c)));
    return typed;
}

} // namespace kvt_test
