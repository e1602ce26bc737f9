#include <gtest/gtest.h>

#include <kvt/draw/lines.h>
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

// What each message paints over a drawn button, and its answer. A marker
// covers the old frame first, so that painting the rest frame is told
// apart from painting nothing.
struct MessageCase {
    const char *what;
    int message;
    int px, py; // pointer relative to the button's corner
    intptr_t param2;
    bool answer;
    int frame; // a CUIFrame, or kNone: the message paints nothing
};

const int kW = 16, kH = 14;
const int kSunken = int(CUIFrame::Sunken), kActive = int(CUIFrame::Active);
const int kRest = int(CUIFrame::Rest), kNone = -1;
const MessageCase kMessages[] = {
    {"press", CUIMSG_MOUSEDOWN, 5, 5, SDL_PRESSED, true, kSunken},
    {"release inside", CUIMSG_MOUSEUP, 1, 1, 0, true, kActive},
    {"release on the first column", CUIMSG_MOUSEUP, 0, 5, 0, true, kRest},
    {"release past the last row", CUIMSG_MOUSEUP, 5, kH, 0, true, kRest},
    {"release far above", CUIMSG_MOUSEUP, 5, -40, 0, true, kRest},
    {"enter with a button held", CUIMSG_MOUSEENTER, 5, 5, SDL_BUTTON_LMASK, true, kSunken},
    {"enter with no button", CUIMSG_MOUSEENTER, 5, 5, 0, true, kActive},
    {"leave", CUIMSG_MOUSELEAVE, 40, 5, SDL_BUTTON_LMASK, true, kRest},
    {"key Return", CUIMSG_KEYDOWN, SDLK_RETURN, 0, 0, false, kNone},
    {"char", CUIMSG_CHAR, 'a', 0, 0, false, kNone},
    {"move", CUIMSG_MOUSEMOVE, 5, 5, SDL_BUTTON_LMASK, false, kNone},
    {"refresh", CUIMSG_REFRESH, 0, 0, 0, false, kNone},
    {"message 50", 50, 5, 5, 1, false, kNone},
};

TEST_P(SignButtonPixels, EachMessagePaintsTheFrameOfItsState)
{
    const KVT_RGBA marker = KVT_RGB(0, 255, 255, 0);
    for (const MessageCase &m : kMessages) {
        SurfacePair s(GetParam(), kW + 2 * kLeft, kH + 2 * kTop);
        CUISignButton button(kLeft, kTop, kW, kH, &theme, 1);
        button.SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
        KVT_Rect(s.actual, kLeft, kTop, kW, kH, marker);
        s.Settle();
        const bool key = m.message == CUIMSG_KEYDOWN || m.message == CUIMSG_CHAR;
        const intptr_t param1 = key ? m.px : CUIPackPosition(kLeft + m.px, kTop + m.py);
        EXPECT_EQ(m.answer, button.SendMessage(m.message, param1, m.param2, s.actual)) << m.what;
        if (m.frame >= 0)
            theme.DrawFrame(s.expected, kLeft, kTop, kW, kH, CUIFrame(m.frame));
        EXPECT_EQ("", s.Difference()) << m.what;
    }
}

// DRAW saves the ring around the button before painting, so the focus
// frame goes away down to what lay there. The ring comes back through
// SDL's blits, which want rows of whole pixels: a row padding of 4.
TEST_P(SignButtonPixels, FocusFrameVanishesDownToTheBackground)
{
    SurfacePair s(GetParam(), kW + 2 * kLeft, kH + 2 * kTop, 7, 4);
    CUISignButton button(kLeft, kTop, kW, kH, &theme, 2);
    button.SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
    s.Settle();
    EXPECT_TRUE(button.SendMessage(CUIMSG_FOCUSIN, 0, 0, s.actual));
    EXPECT_NE("", s.Difference()) << "focus in paints the ring";
    EXPECT_TRUE(button.SendMessage(CUIMSG_FOCUSOUT, 0, 0, s.actual));
    EXPECT_EQ("", s.Difference()) << "focus out";
}

INSTANTIATE_TEST_SUITE_P(AllFormats, SignButtonPixels,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
