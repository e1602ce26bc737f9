#ifndef KVT_TESTS_SUPPORT_THEME_H
#define KVT_TESTS_SUPPORT_THEME_H

// A theme whose seven colours differ from each other at every format of
// AllFormats(), the 3-3-2 palette included, so that a test can tell which
// frame a widget painted and that it painted one at all.

#include <kvt/ui/core/theme.h>

namespace kvt_test {

// activeFirst red, activeLast green, restFirst blue, restLast white, face
// yellow with alpha 0 (a face fill gives the face colour itself), middles
// from RepackColor, no background tile.
CUITheme DistinctTheme();

} // namespace kvt_test

#endif
