#include <gtest/gtest.h>

#include <cstdint>

#include <kvt/ui/bars/vert_scroll_bar.h>

#include "support/surfaces.h"
#include "support/theme.h"

namespace {

// A bar at (4, 3), 12 wide, with 12-pixel end buttons around a track of
// 200 pixels: the track runs from row 15 to row 214.
constexpr int kX = 4, kY = 3, kButton = 12, kTrackTop = kY + kButton;

struct Bench {
    CUITheme theme = kvt_test::DistinctTheme();
    kvt_test::GuardedSurface surface{kvt_test::AllFormats()[5], 24, 240, 4};
    CUIVertScrollBar bar;
    Bench(int lo, int hi, int visible, int track = 200)
        : bar(kX, kY, 12, track + 2 * kButton, &theme, lo, hi, lo, visible, kButton) {}
    bool Send(int message, int px, int py, intptr_t param2 = SDL_BUTTON_LMASK)
    {
        return bar.SendMessage(message, CUIPackPosition(px, py), param2, surface);
    }
    void Draw(int base)
    {
        bar.SetBaseVal(base);
        bar.SendMessage(CUIMSG_DRAW, 0, 0, surface);
    }
};

struct ThumbCase {
    const char *what;
    int lo, hi, visible, track, base, thumbLength, thumbOffset;
};

const ThumbCase kThumbs[] = {
    {"worked example at 45", 0, 99, 10, 200, 45, 20, 90},
    {"worked example at the last first item", 0, 99, 10, 200, 90, 20, 180},
    {"range 11 of 10 in view", 0, 11, 10, 120, 1, 100, 10},
    {"negative interval at its start", -50, 49, 10, 200, 40 - 50, 20, 80},
    {"range equal to visibleCount: no thumb", 0, 10, 10, 200, 0, -1, 0},
    {"a very long interval: a thumb of 0 pixels", 0, 100000, 10, 200, 0, 0, 0},
};

TEST(VertScrollBar, ThumbLengthAndPlaceFollowTheView)
{
    for (const ThumbCase &c : kThumbs) {
        Bench b(c.lo, c.hi, c.visible, c.track);
        b.Draw(c.base);
        EXPECT_EQ(c.thumbLength, b.bar.thumbLength) << c.what;
        EXPECT_EQ(c.thumbOffset, b.bar.thumbOffset) << c.what;
        EXPECT_TRUE(b.surface.GuardsIntact()) << c.what;
    }
}

// A press at row py, then, when mx is not 0, a move to (mx, my). At base
// 45 the thumb covers rows 105 to 124; the page tests are strict, so row
// 125 still counts as the thumb.
struct PressCase {
    const char *what;
    int base, py, mx, my, baseAfter, grabOffset;
};

const PressCase kPresses[] = {
    {"row above the thumb pages up", 45, 104, 0, 0, 35, -1},
    {"thumb's first row grabs", 45, 105, 0, 0, 45, 0},
    {"thumb's last row grabs", 45, 124, 0, 0, 45, 19},
    {"row just below the thumb grabs", 45, 125, 0, 0, 45, 20},
    {"next row pages down", 45, 126, 0, 0, 55, -1},
    {"page up stops at minVal", 5, 16, 0, 0, 0, -1},
    {"page down stops at the last first item", 85, 213, 0, 0, 90, -1},
    {"drag to d = 90 gives 45", 0, 15, 8, 105, 45, 0},
    {"the grab offset is kept", 0, 22, 8, 112, 45, 7},
    {"drag sideways off the bar", 0, 15, 60, 105, 45, 0},
    {"overshoot below is dropped: the thumb stays short", 0, 15, 8, 400, 0, 0},
    {"overshoot above is held to the track's first row", 45, 105, 8, -20, 0, 0},
    {"overshoot above with a deep grab is dropped", 45, 115, 8, -20, 45, 10},
    {"over the top end button the hook never hears", 45, 105, 8, kY + 5, 45, 0},
    {"over the bottom end button likewise", 45, 105, 8, kTrackTop + 205, 45, 0},
};

TEST(VertScrollBar, PressesPageByVisibleCountOrDragTheThumb)
{
    for (const PressCase &c : kPresses) {
        Bench b(0, 99, 10);
        b.Draw(c.base);
        b.bar.SetVal(7);
        EXPECT_TRUE(b.Send(CUIMSG_MOUSEDOWN, 8, c.py)) << c.what;
        EXPECT_EQ(c.grabOffset, b.bar.grabOffset) << c.what;
        if (c.mx != 0) {
            EXPECT_TRUE(b.Send(CUIMSG_MOUSEMOVE, c.mx, c.my)) << c.what;
        }
        EXPECT_EQ(c.baseAfter, b.bar.GetBaseVal()) << c.what;
        EXPECT_EQ(7, b.bar.GetVal()) << c.what << ": val moved";
        EXPECT_EQ(c.grabOffset >= 0, b.Send(CUIMSG_MOUSEUP, 60, 30)) << c.what << ": release";
        EXPECT_FALSE(b.Send(CUIMSG_MOUSEMOVE, 60, 30)) << c.what << ": moved after the release";
    }
}

// Without a painted thumb a press on the track changes nothing; the end
// buttons still scroll to the last first item, and with fewer items than
// fit in view the view stays at minVal.
TEST(VertScrollBar, WithoutAThumbOnlyTheButtonsScroll)
{
    const struct {
        const char *what;
        int hi;
        bool draw;
        int baseAfter;
    } cases[] = {{"range == visibleCount hides one item", 10, true, 1},
                 {"fewer items than fit in view", 4, true, 0},
                 {"never drawn", 99, false, 3}};
    for (const auto &c : cases) {
        Bench b(0, c.hi, 10);
        if (c.draw)
            b.Draw(0);
        EXPECT_FALSE(b.bar.SendChildMessage(CUIMSG_REFRESH, 0, 0, b.surface)) << c.what;
        EXPECT_TRUE(b.Send(CUIMSG_MOUSEDOWN, 8, 200)) << c.what << ": press on the track";
        EXPECT_EQ(0, b.bar.GetBaseVal()) << c.what << ": press on the track";
        for (int i = 0; i < 3; ++i)
            b.Send(CUIMSG_MOUSEDOWN, 8, kTrackTop + 205);
        EXPECT_EQ(c.baseAfter, b.bar.GetBaseVal()) << c.what << ": bottom button";
    }
}

// Degenerate intervals, counts and tracks: every message must pass
// without a division by zero and without writing outside the surface.
TEST(VertScrollBar, OddShapesNeverDivideByZero)
{
    const int cases[][4] = {{0, 99, 10, 0}, {0, 99, -5, 200}, {5, 4, -2, 200},
                            {INT32_MIN, INT32_MAX, 10, 200}, {0, 99, 0, 200}};
    for (const auto &c : cases) {
        Bench b(c[0], c[1], c[2], c[3]);
        b.Draw(c[0]);
        for (int py : {kTrackTop + 1, kTrackTop + c[3] / 2, kTrackTop + 205}) {
            b.Send(CUIMSG_MOUSEDOWN, 8, py);
            b.Send(CUIMSG_MOUSEMOVE, 60, py + 30);
        }
        EXPECT_TRUE(b.surface.GuardsIntact()) << c[0] << ".." << c[1] << " by " << c[2];
    }
}

} // namespace
