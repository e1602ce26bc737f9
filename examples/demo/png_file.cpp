#include "png_file.h"

#include <cstdio>
#include <cstring>
#include <vector>

#include <png.h>

namespace kvt_demo {

namespace {

Uint32 ReadPixel(const Uint8 *at, int bytes)
{
    switch (bytes) {
    case 1:
        return *at;
    case 2:
        return *reinterpret_cast<const Uint16 *>(at);
    case 3:
        if (SDL_BYTEORDER == SDL_LIL_ENDIAN)
            return Uint32(at[0]) | Uint32(at[1]) << 8 | Uint32(at[2]) << 16;
        return Uint32(at[2]) | Uint32(at[1]) << 8 | Uint32(at[0]) << 16;
    default:
        return *reinterpret_cast<const Uint32 *>(at);
    }
}

// A channel's field of 8 - loss bits, widened to 8 by repeating it below
// itself; a channel that the format lacks (loss 8) reads as 0.
Uint8 Widen(Uint32 pixel, Uint32 mask, Uint8 shift, Uint8 loss)
{
    const int bits = 8 - loss;
    unsigned value = ((pixel & mask) >> shift) << loss;
    for (int have = bits; have > 0 && have < 8; have *= 2)
        value |= value >> have;
    return Uint8(value);
}

void ToRgb(const SDL_PixelFormat *f, Uint32 pixel, Uint8 *rgb)
{
    if (f->palette) {
        const SDL_Color &c = f->palette->colors[pixel < Uint32(f->palette->ncolors) ? pixel : 0];
        rgb[0] = c.r, rgb[1] = c.g, rgb[2] = c.b;
        return;
    }
    rgb[0] = Widen(pixel, f->Rmask, f->Rshift, f->Rloss);
    rgb[1] = Widen(pixel, f->Gmask, f->Gshift, f->Gloss);
    rgb[2] = Widen(pixel, f->Bmask, f->Bshift, f->Bloss);
}

// The surface's pixels as rows of r, g, b bytes.
bool ReadRgbRows(SDL_Surface *surface, std::vector<Uint8> *rows)
{
    if (SDL_MUSTLOCK(surface) && SDL_LockSurface(surface) != 0)
        return false;
    const int bytes = surface->format->BytesPerPixel;
    rows->resize(size_t(surface->w) * surface->h * 3);
    Uint8 *out = rows->data();
    for (int y = 0; y < surface->h; ++y) {
        const Uint8 *row = static_cast<const Uint8 *>(surface->pixels) + y * surface->pitch;
        for (int x = 0; x < surface->w; ++x, out += 3)
            ToRgb(surface->format, ReadPixel(row + x * bytes, bytes), out);
    }
    if (SDL_MUSTLOCK(surface))
        SDL_UnlockSurface(surface);
    return true;
}

} // namespace

bool WritePng(SDL_Surface *surface, const char *path)
{
    std::vector<Uint8> rows;
    if (!ReadRgbRows(surface, &rows)) {
        std::fprintf(stderr, "cannot read the pixels for %s: %s\n", path, SDL_GetError());
        return false;
    }
    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(surface->w);
    image.height = png_uint_32(surface->h);
    image.format = PNG_FORMAT_RGB;
    const bool written =
        png_image_write_to_file(&image, path, 0, rows.data(), surface->w * 3, nullptr);
    if (!written)
        std::fprintf(stderr, "cannot write %s: %s\n", path, image.message);
    png_image_free(&image);
    return written;
}

} // namespace kvt_demo
