#include <kvt/ui/core/region_saver.h>

#include <kvt/draw/internal/copy_blit.h>

namespace {

// A blit copies pixels exactly only when its source neither blends by
// alpha nor skips a colour key. The surface's own settings are switched
// off for the copy and put back after it.
int CopyBlit(SDL_Surface *source, SDL_Rect *from, SDL_Surface *target, SDL_Rect *to)
{
    Uint32 flags = source->flags;
    Uint8 alpha = source->format->alpha;
    Uint32 key = source->format->colorkey;
    if (flags & SDL_SRCALPHA)
        SDL_SetAlpha(source, 0, alpha);
    if (flags & SDL_SRCCOLORKEY)
        SDL_SetColorKey(source, 0, key);
    int result = kvt::Blit(source, from, target, to);
    if (flags & SDL_SRCCOLORKEY)
        SDL_SetColorKey(source, flags & (SDL_SRCCOLORKEY | SDL_RLEACCEL), key);
    if (flags & SDL_SRCALPHA)
        SDL_SetAlpha(source, flags & (SDL_SRCALPHA | SDL_RLEACCEL), alpha);
    return result;
}

} // namespace

KVT_RegionSaver::~KVT_RegionSaver()
{
    if (image != nullptr)
        SDL_FreeSurface(image);
}

bool KVT_RegionSaver::SaveRegion(SDL_Surface *surface, int x, int y, int width, int height)
{
    area.x = Sint16(x);
    area.y = Sint16(y);
    area.w = Uint16(width);
    area.h = Uint16(height);
    saved_ = area;
    if (image != nullptr)
        SDL_FreeSurface(image);
    const SDL_PixelFormat *f = surface->format;
    image = SDL_CreateRGBSurface(0, width, height, f->BitsPerPixel, f->Rmask, f->Gmask, f->Bmask,
                                 f->Amask);
    if (image == nullptr)
        return false;
    // With an alpha mask SDL marks the copy as blending; it must not.
    SDL_SetAlpha(image, 0, SDL_ALPHA_OPAQUE);
    // An 8-bit copy must index the same colours as the surface it came from.
    if (f->palette != nullptr && image->format->palette != nullptr)
        SDL_SetColors(image, f->palette->colors, 0, f->palette->ncolors);
    SDL_Rect source = area;
    SDL_Rect target = {0, 0, Uint16(width), Uint16(height)};
    return CopyBlit(surface, &source, image, &target) == 0;
}

bool KVT_RegionSaver::RestaurRegion(SDL_Surface *surface)
{
    if (image == nullptr)
        return false;
    SDL_Rect source = {0, 0, Uint16(image->w), Uint16(image->h)};
    area = saved_;
    return kvt::Blit(image, &source, surface, &area) == 0;
}
