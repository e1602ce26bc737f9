#include <kvt/ui/core/region_saver.h>

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
    if (image != nullptr)
        SDL_FreeSurface(image);
    const SDL_PixelFormat *f = surface->format;
    image = SDL_CreateRGBSurface(0, width, height, f->BitsPerPixel, f->Rmask, f->Gmask, f->Bmask,
                                 f->Amask);
    if (image == nullptr)
        return false;
    // An 8-bit copy must index the same colours as the surface it came from.
    if (f->palette != nullptr && image->format->palette != nullptr)
        SDL_SetColors(image, f->palette->colors, 0, f->palette->ncolors);
    SDL_Rect source = area;
    SDL_Rect target = {0, 0, Uint16(width), Uint16(height)};
    return SDL_UpperBlit(surface, &source, image, &target) == 0;
}

bool KVT_RegionSaver::RestaurRegion(SDL_Surface *surface)
{
    if (image == nullptr)
        return false;
    SDL_Rect source = {0, 0, Uint16(image->w), Uint16(image->h)};
    return SDL_UpperBlit(image, &source, surface, &area) == 0;
}
