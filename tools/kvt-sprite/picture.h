#ifndef KVT_SPRITE_TOOL_PICTURE_H
#define KVT_SPRITE_TOOL_PICTURE_H

// One frame as the tool handles it between files: pixels as 0xRRGGBB, or
// kClear where the frame is transparent, with the anchor and tag that go
// into the frame record.

#include <vector>

#include <SDL.h>

namespace kvt_sprite {

// Not a colour: the top byte of a real pixel is always 0.
constexpr Uint32 kClear = 0xFFFFFFFFu;

struct Picture {
    int width = 0;
    int height = 0;
    Sint16 hotX = 0;
    Sint16 hotY = 0;
    Uint16 tag = 0;
    std::vector<Uint32> pixels; // width * height, row by row

    Uint32 At(int x, int y) const { return pixels[size_t(y) * size_t(width) + size_t(x)]; }
};

} // namespace kvt_sprite

#endif
