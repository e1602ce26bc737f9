#include "image_input.h"

#include <SDL_image.h>

#include <kvt/draw/depth.h>
#include <kvt/sprite/internal/sprite_file.h>

namespace kvt_sprite {

namespace {

bool IsClear(Uint32 value, const SDL_Surface *surface)
{
    const SDL_PixelFormat *format = surface->format;
    if ((surface->flags & SDL_SRCCOLORKEY) && value == format->colorkey)
        return true;
    Uint8 r, g, b, a;
    SDL_GetRGBA(value, format, &r, &g, &b, &a);
    return (r == 255 && g == 0 && b == 255) || (format->Amask != 0 && a == 0);
}

Uint32 ColourWord(Uint32 value, const SDL_PixelFormat *format)
{
    Uint8 r, g, b;
    SDL_GetRGB(value, format, &r, &g, &b);
    return Uint32(r) << 16 | Uint32(g) << 8 | b;
}

// Pixels are read a whole number of bytes at a time. SDL_image expands
// images of 1, 2 or 4 bits per pixel to a byte, so this refuses little.
bool HasReadableDepth(const SDL_PixelFormat *format)
{
    return format->BitsPerPixel >= 8 && format->BytesPerPixel >= 1 && format->BytesPerPixel <= 4;
}

} // namespace

void SurfacePicture(SDL_Surface *surface, Picture *picture)
{
    picture->width = surface->w;
    picture->height = surface->h;
    picture->pixels.assign(size_t(surface->w) * size_t(surface->h), kClear);
    SDL_LockSurface(surface);
    kvt::WithDepth(surface->format, [&](auto pixel) {
        Uint32 *out = picture->pixels.data();
        for (int y = 0; y < surface->h; ++y) {
            const Uint8 *p = kvt::PixelAddress(surface, 0, y);
            for (int x = 0; x < surface->w; ++x, p += pixel.kBytes, ++out) {
                const Uint32 value = pixel.Read(p);
                *out = IsClear(value, surface) ? kClear : ColourWord(value, surface->format);
            }
        }
    });
    SDL_UnlockSurface(surface);
}

bool LoadImagePicture(const std::string &path, Picture *picture, std::string *error)
{
    SDL_Surface *image = IMG_Load(path.c_str());
    if (image == nullptr) {
        *error = "cannot read the image " + path + ": " + IMG_GetError();
        return false;
    }
    bool loaded = false;
    if (image->w > kvt::kMaxFrameSide || image->h > kvt::kMaxFrameSide)
        *error = path + " is larger than a frame may be (" + std::to_string(kvt::kMaxFrameSide) +
                 " pixels a side)";
    else if (!HasReadableDepth(image->format))
        *error = path + " has a pixel depth of " +
                 std::to_string(image->format->BitsPerPixel) + " bits, which is not read";
    else
        loaded = true;
    if (loaded)
        SurfacePicture(image, picture);
    SDL_FreeSurface(image);
    return loaded;
}

} // namespace kvt_sprite
