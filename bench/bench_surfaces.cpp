#include "bench_surfaces.h"

#include <cstring>

namespace kvt_bench {

const Depth &Depth32()
{
    static const Depth d = {"32", 32, 0xFF0000, 0x00FF00, 0x0000FF};
    return d;
}
const Depth &Depth24()
{
    static const Depth d = {"24", 24, 0xFF0000, 0x00FF00, 0x0000FF};
    return d;
}
const Depth &Depth16()
{
    static const Depth d = {"16", 16, 0xF800, 0x07E0, 0x001F};
    return d;
}
const Depth &Depth8()
{
    static const Depth d = {"8", 8, 0, 0, 0};
    return d;
}
const Depth *const *AllDepths()
{
    static const Depth *const all[] = {&Depth32(), &Depth24(), &Depth16(), &Depth8(), nullptr};
    return all;
}

// 3-3-2 levels: all 256 entries distinct, as a game palette would be.
void SetFullPalette(SDL_Surface *s)
{
    SDL_Color colours[256];
    for (int i = 0; i < 256; ++i)
        colours[i] = {Uint8((i >> 5) * 255 / 7), Uint8(((i >> 2) & 7) * 255 / 7),
                      Uint8((i & 3) * 255 / 3), 0};
    SDL_SetColors(s, colours, 0, 256);
}

Surface MakeSurface(const Depth &depth, int w, int h, unsigned seed)
{
    Surface s(SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, depth.bits, depth.rmask, depth.gmask,
                                   depth.bmask, 0));
    if (depth.bits == 8)
        SetFullPalette(s.get());
    std::mt19937 rng(seed);
    Uint8 *bytes = static_cast<Uint8 *>(s->pixels);
    for (int i = 0; i < s->pitch * h; ++i)
        bytes[i] = Uint8(rng());
    return s;
}

Surface MakeSolid(const SDL_Surface *like, int w, int h, Uint8 r, Uint8 g, Uint8 b)
{
    const SDL_PixelFormat *f = like->format;
    Surface s(SDL_CreateRGBSurface(SDL_SWSURFACE, w, h, f->BitsPerPixel, f->Rmask, f->Gmask,
                                   f->Bmask, f->Amask));
    if (f->palette != nullptr)
        SDL_SetColors(s.get(), f->palette->colors, 0, f->palette->ncolors);
    SDL_FillRect(s.get(), nullptr, SDL_MapRGB(s->format, r, g, b));
    return s;
}

void CopyPixels(const SDL_Surface *from, SDL_Surface *to)
{
    std::memcpy(to->pixels, from->pixels, size_t(from->pitch) * from->h);
}

VideoMode::VideoMode(int width, int height, int bits)
    : display_(SDL_SetVideoMode(width, height, bits, SDL_SWSURFACE))
{
    if (display_ != nullptr && bits == 8)
        SetFullPalette(display_);
}

VideoMode::~VideoMode() { SDL_SetVideoMode(640, 480, 32, SDL_SWSURFACE); }

std::string Name(const char *family, const char *variant, const char *depth, const char *size)
{
    return std::string(family) + "/" + variant + "/" + depth + "/" + size;
}

} // namespace kvt_bench
