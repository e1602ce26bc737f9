#include "dialog_shot.h"

#include <cstring>

namespace kvt_demo {

namespace {

// Whatever the dialog does with one event takes well under this; once the
// queue is empty and this has passed, the dialog waits and draws nothing.
const Uint32 kSettleMs = 250;
const Uint32 kGiveUpMs = 10000;

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
    if (!Push(before_.Events()))
        return false;
    thread_ = SDL_CreateThread(Watch, this);
    return thread_ != nullptr;
}

// The surface is read here only while the dialog sits in SDL_WaitEvent.
int DialogShot::Watch(void *self)
{
    auto *shot = static_cast<DialogShot *>(self);
    const Uint32 start = SDL_GetTicks();
    while (!QueueIsEmpty() && SDL_GetTicks() - start < kGiveUpMs)
        SDL_Delay(5);
    SDL_Delay(kSettleMs);
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
