#ifndef KVT_DRAW_SHADE_H
#define KVT_DRAW_SHADE_H

// Lines whose colour runs from one colour to another, and the bevel
// rectangle made of four of them. The ramp spans the line as clipped to
// the surface, starts at `first` and stops one step short of `last`:
// pixel i of n is (first * (n - i) + last * i) / n in each of r, g, b.
// All arithmetic on the arguments is 16-bit and wraps. Only the surface's
// size is tested, never its clip rectangle, and nothing locks it.

#include <SDL.h>

#include <kvt/draw/rgba.h>
#include <kvt/export.h>

// `first` at the left end; a negative length runs left of x, x excluded.
KVT_API void KVT_HorzLineShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length,
                               KVT_RGBA first, KVT_RGBA last);
// `first` at the top end; a negative length runs above y, y excluded.
KVT_API void KVT_VertLineShade(SDL_Surface *surface, Sint16 x, Sint16 y, Sint16 length,
                               KVT_RGBA first, KVT_RGBA last);

// The outline of width x height pixels (cut to 16 bits) through three
// colours: top and left run first -> middle, bottom and right middle ->
// last, drawn in that order, so that the top right corner is exactly
// `middle`. The inside is not touched.
KVT_API void KVT_RectShade(SDL_Surface *surface, int x, int y, int width, int height,
                           KVT_RGBA first, KVT_RGBA middle, KVT_RGBA last);

#endif
