#include <sstream>

#include <gtest/gtest.h>

#include <kvt/draw/double_blit.h>
#include <kvt/draw/internal/double_blit_paths.h>
#include <kvt/draw/pixel.h>

#include "support/surface_pair.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::ReadColour;

namespace {

// Colours on both sides of the transparency limits.
const KVT_RGBA kNearKey[] = {KVT_RGB(255, 0, 255, 0), KVT_RGB(246, 9, 246, 0),
                             KVT_RGB(250, 4, 251, 0), KVT_RGB(245, 0, 255, 0),
                             KVT_RGB(255, 10, 255, 0), KVT_RGB(255, 0, 245, 0)};

void Set(SDL_Surface *s, int x, int y, KVT_RGBA c)
{
    KVT_SetPixel(s, Sint16(x), Sint16(y), c.r, c.g, c.b);
}

class DoubleBlitFormats : public ::testing::TestWithParam<FormatCase> {};

// Random sources (a third of their pixels at or near the key colour) on
// random targets of every format, at positions that fit or just miss:
// the fast blit must write exactly the plain one's bytes.
TEST_P(DoubleBlitFormats, FastEqualsPlainOnEveryTargetFormat)
{
    std::mt19937 rng(321);
    for (const FormatCase &targetFormat : kvt_test::AllFormats()) {
        for (int trial = 0; trial < 12; ++trial) {
            const int w = 1 + int(rng() % 9), h = 1 + int(rng() % 6);
            GuardedSurface source(GetParam(), w, h);
            source.FillRandom(rng);
            for (int i = 0; i < w * h; ++i)
                if (rng() % 3 == 0)
                    Set(source, i % w, i / w, kNearKey[rng() % 6]);
            const int tw = 2 * w + int(rng() % 5), th = 2 * h + int(rng() % 4);
            kvt_test::SurfacePair pair(targetFormat, tw, th, unsigned(rng()));
            const int x = int(rng() % unsigned(tw - 2 * w + 2));
            const int y = int(rng() % unsigned(th - 2 * h + 2));
            kvt::DoubleSizeBlitPlain(source, pair.expected, x, y);
            KVT_DoubleSizeBlit(source, pair.actual, x, y);
            ASSERT_EQ("", pair.Difference())
                << kvt_test::FormatName(GetParam()) << " " << w << "x" << h << " onto "
                << kvt_test::FormatName(targetFormat) << " " << tw << "x" << th << " at (" << x
                << ", " << y << ")";
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, DoubleBlitFormats, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

// The rules themselves, on 8-bit channels where colours pass exactly, for
// both forms of the blit.
struct Blit {
    const char *name;
    void (*blit)(SDL_Surface *, SDL_Surface *, int, int);
};

void PrintTo(const Blit &blit, std::ostream *out) { *out << blit.name; }

class DoubleBlitRules : public ::testing::TestWithParam<Blit> {
protected:
    const FormatCase &kFormat = kvt_test::AllFormats()[5]; // XRGB32

    // A target whose every pixel has its own colour, not in a straight
    // ramp, so that a mean never equals the pixel between.
    void Paint(SDL_Surface *target)
    {
        for (int y = 0; y < target->h; ++y)
            for (int x = 0; x < target->w; ++x)
                Set(target, x, y,
                    KVT_RGB(Uint8(13 + 20 * x + 9 * y * y), Uint8(7 + 30 * y + 5 * x * x), 100, 0));
    }
    // A source with the given colours, row by row.
    void Fill(SDL_Surface *source, std::initializer_list<KVT_RGBA> colours)
    {
        int i = 0;
        for (KVT_RGBA c : colours) {
            Set(source, i % source->w, i / source->w, c);
            ++i;
        }
    }
};

std::string Show(KVT_RGBA c)
{
    std::ostringstream out;
    out << "(" << int(c.r) << ", " << int(c.g) << ", " << int(c.b) << ")";
    return out.str();
}

KVT_RGBA Mean(KVT_RGBA a, KVT_RGBA b)
{
    return KVT_RGB(Uint8((a.r + b.r) >> 1), Uint8((a.g + b.g) >> 1), Uint8((a.b + b.b) >> 1), 0);
}

// A 3 x 2 source fits the 12 x 10 target at (6, 6) but not one pixel
// further; where it fits, only the doubled area bar its last row and
// column changes, and the last source pixel lands at its corner.
TEST_P(DoubleBlitRules, WritesOnlyTheDoubledAreaBarItsLastRowAndColumnWhereItFits)
{
    struct Case {
        int x, y, w, h;
        bool drawn;
    } const cases[] = {{2, 3, 1, 1, true},   {2, 3, 3, 1, true},   {2, 3, 1, 3, true},
                       {2, 3, 3, 2, true},   {6, 6, 3, 2, true},   {7, 0, 3, 2, false},
                       {0, 7, 3, 2, false},  {-1, 0, 3, 2, false}, {0, -1, 3, 2, false}};
    for (const Case &c : cases) {
        GuardedSurface source(kFormat, c.w, c.h), target(kFormat, 12, 10);
        source.FillColour(40, 50, 60);
        Paint(target);
        const std::vector<Uint8> before = target.PixelBytes();
        GetParam().blit(source, target, c.x, c.y);
        const SDL_Rect area = {Sint16(c.x), Sint16(c.y), Uint16(c.drawn ? 2 * c.w - 1 : 0),
                               Uint16(2 * c.h - 1)};
        const std::string what = std::to_string(c.w) + "x" + std::to_string(c.h) + " at (" +
                                 std::to_string(c.x) + ", " + std::to_string(c.y) + ")";
        EXPECT_EQ("", kvt_test::ChangedOutside(target, before, area)) << what;
        if (c.drawn) {
            const KVT_RGBA last = ReadColour(target, c.x + 2 * c.w - 2, c.y + 2 * c.h - 2);
            EXPECT_EQ("(40, 50, 60)", Show(last)) << what << ": last source pixel";
        }
    }
}

TEST_P(DoubleBlitRules, TransparencyLimits)
{
    const bool transparent[] = {true, true, true, false, false, false};
    for (int i = 0; i < 6; ++i) {
        GuardedSurface source(kFormat, 1, 1), target(kFormat, 6, 6);
        Fill(source, {kNearKey[i]});
        Paint(target);
        const KVT_RGBA behind = ReadColour(target, 2, 2);
        GetParam().blit(source, target, 2, 2);
        EXPECT_EQ(Show(transparent[i] ? behind : kNearKey[i]), Show(ReadColour(target, 2, 2)))
            << "source colour " << Show(kNearKey[i]);
    }
}

// Two source pixels side by side, each opaque or transparent: the even
// columns take the source or the target's own pixel, the odd column the
// mean of whatever stood in for its neighbours.
TEST_P(DoubleBlitRules, NeighboursOfTheOddColumn)
{
    const KVT_RGBA key = kNearKey[0], left = KVT_RGB(255, 255, 0, 0), right = KVT_RGB(0, 0, 255, 0);
    struct Case {
        const char *what;
        bool leftClear, rightClear;
    } const cases[] = {{"both opaque", false, false},
                       {"transparent left", true, false},
                       {"transparent right", false, true},
                       {"both transparent", true, true}};
    for (const Case &c : cases) {
        GuardedSurface source(kFormat, 2, 1), target(kFormat, 8, 4);
        Fill(source, {c.leftClear ? key : left, c.rightClear ? key : right});
        Paint(target);
        const KVT_RGBA even0 = c.leftClear ? ReadColour(target, 1, 1) : left;
        const KVT_RGBA odd = c.leftClear ? ReadColour(target, 2, 1) : left;
        const KVT_RGBA even1 = c.rightClear ? ReadColour(target, 3, 1) : right;
        GetParam().blit(source, target, 1, 1);
        EXPECT_EQ(Show(even0), Show(ReadColour(target, 1, 1))) << c.what;
        EXPECT_EQ(Show(Mean(odd, even1)), Show(ReadColour(target, 2, 1))) << c.what;
        EXPECT_EQ(Show(even1), Show(ReadColour(target, 3, 1))) << c.what;
    }
    GuardedSurface source(kFormat, 2, 1), target(kFormat, 8, 4);
    Fill(source, {left, right});
    GetParam().blit(source, target, 1, 1);
    EXPECT_EQ("(127, 127, 127)", Show(ReadColour(target, 2, 1))) << "the mean of 255 and 0";
}

// Pass 2 blends the even rows as they stand on the target, so a wholly
// transparent source leaves the background softened, not untouched.
TEST_P(DoubleBlitRules, OddRowsAreMeansOfTheTargetRows)
{
    GuardedSurface source(kFormat, 2, 2), target(kFormat, 8, 8);
    Fill(source, {kNearKey[0], kNearKey[1], kNearKey[2], kNearKey[0]});
    Paint(target);
    auto at = [&](int x, int y) { return ReadColour(target, x, y); };
    const KVT_RGBA left = Mean(at(1, 1), at(1, 3));
    const KVT_RGBA middle = Mean(Mean(at(2, 1), at(3, 1)), Mean(at(2, 3), at(3, 3)));
    const KVT_RGBA right = Mean(at(3, 1), at(3, 3));
    GetParam().blit(source, target, 1, 1);
    EXPECT_EQ(Show(left), Show(at(1, 2))) << "first column";
    EXPECT_EQ(Show(middle), Show(at(2, 2))) << "odd column";
    EXPECT_EQ(Show(right), Show(at(3, 2))) << "last column";
}

const Blit kBlits[] = {{"Fast", KVT_DoubleSizeBlit}, {"Plain", kvt::DoubleSizeBlitPlain}};
INSTANTIATE_TEST_SUITE_P(BothForms, DoubleBlitRules, ::testing::ValuesIn(kBlits),
                         [](const auto &info) { return std::string(info.param.name); });

// Only colours pass between the surfaces: a 5-6-5 source on a 24-bit
// target lands as SDL reads it.
TEST(DoubleBlitDepths, ColoursCrossFormats)
{
    GuardedSurface source(kvt_test::AllFormats()[1], 2, 1), target(kvt_test::AllFormats()[3], 4, 2);
    Set(source, 0, 0, KVT_RGB(200, 100, 50, 0));
    Set(source, 1, 0, KVT_RGB(3, 250, 77, 0));
    target.FillColour(0, 0, 0);
    KVT_DoubleSizeBlit(source, target, 0, 0);
    EXPECT_EQ(Show(ReadColour(source, 0, 0)), Show(ReadColour(target, 0, 0)));
    EXPECT_EQ(Show(ReadColour(source, 1, 0)), Show(ReadColour(target, 2, 0)));
}

} // namespace
