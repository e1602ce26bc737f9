#include "png_file.h"

#include <cstdio>
#include <cstring>

#include <png.h>

namespace kvt_demo {

// A 24-bit surface whose bytes run r, g, b in memory on a little-endian
// host: exactly the rows that libpng's PNG_FORMAT_RGB expects.
static SDL_Surface *CreateRgbBytesSurface(int width, int height)
{
    return SDL_CreateRGBSurface(SDL_SWSURFACE, width, height, 24, 0x0000FF, 0x00FF00, 0xFF0000,
                                0);
}

bool WritePng(SDL_Surface *surface, const char *path)
{
    SDL_Surface *rgb = CreateRgbBytesSurface(surface->w, surface->h);
    if (!rgb) {
        std::fprintf(stderr, "cannot make a %dx%d RGB surface: %s\n", surface->w, surface->h,
                     SDL_GetError());
        return false;
    }
    // The blit converts from any format; a colour key or surface alpha on
    // the source would leave holes, so both are switched off for it.
    Uint32 keyFlags = surface->flags & (SDL_SRCCOLORKEY | SDL_RLEACCEL);
    Uint32 key = surface->format->colorkey;
    Uint32 alphaFlags = surface->flags & SDL_SRCALPHA;
    Uint8 alpha = surface->format->alpha;
    SDL_SetColorKey(surface, 0, 0);
    SDL_SetAlpha(surface, 0, SDL_ALPHA_OPAQUE);
    bool copied = SDL_BlitSurface(surface, nullptr, rgb, nullptr) == 0;
    SDL_SetColorKey(surface, keyFlags, key);
    SDL_SetAlpha(surface, alphaFlags, alpha);

    png_image image;
    std::memset(&image, 0, sizeof image);
    image.version = PNG_IMAGE_VERSION;
    image.width = rgb->w;
    image.height = rgb->h;
    image.format = PNG_FORMAT_RGB;
    // One byte per component, so the row stride in components is the pitch.
    bool written = copied && png_image_write_to_file(&image, path, 0, rgb->pixels, rgb->pitch,
                                                     nullptr);
    if (!written)
        std::fprintf(stderr, "cannot write %s: %s\n", path,
                     copied ? image.message : SDL_GetError());
    png_image_free(&image);
    SDL_FreeSurface(rgb);
    return written;
}

} // namespace kvt_demo
