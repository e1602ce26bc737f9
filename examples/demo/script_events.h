#ifndef KVT_DEMO_SCRIPT_EVENTS_H
#define KVT_DEMO_SCRIPT_EVENTS_H

// The input of a headless script: SDL events built here and given straight
// to a scene, rather than queued (SDL's queue holds only 127 events, and
// nothing here needs to wait).

#include <SDL.h>

#include "scenes.h"

namespace kvt_demo {

class EventScript {
public:
    EventScript(LiveScene &scene, SDL_Surface *screen) : scene_(scene), screen_(screen) {}

    // The pointer to (x, y) with `buttons` (SDL_BUTTON_LMASK...) held.
    void MoveTo(int x, int y, Uint8 buttons);
    // A press or release (SDL_MOUSEBUTTONDOWN or UP) of the left button.
    void Button(Uint8 type, int x, int y);
    // Move there, press and release.
    void Click(int x, int y);
    // A key press carrying `unicode`, as SDL gives it once SDL_EnableUNICODE
    // is on. The screen reads the left Shift key from SDL's key array, so it
    // is set there as a window would have set it before the key arrived.
    void Key(SDLKey sym, Uint16 unicode = 0, bool leftShift = false);
    // One key press per character, each carrying its character.
    void Type(const char *text);

private:
    LiveScene &scene_;
    SDL_Surface *screen_;
};

} // namespace kvt_demo

#endif
