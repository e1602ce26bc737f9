#ifndef KVT_DRAW_INTERNAL_SPAN_H
#define KVT_DRAW_INTERNAL_SPAN_H

// Clipping of a straight run of pixels along one axis, shared by the solid
// lines and the shaded ones. Both take 16-bit arguments and wrap the sums
// that turn a leftward run into a rightward one; they differ only in
// whether the end test and the cut at the far edge wrap too (the shaded
// lines keep all their arithmetic in 16 bits, the solid ones do not).

#include <SDL.h>

namespace kvt {

enum class SpanSums { Wrap16, Exact };

// A run of `count` pixels starting at `start`, both already on the axis.
struct Span {
    int start;
    int count;
};

// Cuts the run that begins at `at` and goes over `length` pixels (leftwards
// for a negative length, without `at` itself) to [0, limit). False when no
// pixel is left.
inline bool ClipSpan(Sint16 at, Sint16 length, int limit, SpanSums sums, Span *out)
{
    if (length < 0) {
        at = Sint16(at + length);
        length = Sint16(-length);
    }
    if (at < 0) {
        length = Sint16(length + at);
        at = 0;
    }
    int end = sums == SpanSums::Wrap16 ? Sint16(at + length) : at + length;
    if (end < 0 || at >= limit)
        return false;
    int count = end >= limit ? limit - at : length;
    // After the cuts above a negative count cannot arise; testing <= 0
    // keeps the division of the ramps safe all the same.
    if (count <= 0)
        return false;
    out->start = at;
    out->count = count;
    return true;
}

} // namespace kvt

#endif
