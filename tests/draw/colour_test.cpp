#include <array>
#include <random>

#include <gtest/gtest.h>

#include <kvt/draw/colour.h>

#include "support/surfaces.h"

using kvt_test::FormatCase;

namespace {

using Channels = std::array<int, 3>;

// How the inline form and SDL each read pixel value v.
std::pair<Channels, Channels> Splits(const SDL_PixelFormat *format, Uint32 v)
{
    Uint8 r, g, b, sr, sg, sb;
    kvt::ColourForm(format).Split(v, &r, &g, &b);
    SDL_GetRGB(v, const_cast<SDL_PixelFormat *>(format), &sr, &sg, &sb);
    return {{r, g, b}, {sr, sg, sb}};
}

class ColourFormTest : public ::testing::TestWithParam<FormatCase> {};

// The inline colour form against SDL itself: every pixel value and every
// colour where a format has 16 bits, a large random sample of values and
// colours where it has 24 or 32.
TEST_P(ColourFormTest, SplitAndMapMatchSdl)
{
    kvt_test::GuardedSurface surface(GetParam(), 1, 1);
    SDL_PixelFormat *format = surface.get()->format;
    const kvt::ColourForm form(format);
    ASSERT_TRUE(form.Direct()) << "no inline form for this format";
    const bool exhaustive = GetParam().bitsPerPixel == 16;
    std::mt19937 rng(99);
    for (Uint32 i = 0, count = exhaustive ? 0x10000 : 1u << 20; i < count; ++i) {
        const Uint32 v = exhaustive ? i : Uint32(rng());
        const auto split = Splits(format, v);
        ASSERT_EQ(split.second, split.first) << "split of 0x" << std::hex << v;
    }
    for (Uint32 i = 0, count = exhaustive ? 1u << 24 : 1u << 20; i < count; ++i) {
        const Uint32 rgb = exhaustive ? i : Uint32(rng());
        const Uint8 r = Uint8(rgb >> 16), g = Uint8(rgb >> 8), b = Uint8(rgb);
        ASSERT_EQ(SDL_MapRGB(format, r, g, b), form.Map(r, g, b))
            << "colour (" << int(r) << ", " << int(g) << ", " << int(b) << ")";
    }
}

std::vector<FormatCase> ColourFormats()
{
    std::vector<FormatCase> formats = kvt_test::TrueColourFormats();
    formats.insert(formats.end(), kvt_test::MoreFormats().begin(), kvt_test::MoreFormats().end());
    return formats;
}

INSTANTIATE_TEST_SUITE_P(Formats, ColourFormTest, ::testing::ValuesIn(ColourFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

// A palette index reads as its palette entry, as SDL reads it.
TEST(ColourFormPalette, SplitReadsThePaletteEntry)
{
    kvt_test::GuardedSurface surface(kvt_test::AllFormats()[0], 1, 1);
    for (Uint32 index = 0; index < 256; ++index) {
        const auto split = Splits(surface.get()->format, index);
        ASSERT_EQ(split.second, split.first) << "palette index " << index;
    }
}

} // namespace
