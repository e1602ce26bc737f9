#include <kvt/draw/internal/copy_blit.h>

#include <cstring>

#include <kvt/draw/depth.h>

namespace kvt {
namespace {

bool SamePalette(const SDL_Palette *a, const SDL_Palette *b)
{
    if (a == nullptr || b == nullptr)
        return a == b;
    return a->ncolors == b->ncolors &&
           std::memcmp(a->colors, b->colors, sizeof(SDL_Color) * size_t(a->ncolors)) == 0;
}

bool SameFormat(const SDL_PixelFormat *a, const SDL_PixelFormat *b)
{
    return a->BitsPerPixel == b->BitsPerPixel && a->BytesPerPixel == b->BytesPerPixel &&
           a->Rmask == b->Rmask && a->Gmask == b->Gmask && a->Bmask == b->Bmask &&
           a->Amask == b->Amask && SamePalette(a->palette, b->palette);
}

// One axis of SDL_UpperBlit's clipping: the source span [at, at + size)
// cut to the source's [0, sourceSize), the target position moved along,
// then the target span cut to the clip range [clipAt, clipAt + clipSize).
// Positions stay within 16 bits (see FitsSixteenBits).
struct Axis {
    int from, to, size;
};

Axis ClipAxis(int at, int size, int sourceSize, int to, int clipAt, int clipSize)
{
    if (at < 0) {
        size += at;
        to -= at;
        at = 0;
    }
    if (sourceSize - at < size)
        size = sourceSize - at;
    if (clipAt - to > 0) {
        size -= clipAt - to;
        at += clipAt - to;
        to = clipAt;
    }
    if (to + size - clipAt - clipSize > 0)
        size -= to + size - clipAt - clipSize;
    return {at, to, size};
}

// A source cut on the left or top moves the target position the other
// way; where that leaves 16 bits the SDLs part (one wraps the rectangle's
// field, the other does not), so such blits are left to SDL.
bool FitsSixteenBits(const SDL_Rect &from, const SDL_Rect &to)
{
    return (from.x >= 0 || to.x - from.x <= 0x7FFF) && (from.y >= 0 || to.y - from.y <= 0x7FFF);
}

} // namespace

bool BlitIsPlainCopy(const SDL_Surface *source, const SDL_Surface *target)
{
    return (source->flags & (SDL_SRCCOLORKEY | SDL_SRCALPHA)) == 0 && source != target &&
           !SDL_MUSTLOCK(source) && !SDL_MUSTLOCK(target) && source->locked == 0 &&
           target->locked == 0 && SameFormat(source->format, target->format);
}

int Blit(SDL_Surface *source, SDL_Rect *from, SDL_Surface *target, SDL_Rect *to)
{
    if (source == nullptr || target == nullptr || !BlitIsPlainCopy(source, target))
        return SDL_UpperBlit(source, from, target, to);
    SDL_Rect whole = {0, 0, Uint16(source->w), Uint16(source->h)}, origin = {0, 0, 0, 0};
    const SDL_Rect &f = from != nullptr ? *from : whole;
    SDL_Rect &t = to != nullptr ? *to : origin;
    if (!FitsSixteenBits(f, t))
        return SDL_UpperBlit(source, from, target, to);
    const SDL_Rect &clip = target->clip_rect;
    const Axis x = ClipAxis(f.x, f.w, source->w, t.x, clip.x, clip.w);
    const Axis y = ClipAxis(f.y, f.h, source->h, t.y, clip.y, clip.h);
    t.x = Sint16(x.to);
    t.y = Sint16(y.to);
    if (x.size <= 0 || y.size <= 0) {
        t.w = t.h = 0;
        return 0;
    }
    t.w = Uint16(x.size);
    t.h = Uint16(y.size);
    const size_t bytes = size_t(x.size) * source->format->BytesPerPixel;
    for (int row = 0; row < y.size; ++row)
        std::memcpy(PixelAddress(target, x.to, y.to + row),
                    PixelAddress(source, x.from, y.from + row), bytes);
    return 0;
}

} // namespace kvt
