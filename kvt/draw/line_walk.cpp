// Clipping of the antialiased line, and its plain plotting through
// KVT_SetPixelAlpha. KVT_Line (lines.cpp) walks the same LineWalk with a
// faster plot.

#include <cstdint>
#include <cstdlib>
#include <utility>

#include <kvt/draw/lines.h>
#include <kvt/draw/pixel.h>

#include <kvt/draw/internal/line_paths.h>

namespace kvt {
namespace {

// End points in 64 bits, so that differences of 32-bit coordinates and
// their products with a delta cannot overflow for any realistic input.
struct Ends {
    int64_t x1, y1, x2, y2;
    int64_t dx, dy; // of the whole line, as given
};

void SwapEnds(Ends *e)
{
    std::swap(e->x1, e->x2);
    std::swap(e->y1, e->y2);
    e->dx = -e->dx;
    e->dy = -e->dy;
}

// (a * b) / c, truncating towards zero. The multiplication wraps instead of
// overflowing, which could only happen with both coordinates of a point
// near the ends of the 32-bit range.
int64_t ScaledDelta(int64_t a, int64_t b, int64_t c)
{
    return int64_t(uint64_t(a) * uint64_t(b)) / c;
}

// Cuts the line to rows [0, h), moving each end along the line. The cut
// at the bottom is measured to row h while the end lands on row h - 1.
bool ClipRows(Ends *e, int h)
{
    if (e->dy < 0)
        SwapEnds(e);
    if (e->y2 < 0 || e->y1 >= h)
        return false;
    if (e->y1 < 0) {
        e->x1 -= ScaledDelta(e->y1, e->dx, e->dy);
        e->y1 = 0;
    }
    if (e->y2 >= h) {
        e->x2 -= ScaledDelta(e->y2 - h, e->dx, e->dy);
        e->y2 = h - 1;
    }
    return true;
}

// Cuts the line to columns [0, w), leaving x1 as the left end. The row of
// the right end is not tested: a plot off the surface simply vanishes.
bool ClipColumns(Ends *e, int w, int h)
{
    if (e->dx < 0)
        SwapEnds(e);
    if (e->x2 < 0 || e->x1 >= w)
        return false;
    if (e->x1 < 0) {
        e->y1 -= ScaledDelta(e->x1, e->dy, e->dx);
        if (e->y1 >= h || e->y1 < 0)
            return false;
        e->x1 = 0;
    }
    if (e->x2 >= w) {
        e->y2 -= ScaledDelta(e->x2 - w, e->dy, e->dx);
        e->x2 = w - 1;
    }
    return true;
}

// Chooses the major axis of the clipped line and fills the walk; false
// when clipping has left a straight line, which is not drawn.
bool SetUpWalk(const Ends &e, LineWalk *walk)
{
    int dx = int(e.x2 - e.x1), dy = int(e.y2 - e.y1);
    int s = dy > 0 ? 1 : -1;
    bool alongX = std::abs(dx) > std::abs(dy);
    int major = alongX ? dx : dy, minor = alongX ? dy : dx;
    if (major == 0 || minor == 0)
        return false;
    walk->x = int(e.x1);
    walk->y = int(e.y1);
    walk->steps = std::abs(major);
    walk->slope = int((int64_t(std::abs(minor)) << 16) / std::abs(major));
    walk->limit = 0xFF00 - walk->slope;
    walk->straightX = alongX ? 1 : 0;
    walk->straightY = alongX ? 0 : s;
    walk->diagonalY = s;
    walk->companionX = alongX ? 0 : 1;
    walk->companionY = alongX ? s : 0;
    return true;
}

} // namespace

bool PrepareLine(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour,
                 LineWalk *walk)
{
    Ends e = {x1, y1, x2, y2, int64_t(x2) - x1, int64_t(y2) - y1};
    if (e.dx == 0) {
        KVT_VertLine(surface, Narrow16(x1), Narrow16(y1), Narrow16(e.dy), colour);
        return false;
    }
    if (e.dy == 0) {
        KVT_HorzLine(surface, Narrow16(x1), Narrow16(y1), Narrow16(e.dx), colour);
        return false;
    }
    return ClipRows(&e, surface->h) && ClipColumns(&e, surface->w, surface->h) &&
           SetUpWalk(e, walk);
}

void LinePlain(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour)
{
    LineWalk walk;
    if (!PrepareLine(surface, x1, y1, x2, y2, colour, &walk))
        return;
    walk.Run([&](int x, int y, Uint8 a) {
        KVT_SetPixelAlpha(surface, Narrow16(x), Narrow16(y), colour.r, colour.g, colour.b, a);
    });
}

} // namespace kvt
