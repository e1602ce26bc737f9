#include <kvt/ui/core/internal/background_tiles.h>

#include <algorithm>
#include <cstring>

#include <kvt/draw/depth.h>
#include <kvt/draw/internal/copy_blit.h>

namespace kvt {
namespace {

// One tile of the grid at (tx, ty), cut to [x0, x1) x [y0, y1) and
// copied to the same place on the surface.
void BlitTilePart(SDL_Surface *tile, SDL_Surface *surface, int tx, int ty, int x0, int y0, int x1,
                  int y1)
{
    int sx = std::max(x0 - tx, 0), sy = std::max(y0 - ty, 0);
    SDL_Rect source;
    source.x = Sint16(sx);
    source.y = Sint16(sy);
    source.w = Uint16(std::min(tile->w, x1 - tx) - sx);
    source.h = Uint16(std::min(tile->h, y1 - ty) - sy);
    SDL_Rect target;
    target.x = Sint16(tx + sx);
    target.y = Sint16(ty + sy);
    SDL_UpperBlit(tile, &source, surface, &target);
}

// Pixels [x, x + width) of the row hold their first `period` pixels
// over and over: the copies double in length, each from the row's start.
void RepeatAlongRow(Uint8 *row, int period, int width)
{
    for (int done = period; done < width;) {
        const int n = std::min(done, width - done);
        std::memcpy(row + done, row, size_t(n));
        done += n;
    }
}

} // namespace

void TileByTile(SDL_Surface *tile, SDL_Surface *surface, const SDL_Rect &area)
{
    const int tileW = tile->w, tileH = tile->h;
    const int x0 = area.x, y0 = area.y;
    const int x1 = x0 + area.w, y1 = y0 + area.h;
    // Divisions truncate: left of the origin the first tile starts at 0,
    // which leaves out only what lies off the surface anyway.
    for (int tx = (x0 / tileW) * tileW; tx < x1; tx += tileW)
        for (int ty = (y0 / tileH) * tileH; ty < y1; ty += tileH)
            BlitTilePart(tile, surface, tx, ty, x0, y0, x1, y1);
}

bool TileByBands(SDL_Surface *tile, SDL_Surface *surface, const SDL_Rect &area)
{
    if (!BlitIsPlainCopy(tile, surface) || area.x + area.w > 0x7FFF || area.y + area.h > 0x7FFF)
        return false;
    // The blits stop at the clip rectangle, which lies on the surface, so
    // left of the origin nothing is painted here either.
    const SDL_Rect &clip = surface->clip_rect;
    const int x0 = std::max<int>(area.x, clip.x), x1 = std::min(area.x + area.w, clip.x + clip.w);
    const int y0 = std::max<int>(area.y, clip.y), y1 = std::min(area.y + area.h, clip.y + clip.h);
    if (x0 >= x1 || y0 >= y1)
        return true;
    const int bandEnd = std::min(y1, y0 + tile->h);
    SDL_Rect seed;
    seed.x = Sint16(x0);
    seed.y = Sint16(y0);
    seed.w = Uint16(std::min(x1 - x0, tile->w));
    seed.h = Uint16(bandEnd - y0);
    TileByTile(tile, surface, seed);

    const int bytes = surface->format->BytesPerPixel;
    const int rowBytes = (x1 - x0) * bytes;
    for (int y = y0; y < bandEnd; ++y)
        RepeatAlongRow(PixelAddress(surface, x0, y), seed.w * bytes, rowBytes);
    for (int y = bandEnd; y < y1; ++y)
        std::memcpy(PixelAddress(surface, x0, y), PixelAddress(surface, x0, y0 + (y - y0) % tile->h),
                    size_t(rowBytes));
    return true;
}

} // namespace kvt
