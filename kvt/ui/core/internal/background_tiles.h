#ifndef KVT_UI_CORE_INTERNAL_BACKGROUND_TILES_H
#define KVT_UI_CORE_INTERNAL_BACKGROUND_TILES_H

// The two ways CUITheme::DrawBackground paints an area with tiles on the
// grid anchored at the surface's origin.

#include <SDL.h>

namespace kvt {

// One SDL_UpperBlit per tile, each cut to the area: the definition.
void TileByTile(SDL_Surface *tile, SDL_Surface *surface, const SDL_Rect &area);

// The same pixels at about one pass of memory: the first band of tile rows
// is blitted one tile wide, widened by copying within its rows, and every
// later row is a copy of the band row with the same tile row. That holds
// only while each blit is a plain copy; with a colour key or alpha, a tile
// of another format or palette, a surface that must be locked, or where
// the per-tile positions would not fit SDL's 16-bit rectangles, it answers
// false and leaves the surface untouched.
bool TileByBands(SDL_Surface *tile, SDL_Surface *surface, const SDL_Rect &area);

} // namespace kvt

#endif
