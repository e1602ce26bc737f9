// Runs the guide's program headless with its input queued in advance: a
// click on "Open...", in the dialog a click on the first name and on OK,
// then Escape. The program itself stays as the README shows it; its main
// is renamed here so that the events can be queued after SDL has started
// and before the program's loop takes them.
#include <cstdlib>

#include <unistd.h>

#include <SDL.h>

#define main GuideMain
#include "../main.cpp"
#undef main

namespace {

void Push(Uint8 type, int x, int y)
{
    SDL_Event event = {};
    event.type = type;
    if (type == SDL_MOUSEMOTION) {
        event.motion.x = Uint16(x);
        event.motion.y = Uint16(y);
    } else {
        event.button.button = SDL_BUTTON_LEFT;
        event.button.state = type == SDL_MOUSEBUTTONDOWN ? SDL_PRESSED : SDL_RELEASED;
        event.button.x = Uint16(x);
        event.button.y = Uint16(y);
    }
    SDL_PushEvent(&event);
}

void PushClick(int x, int y)
{
    Push(SDL_MOUSEMOTION, x, y);
    Push(SDL_MOUSEBUTTONDOWN, x, y);
    Push(SDL_MOUSEBUTTONUP, x, y);
}

} // namespace

int main(int argc, char **argv)
{
    setenv("SDL_VIDEODRIVER", "dummy", 1);
    // A loop that waits on an empty queue never returns: fail instead.
    alarm(20);
    if (SDL_Init(SDL_INIT_VIDEO) != 0)
        return 1;
    PushClick(85, 210);  // "Open..." in the program's window
    PushClick(150, 48);  // the first row of the dialog's list
    PushClick(85, 212);  // the dialog's OK
    SDL_Event escape = {};
    escape.type = SDL_KEYDOWN;
    escape.key.state = SDL_PRESSED;
    escape.key.keysym.sym = SDLK_ESCAPE;
    SDL_PushEvent(&escape);
    return GuideMain(argc, argv);
}
