#ifndef KVT_SPRITE_TOOL_PNG_OUTPUT_H
#define KVT_SPRITE_TOOL_PNG_OUTPUT_H

#include <string>
#include <vector>

#include <SDL.h>

#include "picture.h"

namespace kvt_sprite {

// The picture as an 8-bit RGBA PNG: colours opaque, clear pixels fully
// transparent, so that packing the PNG again gives the same frame.
// False, with the reason in `*error`, for an empty picture, which PNG
// cannot hold, or when libpng fails.
bool PngBytes(const Picture &picture, std::vector<Uint8> *png, std::string *error);

} // namespace kvt_sprite

#endif
