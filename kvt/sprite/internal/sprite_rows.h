#ifndef KVT_SPRITE_INTERNAL_SPRITE_ROWS_H
#define KVT_SPRITE_INTERNAL_SPRITE_ROWS_H

// The packed rows of one frame, and the one walk over a row's runs that
// the reader (to check a row) and both decoders (to paint it) share, so
// that they cannot disagree on where a row ends.

#include <algorithm>
#include <cstddef>

#include <SDL.h>

namespace kvt {

// Where one row's words lie among the frame's words.
struct RowSpan {
    size_t first;
    size_t count;
};

// One frame's rows as read from the file; a view that owns nothing.
// `rows` has `height` entries.
struct FrameRuns {
    int width;
    int height;
    const Uint32 *words;
    const RowSpan *rows;
};

// A file word read as two's complement, without relying on how the
// compiler narrows an unsigned value that does not fit.
inline Sint64 AsSigned(Uint32 word)
{
    return word < 0x80000000u ? Sint64(word) : Sint64(word) - (Sint64(1) << 32);
}

// A pixel word holds 0xRRGGBB in its low 24 bits; the top byte is ignored.
inline Uint8 RedOf(Uint32 word) { return Uint8(word >> 16); }
inline Uint8 GreenOf(Uint32 word) { return Uint8(word >> 8); }
inline Uint8 BlueOf(Uint32 word) { return Uint8(word); }

// Walks the runs of one row from the left edge. For each run that shows
// pixels, calls clear(x, n) for n transparent pixels from column x, or
// literal(x, pixelWords, n) for n literal pixels; n is already cut at
// `width`, and a run that reaches the edge still uses up all its words.
// Answers false when the words run out before the runs cover `width`.
template <class Clear, class Literal>
bool WalkRow(const Uint32 *words, size_t count, int width, Clear &&clear, Literal &&literal)
{
    size_t used = 0;
    int x = 0;
    while (x < width) {
        if (used == count)
            return false;
        const Sint64 n = AsSigned(words[used++]);
        const Sint64 room = width - x;
        if (n < 0) {
            const int shown = int(std::min(-n, room));
            clear(x, shown);
            x += shown;
            continue;
        }
        if (Uint64(n) > count - used)
            return false;
        const int shown = int(std::min(n, room));
        literal(x, words + used, shown);
        used += size_t(n);
        x += shown;
    }
    return true;
}

} // namespace kvt

#endif
