#ifndef KVT_DRAW_INTERNAL_DOUBLE_BLIT_PATHS_H
#define KVT_DRAW_INTERNAL_DOUBLE_BLIT_PATHS_H

// The double-size blit in its two forms. KVT_DoubleSizeBlit addresses
// rows directly and splits and maps colours inline; DoubleSizeBlitPlain
// reads and writes every pixel on its own, bounds test, depth dispatch,
// SDL_GetRGB and SDL_MapRGB included. Both make the same reads and writes
// in the same order, so that they agree byte for byte even on a palette,
// where a colour read back may map to another index.

#include <SDL.h>

namespace kvt {

// True when a source of w x h pixels, doubled, fits on the target with its
// top left pixel at (x, y). A source without pixels, or of a depth that
// cannot be read, draws nothing at all.
bool CanDoubleSize(const SDL_Surface *source, const SDL_Surface *target, int x, int y);

// The colours that count as transparent: close to (255, 0, 255).
inline bool IsNearKeyColour(Uint8 r, Uint8 g, Uint8 b) { return r >= 246 && g <= 9 && b >= 246; }

void DoubleSizeBlitPlain(SDL_Surface *source, SDL_Surface *target, int x, int y);

} // namespace kvt

#endif
