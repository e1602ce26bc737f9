#ifndef KVT_DRAW_INTERNAL_COPY_BLIT_H
#define KVT_DRAW_INTERNAL_COPY_BLIT_H

// Blits that only copy bytes, done with memcpy. SDL 1.2 copies such blits
// with non-temporal stores, which send every row past the caches: right
// for one big picture, slow for the many small rectangles that widgets
// save and put back, and for what is drawn over them next.

#include <SDL.h>

namespace kvt {

// True when every blit from `source` to `target` copies the source's
// bytes: the same format (and the same palette), no colour key or alpha
// on the source, two different surfaces, neither locked nor in need of
// locking.
bool BlitIsPlainCopy(const SDL_Surface *source, const SDL_Surface *target);

// SDL_UpperBlit with the same clipping, the same rectangle written back
// into `to` and the same result; rows are copied with memcpy when
// BlitIsPlainCopy holds, and SDL does the blit otherwise.
int Blit(SDL_Surface *source, SDL_Rect *from, SDL_Surface *target, SDL_Rect *to);

} // namespace kvt

#endif
