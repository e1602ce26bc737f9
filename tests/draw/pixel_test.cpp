#include <gtest/gtest.h>

#include <kvt/draw/pixel.h>

#include "support/expected.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::ReadColour;

namespace {

class PixelTest : public ::testing::TestWithParam<FormatCase> {};

// Maps a colour and back, as the surface can hold it.
KVT_RGBA Representable(SDL_Surface *s, Uint8 r, Uint8 g, Uint8 b)
{
    KVT_RGBA c = {0, 0, 0, 0};
    SDL_GetRGB(SDL_MapRGB(s->format, r, g, b), s->format, &c.r, &c.g, &c.b);
    return c;
}

// (6, 4) is the last pixel; without row padding a 3-byte pixel there ends
// at the very last byte of the pixel memory, right before the guard.
TEST_P(PixelTest, SetThenGetGivesTheMappedColour)
{
    GuardedSurface s(GetParam(), 7, 5, /*rowPadding=*/0);
    s.FillColour(0, 0, 0);
    const std::vector<Uint8> before = s.PixelBytes();
    const Uint8 samples[][3] = {{255, 255, 255}, {200, 100, 50}, {1, 2, 3}, {255, 0, 255}};
    for (const auto &c : samples) {
        KVT_SetPixel(s, 6, 4, c[0], c[1], c[2]);
        Uint8 r = 9, g = 9, b = 9;
        KVT_GetPixel(s, 6, 4, &r, &g, &b);
        KVT_RGBA want = Representable(s, c[0], c[1], c[2]);
        EXPECT_TRUE(want.r == r && want.g == g && want.b == b)
            << "(" << int(c[0]) << ", " << int(c[1]) << ", " << int(c[2]) << ") read as ("
            << int(r) << ", " << int(g) << ", " << int(b) << ")";
    }
    KVT_SetPixelAlpha(s, 6, 4, 0, 0, 0, 128);
    EXPECT_EQ("", kvt_test::ChangedOutside(s, before, SDL_Rect{6, 4, 1, 1}));
}

TEST_P(PixelTest, NothingHappensOutsideTheSurface)
{
    GuardedSurface s(GetParam(), 6, 4);
    std::mt19937 rng(7);
    s.FillRandom(rng);
    std::vector<Uint8> before = s.PixelBytes();
    const int outside[][2] = {{-1, 0}, {0, -1}, {6, 0}, {0, 4}, {-32768, 2}, {32767, 32767}};
    for (const auto &p : outside) {
        KVT_SetPixel(s, Sint16(p[0]), Sint16(p[1]), 1, 2, 3);
        KVT_SetPixelAlpha(s, Sint16(p[0]), Sint16(p[1]), 1, 2, 3, 0);
        Uint8 r = 11, g = 22, b = 33;
        KVT_GetPixel(s, Sint16(p[0]), Sint16(p[1]), &r, &g, &b);
        EXPECT_EQ(11, r);
        EXPECT_EQ(22, g);
        EXPECT_EQ(33, b);
    }
    EXPECT_EQ(before, s.PixelBytes());
    EXPECT_TRUE(s.GuardsIntact());
}

TEST_P(PixelTest, AlphaWeighsTheOldPixel)
{
    GuardedSurface s(GetParam(), 4, 4);
    s.FillColour(100, 100, 100);
    KVT_RGBA old = ReadColour(s, 0, 0);
    const int alphas[] = {0, 1, 127, 128, 254, 255};
    for (int a : alphas) {
        s.FillColour(100, 100, 100);
        KVT_SetPixelAlpha(s, 1, 1, 200, 40, 255, Uint8(a));
        KVT_RGBA blended = {Uint8((200 * (255 - a) + old.r * a) >> 8),
                            Uint8((40 * (255 - a) + old.g * a) >> 8),
                            Uint8((255 * (255 - a) + old.b * a) >> 8), 0};
        KVT_RGBA want = Representable(s, blended.r, blended.g, blended.b);
        KVT_RGBA got = ReadColour(s, 1, 1);
        EXPECT_EQ(want.r, got.r) << "alpha " << a;
        EXPECT_EQ(want.g, got.g) << "alpha " << a;
        EXPECT_EQ(want.b, got.b) << "alpha " << a;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, PixelTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

// On a palette of fewer than 256 colours, an index past the last colour
// reads as black; the indices below it read as their palette entries.
TEST(ShortPalette, IndicesPastTheLastColourReadAsBlack)
{
    for (int colours : {1, 16, 200, 255}) {
        GuardedSurface s(kvt_test::AllFormats()[0], 4, 1);
        SDL_Palette &palette = *s.get()->format->palette;
        ASSERT_GT(palette.ncolors, colours);
        const int ownCount = palette.ncolors;
        palette.ncolors = colours;
        const int indices[] = {colours - 1, colours, colours + 1, 255};
        for (int i = 0; i < 4; ++i)
            static_cast<Uint8 *>(s.get()->pixels)[i] = Uint8(indices[i]);
        for (int i = 0; i < 4; ++i) {
            const SDL_Color black = {0, 0, 0, 0};
            const SDL_Color &want = indices[i] < colours ? palette.colors[indices[i]] : black;
            Uint8 r = 9, g = 9, b = 9;
            KVT_GetPixel(s, Sint16(i), 0, &r, &g, &b);
            EXPECT_TRUE(want.r == r && want.g == g && want.b == b)
                << "index " << indices[i] << " of " << colours << " colours read as (" << int(r)
                << ", " << int(g) << ", " << int(b) << ")";
        }
        palette.ncolors = ownCount;
    }
}

// Worked values on surfaces with eight bits per channel.
class EightBitChannels : public ::testing::TestWithParam<FormatCase> {};

TEST_P(EightBitChannels, BlendWorkedValues)
{
    GuardedSurface s(GetParam(), 2, 1);
    s.FillColour(100, 100, 100);
    KVT_SetPixelAlpha(s, 0, 0, 200, 200, 200, 128);
    EXPECT_EQ(149, ReadColour(s, 0, 0).r) << "(200*127 + 100*128) >> 8";

    s.FillColour(255, 255, 255);
    for (int a : {0, 77, 255}) {
        KVT_SetPixelAlpha(s, 1, 0, 255, 255, 255, Uint8(a));
        EXPECT_EQ(254, ReadColour(s, 1, 0).g) << "white over white at alpha " << a;
        s.FillColour(255, 255, 255);
    }

    s.FillColour(3, 0, 1);
    for (int step = 0; step < 4; ++step)
        KVT_SetPixelAlpha(s, 0, 0, 250, 250, 250, 255);
    KVT_RGBA dark = ReadColour(s, 0, 0);
    EXPECT_EQ(0, dark.r) << "alpha 255 darkens by one step each time";
    EXPECT_EQ(0, dark.b);
}

INSTANTIATE_TEST_SUITE_P(TrueColour, EightBitChannels,
                         ::testing::ValuesIn(kvt_test::EightBitChannelFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
