#ifndef KVT_SPRITE_TOOL_SPRITE_WRITER_H
#define KVT_SPRITE_TOOL_SPRITE_WRITER_H

// The writer of the sprite file, which the library itself only reads.

#include <vector>

#include <SDL.h>

#include "picture.h"

namespace kvt_sprite {

// The run words of one row of `width` pixels: each stretch of clear
// pixels as one negative run, each stretch of colours as one literal run
// followed by its pixel words, with no empty run. That is the fewest
// words a row can take.
std::vector<Uint32> PackRow(const Uint32 *pixels, int width);

// The whole file for `pictures`, frame 0 first, little-endian. Each frame
// gets the least block size its rows allow: 24 header bytes, 8 bytes per
// row and the row data, halved.
std::vector<Uint8> SpriteFileBytes(const std::vector<Picture> &pictures);

} // namespace kvt_sprite

#endif
