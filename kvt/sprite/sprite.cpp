#include <cstdlib>

#include <kvt/sprite/sprite.h>

namespace {

// Where a frame's top left corner goes so that its anchor lands on
// (x, y); the subtraction wraps at 16 bits like the coordinates.
SDL_Rect AnchoredAt(const KVT_SpriteFrame &frame, Sint16 x, Sint16 y, Uint16 w, Uint16 h)
{
    SDL_Rect destination;
    destination.x = Sint16(Uint16(x - frame.hotX));
    destination.y = Sint16(Uint16(y - frame.hotY));
    destination.w = w;
    destination.h = h;
    return destination;
}

// True when the frame already blends as asked: SDL keeps the alpha of a
// surface without SDL_SRCALPHA at opaque.
bool HasAlphaState(const SDL_Surface *frame, Uint32 alphaFlag, Uint8 alpha)
{
    const Uint8 wanted = alphaFlag != 0 ? alpha : Uint8(SDL_ALPHA_OPAQUE);
    return (frame->flags & SDL_SRCALPHA) == alphaFlag && frame->format->alpha == wanted;
}

// The blit that all display operations end with. The alpha state is made
// right at every call, so each blit is independent of what came before;
// text blits many frames in the same state, so SDL is only asked to
// change it when it differs.
bool Blit(const KVT_SpriteFrame &frame, SDL_Rect *source, SDL_Surface *target,
          SDL_Rect destination, Uint32 alphaFlag, Uint8 alpha)
{
    if (!HasAlphaState(frame.surface, alphaFlag, alpha))
        SDL_SetAlpha(frame.surface, alphaFlag, alpha);
    return SDL_UpperBlit(frame.surface, source, target, &destination) == 0;
}

} // namespace

void KVT_Sprite::FreeFrames()
{
    for (Uint32 i = 0; i < nbFrames; ++i)
        SDL_FreeSurface(frames[i].surface);
    std::free(frames);
    frames = nullptr;
    nbFrames = 0;
}

bool KVT_Sprite::Display(SDL_Surface *surface, Sint16 x, Sint16 y, Uint32 frame)
{
    if (frame >= nbFrames)
        return false;
    const KVT_SpriteFrame &f = frames[frame];
    const SDL_Rect destination = AnchoredAt(f, x, y, Uint16(f.surface->w), Uint16(f.surface->h));
    return Blit(f, nullptr, surface, destination, 0, 0);
}

bool KVT_Sprite::DisplayClipped(SDL_Surface *surface, Sint16 x, Sint16 y, Uint16 w, Uint16 h,
                                Uint32 frame)
{
    if (frame >= nbFrames)
        return false;
    const KVT_SpriteFrame &f = frames[frame];
    SDL_Rect source = {0, 0, w, h};
    return Blit(f, &source, surface, AnchoredAt(f, x, y, w, h), 0, 0);
}

bool KVT_Sprite::DisplayAlpha(SDL_Surface *surface, Sint16 x, Sint16 y, Uint32 frame, Uint8 alpha)
{
    if (frame >= nbFrames)
        return false;
    const KVT_SpriteFrame &f = frames[frame];
    const SDL_Rect destination = AnchoredAt(f, x, y, Uint16(f.surface->w), Uint16(f.surface->h));
    return Blit(f, nullptr, surface, destination, SDL_SRCALPHA, alpha);
}
