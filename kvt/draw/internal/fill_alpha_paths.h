#ifndef KVT_DRAW_INTERNAL_FILL_ALPHA_PATHS_H
#define KVT_DRAW_INTERNAL_FILL_ALPHA_PATHS_H

// The ways of doing a translucent fill on an area already cut to the
// surface. KVT_FillRectAlpha picks the fastest one that applies; tests and
// benchmarks call each one directly to prove them equal to the plain one.

#include <SDL.h>

#include <kvt/draw/internal/area.h>
#include <kvt/draw/rgba.h>

namespace kvt {

// The definition: per pixel, split the old value, blend, store.
void FillAlphaPlain(SDL_Surface *surface, const Area &area, KVT_RGBA colour);


} // namespace kvt

#endif
