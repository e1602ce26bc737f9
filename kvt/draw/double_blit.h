#ifndef KVT_DRAW_DOUBLE_BLIT_H
#define KVT_DRAW_DOUBLE_BLIT_H

// Draws a surface at twice its size, the pixels between two source pixels
// holding their mean. Source colours near (255, 0, 255) (red and blue at
// least 246, green at most 9) let the target's own pixels show through.
// Only colours pass between the two surfaces, so their formats may differ.
// Nothing is drawn unless the whole doubled source fits on the target with
// its top left pixel at (x, y); the last column and row of that doubled
// size are never written.

#include <SDL.h>

#include <kvt/export.h>

KVT_API void KVT_DoubleSizeBlit(SDL_Surface *source, SDL_Surface *target, int x, int y);

#endif
