#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/lines.h>
#include <kvt/draw/internal/line_paths.h>

#include "support/expected.h"
#include "support/surface_pair.h"
#include "support/surfaces.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::Rect;

namespace {

const KVT_RGBA kColour = {250, 20, 160, 7};

void Horz(SDL_Surface *s, int x, int y, int length, int, KVT_RGBA c)
{
    KVT_HorzLine(s, Sint16(x), Sint16(y), Sint16(length), c);
}
void Vert(SDL_Surface *s, int x, int y, int length, int, KVT_RGBA c)
{
    KVT_VertLine(s, Sint16(x), Sint16(y), Sint16(length), c);
}

// A solid shape on a 20x20 surface and the rectangles it should paint.
struct ShapeCase {
    const char *what;
    void (*draw)(SDL_Surface *, int, int, int, int, KVT_RGBA);
    int a, b, c, d;
    std::vector<SDL_Rect> painted;
};

const ShapeCase kShapes[] = {
    {"horz x 5 length 3", Horz, 5, 3, 3, 0, {Rect(5, 3, 3, 1)}},
    {"horz x 5 length -3 leaves x 5", Horz, 5, 3, -3, 0, {Rect(2, 3, 3, 1)}},
    {"horz cut at the left edge", Horz, -3, 0, 10, 0, {Rect(0, 0, 7, 1)}},
    {"horz wholly left of the surface", Horz, -3, 0, 3, 0, {}},
    {"horz stops at the last column", Horz, 17, 19, 10, 0, {Rect(17, 19, 3, 1)}},
    {"horz from x = w", Horz, 20, 1, 5, 0, {}},
    {"horz at y = h", Horz, 2, 20, 5, 0, {}},
    {"horz length -32768 wraps to the columns left of x", Horz, 10, 2, -32768, 0,
     {Rect(0, 2, 10, 1)}},
    {"horz far end sum does not wrap", Horz, 5, 6, 32767, 0, {Rect(5, 6, 15, 1)}},
    {"vert y 5 length -3 leaves y 5", Vert, 3, 5, -3, 0, {Rect(3, 2, 1, 3)}},
    {"vert stops at the last row", Vert, 19, 17, 10, 0, {Rect(19, 17, 1, 3)}},
    {"vert at x = -1", Vert, -1, 2, 5, 0, {}},
    {"vert at x = w", Vert, 20, 2, 5, 0, {}},
    {"line (0,0)-(5,0) leaves out x 5", KVT_Line, 0, 0, 5, 0, {Rect(0, 0, 5, 1)}},
    {"line (5,0)-(0,0) leaves out x 5", KVT_Line, 5, 0, 0, 0, {Rect(0, 0, 5, 1)}},
    {"line (3,6)-(3,1) leaves out y 6", KVT_Line, 3, 6, 3, 1, {Rect(3, 1, 1, 5)}},
    {"line with equal ends", KVT_Line, 4, 4, 4, 4, {}},
    {"rect outline", KVT_Rect, 2, 3, 6, 4,
     {Rect(2, 3, 6, 1), Rect(2, 6, 6, 1), Rect(2, 3, 1, 4), Rect(7, 3, 1, 4)}},
    {"rect of width 1", KVT_Rect, 4, 2, 1, 5, {Rect(4, 2, 1, 5)}},
    {"rect of height 1", KVT_Rect, 1, 6, 7, 1, {Rect(1, 6, 7, 1)}},
    {"rect of width 0 keeps columns x and x-1", KVT_Rect, 5, 2, 0, 4,
     {Rect(5, 2, 1, 4), Rect(4, 2, 1, 4)}},
    {"fill w above 65535 uses its low 16 bits", KVT_FillRect, 2, 1, 65539, 2, {Rect(2, 1, 3, 2)}},
    {"fill h above 65535 uses its low 16 bits", KVT_FillRect, 0, 4, 2, 65541, {Rect(0, 4, 2, 5)}},
    {"fill off the top left corner", KVT_FillRect, -2, -1, 5, 3, {Rect(0, 0, 3, 2)}},
};

class LinesTest : public ::testing::TestWithParam<FormatCase> {};

TEST_P(LinesTest, SolidShapesPaintExactlyTheirPixels)
{
    for (const ShapeCase &c : kShapes) {
        // KVT_FillRect is SDL_FillRect, which stores whole pixels and so
        // wants the aligned rows of SDL's own surfaces: a 32-bit MIPS has
        // no unaligned stores.
        GuardedSurface s(GetParam(), 20, 20, 4);
        std::mt19937 rng(2);
        s.FillRandom(rng);
        kvt_test::ExpectedPixels want(s);
        for (const SDL_Rect &r : c.painted)
            want.Fill(r, SDL_MapRGB(s.get()->format, kColour.r, kColour.g, kColour.b));
        c.draw(s, c.a, c.b, c.c, c.d, kColour);
        EXPECT_EQ("", want.Differences(s)) << c.what;
    }
}

// A line leaving the surface is cut where it crosses the edge, keeping its
// slope up to the truncation of the division: it draws exactly as the
// piece between the cut points (worked out by hand) drawn on its own.
// Plots that fall off the surface vanish: on the 11x4 surface a stray
// write to row -1 or row 4 would land in the guard bytes. A line whose
// cut end falls off the surface has no piece: it draws as (0,0)-(0,0),
// which is nothing.
TEST_P(LinesTest, ClippedLinesDrawAsTheirCutPiece)
{
    const struct {
        const char *edge;
        int w, h, line[4], piece[4];
    } cases[] = {
        {"bottom, measured to row h", 50, 8, {0, 0, 40, 12}, {0, 0, 27, 7}},
        {"top", 50, 20, {5, -4, 45, 8}, {18, 0, 45, 8}},
        {"left", 40, 20, {-20, 1, 30, 11}, {0, 5, 30, 11}},
        {"right, measured to column w", 40, 20, {2, 3, 42, 19}, {2, 3, 39, 19}},
        {"all four", 40, 20, {-20, -4, 70, 26}, {0, 2, 39, 15}},
        {"all four, reversed", 40, 20, {70, 26, -20, -4}, {0, 2, 39, 15}},
        {"rising across all four", 40, 20, {-10, 25, 50, -5}, {0, 19, 39, 0}},
        {"last companion on row -1", 11, 4, {0, 3, 10, 0}, {0, 3, 10, 0}},
        {"last companion on row h", 11, 4, {0, 0, 10, 3}, {0, 0, 10, 3}},
        {"left, entering at row h draws nothing", 40, 20, {-60, -29, 2, 21}, {0, 0, 0, 0}},
    };
    for (const auto &c : cases) {
        kvt_test::SurfacePair pair(GetParam(), c.w, c.h, 6);
        KVT_Line(pair.actual, c.line[0], c.line[1], c.line[2], c.line[3], kColour);
        KVT_Line(pair.expected, c.piece[0], c.piece[1], c.piece[2], c.piece[3], kColour);
        EXPECT_EQ("", pair.Difference()) << "cut at the " << c.edge;
    }
}

// KVT_Line must blend byte for byte as one KVT_SetPixelAlpha per plot, for
// lines inside, across and outside the surface, some with end points far
// out in the 32-bit range.
TEST_P(LinesTest, LineMatchesPlainPlotting)
{
    kvt_test::SurfacePair pair(GetParam(), 23, 17, 4);
    std::mt19937 rng(4);
    std::uniform_int_distribution<int> x(-30, 53), y(-25, 42), byte(0, 255), pick(0, 19);
    std::uniform_int_distribution<int> far(-2000000000, 2000000000);
    for (int i = 0; i < 400; ++i) {
        int e[4] = {x(rng), y(rng), x(rng), y(rng)};
        if (pick(rng) == 0)
            e[pick(rng) % 4] = far(rng);
        KVT_RGBA c = KVT_RGB(Uint8(byte(rng)), Uint8(byte(rng)), Uint8(byte(rng)), 0);
        kvt::LinePlain(pair.expected, e[0], e[1], e[2], e[3], c);
        KVT_Line(pair.actual, e[0], e[1], e[2], e[3], c);
        ASSERT_EQ("", pair.Difference())
            << "line " << i << " (" << e[0] << "," << e[1] << ")-(" << e[2] << "," << e[3] << ")";
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, LinesTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

// Worked alphas, checked through the blend over a known background on
// surfaces whose channels read back exactly.
class LineAlphaTest : public ::testing::TestWithParam<FormatCase> {};

struct Plot {
    int x, y, alpha;
};

TEST_P(LineAlphaTest, WorkedLinesPlotTheirAlphasFromEitherEnd)
{
    const KVT_RGBA back = {10, 200, 90, 0};
    const std::vector<Plot> shallow = {{0, 0, 0},   {1, 0, 77}, {1, 1, 178}, {2, 0, 154},
                                       {2, 1, 101}, {3, 0, 230}, {3, 1, 25},  {4, 1, 52},
                                       {4, 2, 203}, {10, 3, 3},  {10, 4, 252}};
    std::vector<Plot> diagonal = {{0, 0, 0}};
    for (int k = 1; k <= 5; ++k)
        diagonal.insert(diagonal.end(), {{k, k, k}, {k + 1, k, 255 - k}});
    const struct {
        int x2, y2;
        const std::vector<Plot> &plots;
        bool transposed;
    } cases[] = {{10, 3, shallow, false}, {3, 10, shallow, true}, {5, 5, diagonal, false}};
    for (const auto &c : cases) {
        GuardedSurface forward(GetParam(), 16, 16), reverse(GetParam(), 16, 16);
        forward.FillColour(back.r, back.g, back.b);
        reverse.FillColour(back.r, back.g, back.b);
        KVT_Line(forward, 0, 0, c.x2, c.y2, kColour);
        KVT_Line(reverse, c.x2, c.y2, 0, 0, kColour);
        EXPECT_EQ("", kvt_test::FirstDifference(forward, reverse)) << "reversed to " << c.x2;
        for (const Plot &p : c.plots) {
            KVT_RGBA got = kvt_test::ReadColour(forward, c.transposed ? p.y : p.x,
                                                c.transposed ? p.x : p.y);
            auto blend = [&](int col, int old) { return (col * (255 - p.alpha) + old * p.alpha) >> 8; };
            EXPECT_TRUE(got.r == blend(kColour.r, back.r) && got.g == blend(kColour.g, back.g) &&
                        got.b == blend(kColour.b, back.b))
                << "line to (" << c.x2 << "," << c.y2 << "): plot " << p.x << "," << p.y
                << " not at alpha " << p.alpha << (c.transposed ? " (axes exchanged)" : "");
        }
    }
    GuardedSurface s(GetParam(), 8, 8);
    s.FillColour(0, 0, 0);
    KVT_Line(s, 0, 0, 7, 3, KVT_RGB(255, 255, 255, 0));
    EXPECT_EQ(254, kvt_test::ReadColour(s, 0, 0).g) << "a white line starts at alpha 0";
}

INSTANTIATE_TEST_SUITE_P(EightBitChannels, LineAlphaTest,
                         ::testing::ValuesIn(kvt_test::EightBitChannelFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
