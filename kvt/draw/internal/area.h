#ifndef KVT_DRAW_INTERNAL_AREA_H
#define KVT_DRAW_INTERNAL_AREA_H

#include <algorithm>
#include <cstdint>

#include <SDL.h>

namespace kvt {

// A rectangle already cut to a surface: columns [x0, x1), rows [y0, y1).
struct Area {
    int x0, y0, x1, y1;
    int Width() const { return x1 - x0; }
    int Height() const { return y1 - y0; }
};

// Cuts (x, y, w, h) to the surface; false when nothing of it is left.
// Sums are formed in 64 bits so that huge sizes cannot wrap.
inline bool ClipToSurface(const SDL_Surface *surface, int x, int y, int w, int h, Area *out)
{
    if (x >= surface->w || y >= surface->h)
        return false;
    int64_t x1 = std::min<int64_t>(int64_t(x) + w, surface->w);
    int64_t y1 = std::min<int64_t>(int64_t(y) + h, surface->h);
    out->x0 = std::max(x, 0);
    out->y0 = std::max(y, 0);
    out->x1 = int(x1);
    out->y1 = int(y1);
    return out->x0 < out->x1 && out->y0 < out->y1;
}

} // namespace kvt

#endif
