#ifndef KVT_DRAW_INTERNAL_LINE_PATHS_H
#define KVT_DRAW_INTERNAL_LINE_PATHS_H

// The antialiased line in two steps: clipping, which turns the end points
// into a walk from the left end, and plotting along that walk. KVT_Line
// plots with the depth chosen once for the whole line; LinePlain plots
// each pixel with KVT_SetPixelAlpha and is what tests hold KVT_Line to.

#include <cstdint>

#include <SDL.h>

#include <kvt/draw/rgba.h>

namespace kvt {

// Coordinates reach the 16-bit pixel functions by keeping their low bits.
inline Sint16 Narrow16(int64_t v) { return Sint16(Uint16(uint64_t(v))); }

// A slanted line cut to the surface, walked from its left end with a
// 16.16 fixed-point error term.
struct LineWalk {
    int x, y;                // first pixel
    int steps;               // length along the major axis
    int slope, limit;        // m and 0xFF00 - m
    int straightX, straightY;
    int diagonalY;           // the diagonal step is (1, diagonalY)
    int companionX, companionY;

    // Calls plot(x, y, alpha) for the first pixel and then for each pair:
    // the pixel at alpha a and its companion at 255 - a.
    template <class Plot>
    void Run(Plot &&plot) const
    {
        int px = x, py = y, e = 0x80;
        plot(px, py, Uint8(0));
        for (int i = 0; i < steps; ++i) {
            if (e < limit) {
                px += straightX;
                py += straightY;
                e += slope;
            } else {
                px += 1;
                py += diagonalY;
                e -= limit;
            }
            Uint8 a = Uint8((e >> 8) & 255);
            plot(px, py, a);
            plot(px + companionX, py + companionY, Uint8(255 - a));
        }
    }
};

// Draws a horizontal or vertical line at once with the straight line
// functions and answers false; answers false too when clipping leaves
// nothing slanted. Otherwise fills `walk` and answers true.
bool PrepareLine(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour,
                 LineWalk *walk);

// The definition: one KVT_SetPixelAlpha per plot.
void LinePlain(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour);

} // namespace kvt

#endif
