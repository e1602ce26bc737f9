#include "support/surface_pair.h"

#include <random>

#include "support/expected.h"

namespace kvt_test {

SurfacePair::SurfacePair(const FormatCase &format, int width, int height, unsigned seed,
                         int rowPadding)
    : actual(format, width, height, rowPadding), expected(format, width, height, rowPadding)
{
    std::mt19937 first(seed), second(seed);
    actual.FillRandom(first);
    expected.FillRandom(second);
}

void SurfacePair::Settle() { ExpectedPixels(actual).WriteTo(expected); }

} // namespace kvt_test
