#ifndef KVT_DRAW_LINES_H
#define KVT_DRAW_LINES_H

// Solid lines and rectangles. Only r, g, b of the colour are drawn. The
// straight lines and the antialiased line test against the surface's size
// alone; KVT_FillRect goes through SDL and so respects its clip rectangle.
// Nothing here locks the surface.

#include <SDL.h>

#include <kvt/draw/rgba.h>
#include <kvt/export.h>

// `length` pixels from (x, y) rightwards, or for a negative length the
// pixels left of x (x itself excluded).
KVT_API void KVT_HorzLine(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA colour);
// The same downwards, or upwards for a negative length.
KVT_API void KVT_VertLine(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length, KVT_RGBA colour);

// An antialiased line, blended in pairs of pixels; both ends are drawn.
// A horizontal or vertical line is handed to KVT_HorzLine/KVT_VertLine and
// so stops one pixel short of the end with the larger coordinate.
KVT_API void KVT_Line(SDL_Surface *surface, int x1, int y1, int x2, int y2, KVT_RGBA colour);

// Outline of w x h pixels at (x, y); the sizes are narrowed to 16 bits.
KVT_API void KVT_Rect(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour);
// Solid fill through SDL_FillRect, with x, y narrowed to 16 bits signed and
// w, h to 16 bits unsigned.
KVT_API void KVT_FillRect(SDL_Surface *surface, int x, int y, int w, int h, KVT_RGBA colour);

#endif
