#ifndef KVT_SPRITE_INTERNAL_DECODE_PATHS_H
#define KVT_SPRITE_INTERNAL_DECODE_PATHS_H

// Painting a frame's runs into its surface, in two forms that give the
// same bytes. DecodeFramePlain is the definition: one KVT_SetPixel per
// pixel, bounds test and mapping included. DecodeFrame, which Load uses,
// picks the depth once, addresses each row once and maps colours inline.
// Both paint only what lies on the surface, and a row whose words run out
// stops where they do.

#include <SDL.h>

#include <kvt/sprite/internal/sprite_rows.h>

namespace kvt {

void DecodeFramePlain(SDL_Surface *surface, const FrameRuns &runs);
void DecodeFrame(SDL_Surface *surface, const FrameRuns &runs);

} // namespace kvt

#endif
