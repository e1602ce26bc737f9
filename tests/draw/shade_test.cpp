#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/shade.h>
#include <kvt/draw/internal/shade_paths.h>

#include "support/expected.h"
#include "support/surface_pair.h"
#include "support/surfaces.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;

namespace {

constexpr int kSide = 20;
const KVT_RGBA kFirst = {200, 10, 90, 0}, kMiddle = {100, 100, 0, 0}, kLast = {0, 250, 91, 0};

// Pixel i of a ramp of n pixels, mapped for the surface.
Uint32 RampValue(SDL_Surface *s, KVT_RGBA first, KVT_RGBA last, int n, int i)
{
    auto c = [&](int f, int l) { return Uint8((f * (n - i) + l * i) / n); };
    return SDL_MapRGB(s->format, c(first.r, last.r), c(first.g, last.g), c(first.b, last.b));
}

// A whole ramp of n pixels from (x, y), one step (dx, dy) per pixel.
void PaintRamp(SDL_Surface *s, ExpectedPixels *want, int x, int y, int dx, int dy, int n,
               KVT_RGBA first, KVT_RGBA last)
{
    for (int i = 0; i < n; ++i)
        want->Set(x + i * dx, y + i * dy, RampValue(s, first, last, n, i));
}

class ShadeTest : public ::testing::TestWithParam<FormatCase> {};

// A shaded line at `across` from `at` over `length`; the ramp should cover
// [start, start + count), spread over those pixels. The square surface
// lets one table serve both axes.
const struct {
    const char *what;
    int at, across, length, start, count;
} kSpans[] = {
    {"rightwards", 5, 3, 4, 5, 4},
    {"leftwards puts first at the left end", 10, 0, -4, 6, 4},
    {"cut at the near edge spreads the ramp over the rest", -3, 0, 10, 0, 7},
    {"wholly before the near edge", -3, 0, 3, 0, 0},
    {"stops at the last pixel", 17, 5, 10, 17, 3},
    {"starts at the far edge", kSide, 1, 5, 0, 0},
    {"across at the far edge", 2, kSide, 5, 0, 0},
    {"single pixel is first alone", 4, 4, 1, 4, 1},
    {"far end sum wraps at 16 bits", 5, 6, 32767, 0, 0},
};

TEST_P(ShadeTest, ShadedLinesRampOverTheirClippedSpan)
{
    for (const auto &c : kSpans)
        for (bool horizontal : {true, false}) {
            GuardedSurface s(GetParam(), kSide, kSide);
            std::mt19937 rng(1);
            s.FillRandom(rng);
            ExpectedPixels want(s);
            if (horizontal) {
                PaintRamp(s, &want, c.start, c.across, 1, 0, c.count, kFirst, kLast);
                KVT_HorzLineShade(s, Sint16(c.at), Sint16(c.across), Sint16(c.length), kFirst, kLast);
            } else {
                PaintRamp(s, &want, c.across, c.start, 0, 1, c.count, kFirst, kLast);
                KVT_VertLineShade(s, Sint16(c.across), Sint16(c.at), Sint16(c.length), kFirst, kLast);
            }
            EXPECT_EQ("", want.Differences(s)) << c.what << (horizontal ? ", horizontal" : ", vertical");
        }
    GuardedSurface s(GetParam(), 6, 2);
    if (s.get()->format->Rloss != 0) // the worked reds need a whole byte of red
        return;
    KVT_HorzLineShade(s, 1, 1, 4, KVT_RGB(200, 0, 0, 0), KVT_RGB(0, 0, 0, 0));
    const int reds[] = {200, 150, 100, 50};
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(reds[i], kvt_test::ReadColour(s, 1 + i, 1).r) << "worked ramp, pixel " << i;
}

// The four lines in their order: top and bottom, then left and right,
// each later line winning the corners it shares.
TEST_P(ShadeTest, RectShadeDrawsFourRampsAndLeavesTheInside)
{
    const SDL_Rect rects[] = {kvt_test::Rect(2, 1, 6, 4), kvt_test::Rect(3, 2, 1, 5),
                              kvt_test::Rect(1, 3, 6, 1)};
    for (const SDL_Rect &r : rects) {
        GuardedSurface s(GetParam(), kSide, kSide);
        std::mt19937 rng(2);
        s.FillRandom(rng);
        ExpectedPixels want(s);
        PaintRamp(s, &want, r.x, r.y, 1, 0, r.w, kFirst, kMiddle);
        PaintRamp(s, &want, r.x, r.y + r.h - 1, 1, 0, r.w, kMiddle, kLast);
        PaintRamp(s, &want, r.x, r.y, 0, 1, r.h, kFirst, kMiddle);
        PaintRamp(s, &want, r.x + r.w - 1, r.y, 0, 1, r.h, kMiddle, kLast);
        KVT_RectShade(s, r.x, r.y, r.w, r.h, kFirst, kMiddle, kLast);
        EXPECT_EQ("", want.Differences(s)) << "rect " << r.w << "x" << r.h;
        EXPECT_EQ(SDL_MapRGB(s.get()->format, kMiddle.r, kMiddle.g, kMiddle.b),
                  kvt_test::ReadValue(s, r.x + r.w - 1, r.y))
            << "the top right corner is exactly the middle colour";
    }
}

// Random lines of every sign and position, fast on one surface of the
// pair and divided on the other, at sizes where the ramp gets long; with
// a palette of its own when one is given.
void CompareRamps(const FormatCase &format, const std::vector<SDL_Color> &palette)
{
    const int sizes[][2] = {{23, 17}, {700, 3}, {3, 700}};
    for (const auto &size : sizes) {
        kvt_test::SurfacePair pair(format, size[0], size[1], 3);
        GuardedSurface &plain = pair.expected, &fast = pair.actual;
        if (!palette.empty()) {
            SDL_SetColors(plain, const_cast<SDL_Color *>(palette.data()), 0, int(palette.size()));
            SDL_SetColors(fast, const_cast<SDL_Color *>(palette.data()), 0, int(palette.size()));
        }
        std::mt19937 rng(3);
        int longest = std::max(size[0], size[1]);
        std::uniform_int_distribution<int> at(-40, longest + 10), len(-longest - 50, longest + 50);
        std::uniform_int_distribution<int> byte(0, 255);
        for (int i = 0; i < 200; ++i) {
            Sint16 x = Sint16(at(rng)), y = Sint16(at(rng)), n = Sint16(len(rng));
            KVT_RGBA first = KVT_RGB(Uint8(byte(rng)), Uint8(byte(rng)), Uint8(byte(rng)), 0);
            KVT_RGBA last = KVT_RGB(Uint8(byte(rng)), Uint8(byte(rng)), Uint8(byte(rng)), 0);
            kvt::HorzLineShadePlain(plain, x, Sint16(y % size[1]), n, first, last);
            KVT_HorzLineShade(fast, x, Sint16(y % size[1]), n, first, last);
            kvt::VertLineShadePlain(plain, Sint16(x % size[0]), y, n, last, first);
            KVT_VertLineShade(fast, Sint16(x % size[0]), y, n, last, first);
            ASSERT_EQ("", pair.Difference())
                << "line " << i << " at " << x << "," << y << " length " << n;
        }
    }
}

TEST_P(ShadeTest, SteppedRampMatchesDividedRamp) { CompareRamps(GetParam(), {}); }

// Palettes whose nearest colours are irregular: random entries, a few
// colours repeated many times (ties go to the first), greys only, and
// clusters close together.
std::vector<std::vector<SDL_Color>> OddPalettes()
{
    std::mt19937 rng(11);
    std::uniform_int_distribution<int> byte(0, 255), few(0, 5), near(-6, 6);
    std::vector<std::vector<SDL_Color>> palettes(4, std::vector<SDL_Color>(256));
    auto colour = [](int r, int g, int b) { return SDL_Color{Uint8(r), Uint8(g), Uint8(b), 0}; };
    for (int i = 0; i < 256; ++i) {
        palettes[0][i] = colour(byte(rng), byte(rng), byte(rng));
        palettes[1][i] = colour(few(rng) * 51, few(rng) * 51, few(rng) * 51);
        const int grey = byte(rng);
        palettes[2][i] = colour(grey, grey, grey);
        palettes[3][i] = colour(128 + near(rng) * (i % 7), 128 + near(rng), 128 + near(rng) * 3);
    }
    return palettes;
}

// The 8-bit ramp skips the palette search over runs it can prove lie in
// one colour's reach; irregular palettes are where a wrong proof shows.
TEST(IndexedRamp, MatchesDividedRampOnOddPalettes)
{
    for (const auto &palette : OddPalettes())
        CompareRamps(kvt_test::AllFormats()[0], palette);
}

INSTANTIATE_TEST_SUITE_P(AllFormats, ShadeTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });
INSTANTIATE_TEST_SUITE_P(MoreFormats, ShadeTest, ::testing::ValuesIn(kvt_test::MoreFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
