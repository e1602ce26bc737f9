#include <random>
#include <sstream>

#include <gtest/gtest.h>

#include <kvt/draw/colour.h>

#include "support/surfaces.h"

using kvt_test::FormatCase;

namespace {

// The inline colour form against SDL itself: every pixel value and every
// colour where a format has 16 bits, a large random sample of values and
// colours where it has 24 or 32.
class ColourFormTest : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        kvt_test::GuardedSurface surface(GetParam(), 1, 1);
        format_ = *surface.get()->format;
        ASSERT_TRUE(kvt::ColourForm(&format_).Direct()) << "no inline form for this format";
    }
    bool Exhaustive() const { return GetParam().bitsPerPixel == 16; }

    // "" when form and SDL split v alike, else what differs.
    std::string SplitDiffers(const kvt::ColourForm &form, Uint32 v)
    {
        Uint8 r, g, b, sr, sg, sb;
        form.Split(v, &r, &g, &b);
        SDL_GetRGB(v, &format_, &sr, &sg, &sb);
        if (r == sr && g == sg && b == sb)
            return "";
        std::ostringstream out;
        out << "split of 0x" << std::hex << v << std::dec << " gives (" << int(r) << ", " << int(g)
            << ", " << int(b) << "), SDL (" << int(sr) << ", " << int(sg) << ", " << int(sb) << ")";
        return out.str();
    }

    SDL_PixelFormat format_;
};

TEST_P(ColourFormTest, SplitMatchesSdl)
{
    const kvt::ColourForm form(&format_);
    std::mt19937 rng(99);
    const Uint32 count = Exhaustive() ? 0x10000 : 1u << 20;
    for (Uint32 i = 0; i < count; ++i) {
        const Uint32 v = Exhaustive() ? i : Uint32(rng());
        ASSERT_EQ("", SplitDiffers(form, v));
    }
}

TEST_P(ColourFormTest, MapMatchesSdl)
{
    const kvt::ColourForm form(&format_);
    std::mt19937 rng(17);
    const Uint32 count = Exhaustive() ? 1u << 24 : 1u << 20;
    for (Uint32 i = 0; i < count; ++i) {
        const Uint32 rgb = Exhaustive() ? i : Uint32(rng());
        const Uint8 r = Uint8(rgb >> 16), g = Uint8(rgb >> 8), b = Uint8(rgb);
        ASSERT_EQ(SDL_MapRGB(&format_, r, g, b), form.Map(r, g, b))
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
    const SDL_PixelFormat *format = surface.get()->format;
    const kvt::ColourForm form(format);
    for (Uint32 index = 0; index < 256; ++index) {
        Uint8 r, g, b, sr, sg, sb;
        form.Split(index, &r, &g, &b);
        SDL_GetRGB(index, format, &sr, &sg, &sb);
        ASSERT_TRUE(r == sr && g == sg && b == sb) << "palette index " << index;
    }
}

} // namespace
