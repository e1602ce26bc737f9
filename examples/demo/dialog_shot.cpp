#include "dialog_shot.h"

#include <cstring>

namespace kvt_demo {

namespace {

// Only against a dialog that never takes its events; even under valgrind
// it takes them within seconds.
const Uint32 kGiveUpMs = 60000;

bool Push(const std::vector<SDL_Event> &events)
{
    for (SDL_Event event : events)
        if (SDL_PushEvent(&event) != 0)
            return false;
    return true;
}

// A plain copy of the pixels: SDL's blits would touch the surface's own
// blit map, which the dialog's thread uses.
SDL_Surface *CopyPixels(const SDL_Surface *from)
{
    const SDL_PixelFormat *f = from->format;
    SDL_Surface *copy = SDL_CreateRGBSurface(SDL_SWSURFACE, from->w, from->h, f->BitsPerPixel,
                                             f->Rmask, f->Gmask, f->Bmask, f->Amask);
    if (!copy)
        return nullptr;
    // A palettised copy starts with a palette of its own, not the screen's.
    if (f->palette)
        SDL_SetColors(copy, f->palette->colors, 0, f->palette->ncolors);
    const size_t rowBytes = size_t(from->w) * f->BytesPerPixel;
    for (int y = 0; y < from->h; ++y)
        std::memcpy(static_cast<Uint8 *>(copy->pixels) + y * copy->pitch,
                    static_cast<const Uint8 *>(from->pixels) + y * from->pitch, rowBytes);
    return copy;
}

bool QueueIsEmpty()
{
    SDL_Event peeked;
    return SDL_PeepEvents(&peeked, 1, SDL_PEEKEVENT, SDL_ALLEVENTS) == 0;
}

// Queued last in the first batch. The dialogs ignore user events, and take
// one event only once they have finished with the one before, so when this
// one has left the queue every real event has been dealt with and drawn.
SDL_Event Marker()
{
    SDL_Event event = {};
    event.type = SDL_USEREVENT;
    return event;
}

} // namespace

void QueuedInput::Mouse(Uint8 type, int x, int y)
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
    events_.push_back(event);
}

void QueuedInput::Click(int x, int y)
{
    Mouse(SDL_MOUSEMOTION, x, y);
    Mouse(SDL_MOUSEBUTTONDOWN, x, y);
    Mouse(SDL_MOUSEBUTTONUP, x, y);
}

// SDL's key symbols of the printable keys are their unshifted ASCII codes.
void QueuedInput::Type(const char *text)
{
    for (const unsigned char *c = reinterpret_cast<const unsigned char *>(text); *c; ++c) {
        SDL_Event event = {};
        event.type = SDL_KEYDOWN;
        event.key.state = SDL_PRESSED;
        event.key.keysym.sym = SDLKey(*c);
        event.key.keysym.unicode = *c;
        events_.push_back(event);
    }
}

DialogShot::DialogShot(SDL_Surface *screen, const QueuedInput &before, const QueuedInput &after)
    : screen_(screen), before_(before), after_(after)
{
}

bool DialogShot::Start()
{
    std::vector<SDL_Event> first = before_.Events();
    first.push_back(Marker());
    if (!Push(first))
        return false;
    thread_ = SDL_CreateThread(Watch, this);
    return thread_ != nullptr;
}

// The surface is read here only once the dialog has taken the marker: it
// then ignores that and waits in SDL_WaitEvent, drawing nothing until the
// second batch comes. The lock of SDL's queue, taken by both threads,
// makes the dialog's drawing visible here.
int DialogShot::Watch(void *self)
{
    auto *shot = static_cast<DialogShot *>(self);
    const Uint32 start = SDL_GetTicks();
    while (!QueueIsEmpty() && SDL_GetTicks() - start < kGiveUpMs)
        SDL_Delay(5);
    if (QueueIsEmpty())
        shot->copy_ = CopyPixels(shot->screen_);
    // Pushed in any case: without it the dialog would wait for ever.
    Push(shot->after_.Events());
    return 0;
}

SDL_Surface *DialogShot::Finish()
{
    if (thread_)
        SDL_WaitThread(thread_, nullptr);
    thread_ = nullptr;
    SDL_Surface *copy = copy_;
    copy_ = nullptr;
    return copy;
}

} // namespace kvt_demo
