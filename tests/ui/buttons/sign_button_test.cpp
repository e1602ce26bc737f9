#include <gtest/gtest.h>

#include <kvt/draw/pixel.h>
#include <kvt/ui/buttons/sign_button.h>

#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::SurfacePair;

namespace {

// Buttons sit at (3, 2) with a margin all round, so that a lost offset or
// a pixel outside the button shows.
constexpr int kLeft = 3, kTop = 2;

// The arrow of a button, worked out by hand: n lines, and the tip relative
// to the button's corner.
struct ArrowCase {
    const char *what;
    int width, height, sign, n, tipX, tipY;
};

const ArrowCase kArrows[] = {
    {"16x16 right, the worked example", 16, 16, 1, 5, 9, 8},
    {"16x16 up", 16, 16, 2, 5, 8, 5},
    {"16x16 left", 16, 16, 3, 5, 5, 8},
    {"16x16 down", 16, 16, 4, 5, 8, 9},
    {"odd sizes left", 17, 13, 3, 3, 7, 6},
    {"up, held by a short height", 15, 11, 2, 3, 7, 4},
    {"tall narrow right, held to width - 8", 20, 60, 1, 12, 15, 30},
    {"wide flat down, held to height - 8", 60, 20, 4, 12, 30, 15},
    {"height 8: a single pixel", 9, 8, 1, 1, 4, 4},
    {"height 7: no arrow", 20, 7, 1, 0, 0, 0},
    {"height 6: no arrow", 20, 6, 1, 0, 0, 0},
    {"width 8: no arrow", 8, 30, 1, 0, 0, 0},
    {"width 7: n below 0, no arrow", 7, 16, 1, 0, 0, 0},
    {"sign 0: face and frame alone", 16, 16, 0, 0, 0, 0},
    {"sign 5: face and frame alone", 16, 16, 5, 0, 0, 0},
};

// Line k of the triangle stands k steps back from the tip, against the
// arrow's direction, and reaches k pixels to each side of the centre line.
void PaintExpectedArrow(SDL_Surface *surface, const ArrowCase &a, KVT_RGBA colour)
{
    const int stepX[] = {0, -1, 0, 1, 0}, stepY[] = {0, 0, 1, 0, -1};
    const bool horizontal = a.sign == 1 || a.sign == 3;
    for (int k = 0; k < a.n; ++k)
        for (int side = -k; side <= k; ++side) {
            int px = kLeft + a.tipX + k * stepX[a.sign] + (horizontal ? 0 : side);
            int py = kTop + a.tipY + k * stepY[a.sign] + (horizontal ? side : 0);
            KVT_SetPixel(surface, Sint16(px), Sint16(py), colour.r, colour.g, colour.b);
        }
}

class SignButtonPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    CUITheme theme = kvt_test::DistinctTheme();
};

// Face, rest frame and arrow, nothing else: the whole surface is compared
// with the picture painted by hand.
TEST_P(SignButtonPixels, DrawPaintsFaceRestFrameAndTheArrow)
{
    for (const ArrowCase &a : kArrows) {
        SurfacePair s(GetParam(), a.width + 2 * kLeft, a.height + 2 * kTop);
        CUISignButton button(kLeft, kTop, a.width, a.height, &theme, a.sign);
        EXPECT_TRUE(button.SendMessage(CUIMSG_DRAW, 0, 0, s.actual)) << a.what;
        KVT_FillRectAlpha(s.expected, kLeft, kTop, a.width, a.height, theme.faceColor);
        theme.DrawFrame(s.expected, kLeft, kTop, a.width, a.height, CUIFrame::Rest);
        PaintExpectedArrow(s.expected, a, theme.activeFirst);
        EXPECT_EQ("", s.Difference()) << a.what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, SignButtonPixels,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
