#ifndef KVT_TESTS_SUPPORT_SURFACE_PAIR_H
#define KVT_TESTS_SUPPORT_SURFACE_PAIR_H

// A widget's picture beside the picture a test expects of it: two guarded
// surfaces of one format on the same random background. The widget draws
// on `actual`; the test paints `expected` with the drawing primitives, or
// copies `actual` over once it has checked it (Settle) and then paints
// only what the next message should change.

#include <string>

#include "support/surfaces.h"

namespace kvt_test {

class SurfacePair {
public:
    // SDL's own blits (sprites, saved regions) want a pitch of whole
    // pixels: tests that use them pass a rowPadding of 4.
    SurfacePair(const FormatCase &format, int width, int height, unsigned seed = 7,
                int rowPadding = 5);

    GuardedSurface actual, expected;

    // `expected` becomes a copy of `actual`.
    void Settle();
    // "" when both hold the same pixels and no guard byte changed;
    // otherwise the first pixel that differs.
    std::string Difference() const { return FirstDifference(actual, expected); }
};

} // namespace kvt_test

#endif
