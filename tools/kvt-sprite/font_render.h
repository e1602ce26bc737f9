#ifndef KVT_SPRITE_TOOL_FONT_RENDER_H
#define KVT_SPRITE_TOOL_FONT_RENDER_H

#include <string>
#include <vector>

#include "picture.h"

namespace kvt_sprite {

// The first and last characters of a sprite font; frame 0 is the space.
constexpr int kFirstCharacter = 32;
constexpr int kLastCharacter = 126;

// Renders the characters 32 to 126 of a TrueType font at `size` points,
// one frame each: as wide as the character's advance and as tall as the
// font's line, anchored at (0, 0), white ink on clear, without
// antialiasing. False, with the reason in `*error`, when the font cannot
// be opened or a character cannot be rendered.
bool RenderFont(const std::string &fontPath, int size, std::vector<Picture> *glyphs,
                std::string *error);

// Where a glyph's ink starts in its frame. The ink stays `bearing`
// columns from the pen, as the font places it, as long as it fits inside
// the advance; ink that would stick out on one side is moved in, so that
// no glyph loses a column to its neighbour's frame, and ink wider than
// the advance keeps its left part.
int InkStart(int bearing, int inkWidth, int advance);

} // namespace kvt_sprite

#endif
