#include <gtest/gtest.h>

#include <kvt/draw/pixel.h>
#include <kvt/ui/bars/horz_value_bar.h>
#include <kvt/ui/bars/vert_scroll_bar.h>

#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::SurfacePair;

namespace {

// An end button where the test expects it (x, y, w, h), freshly drawn
// and then lit by the pointer entering the bar.
void PaintEndButton(SDL_Surface *surface, CUITheme *theme, SDL_Rect r, int sign)
{
    CUISignButton button(r.x, r.y, r.w, r.h, theme, sign);
    button.SendMessage(CUIMSG_DRAW, 0, 0, surface);
    theme->DrawFrame(surface, r.x, r.y, r.w, r.h, CUIFrame::Active);
}

void PaintBlock(SDL_Surface *surface, CUITheme *theme, int x, int y, int w, int h, CUIFrame f)
{
    KVT_FillRectAlpha(surface, x, y, w, h, theme->faceColor);
    theme->DrawFrame(surface, x, y, w, h, f);
}

// SDL blits put the track back: rows of whole pixels, a padding of 4.
class BarPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    CUITheme theme = kvt_test::DistinctTheme();
};

// The thumb drawn at the top moves to the bottom and lights up: the old
// one must be gone, the new one in place, and nothing else touched.
TEST_P(BarPixels, ScrollBarThumbMovesAndLights)
{
    SurfacePair s(GetParam(), 20, 60, 7, 4);
    CUIVertScrollBar bar(3, 2, 12, 56, &theme, 0, 19, 0, 5, 8);
    bar.SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
    bar.SetBaseVal(15);
    EXPECT_TRUE(bar.SendMessage(CUIMSG_MOUSEENTER, CUIPackPosition(8, 30), 0, s.actual));
    // Track 40 pixels: a thumb of 40 * 5 / 20 = 10, at the end of the track.
    PaintEndButton(s.expected, &theme, {3, 2, 12, 8}, CUISIGN_UP);
    PaintEndButton(s.expected, &theme, {3, 50, 12, 8}, CUISIGN_DOWN);
    PaintBlock(s.expected, &theme, 3, 2 + 8 + 30, 12, 10, CUIFrame::Active);
    EXPECT_EQ("", s.Difference());
}

// The fill shrinks by a key step and shows the rest frame again once the
// pointer has left.
TEST_P(BarPixels, ValueBarFillShrinksAndRests)
{
    SurfacePair s(GetParam(), 70, 14, 7, 4);
    CUIHorzValueBar bar(2, 2, 64, 10, &theme, 0, 10, 10);
    bar.SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
    bar.SendMessage(CUIMSG_MOUSEENTER, CUIPackPosition(30, 6), 0, s.actual);
    bar.SendMessage(CUIMSG_KEYDOWN, SDLK_LEFT, 0, s.actual);
    bar.SendChildMessage(CUIMSG_MOUSELEAVE, 0, 0, s.actual);
    // Track 44 pixels: at 9 of 10 the fill is 39 pixels.
    PaintEndButton(s.expected, &theme, {2, 2, 10, 10}, CUISIGN_LEFT);
    PaintEndButton(s.expected, &theme, {56, 2, 10, 10}, CUISIGN_RIGHT);
    PaintBlock(s.expected, &theme, 12, 2, 39, 10, CUIFrame::Rest);
    EXPECT_EQ("", s.Difference());
}

std::vector<FormatCase> SomeFormats()
{
    const auto &all = kvt_test::AllFormats();
    return {all[0], all[1], all[3], all[7]};
}

INSTANTIATE_TEST_SUITE_P(SomeFormats, BarPixels, ::testing::ValuesIn(SomeFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
