#include <gtest/gtest.h>

#include <kvt/ui/bars/horz_value_bar.h>

#include "support/surfaces.h"
#include "support/theme.h"

namespace {

// A bar at (5, 4), 220 x 10, with square 10-pixel end buttons around a
// track of 200 pixels: the track runs from column 15 to column 214.
constexpr int kX = 5, kY = 4, kButton = 10, kTrackLeft = kX + kButton, kMidRow = kY + 5;

struct Bench {
    CUITheme theme = kvt_test::DistinctTheme();
    kvt_test::GuardedSurface surface{kvt_test::AllFormats()[1], 232, 20, 4};
    CUIHorzValueBar bar;
    explicit Bench(int lo = 0, int hi = 100, int val = 50)
        : bar(kX, kY, 220, kButton, &theme, lo, hi, val)
    {
        bar.SendMessage(CUIMSG_DRAW, 0, 0, surface);
    }
    bool Send(int message, int px, int py = kMidRow)
    {
        return bar.SendMessage(message, CUIPackPosition(px, py), SDL_BUTTON_LMASK, surface);
    }
};

TEST(HorzValueBar, FillGrowsWithTheValue)
{
    const struct {
        int lo, hi, val, fill;
    } cases[] = {{0, 100, 50, 100}, {0, 100, 0, 0}, {0, 100, 100, 200}, {-10, 30, 0, 50},
                 {7, 7, 7, 0}, {5, 3, 5, 0}};
    for (const auto &c : cases) {
        Bench b(c.lo, c.hi, c.val);
        EXPECT_EQ(c.fill, b.bar.fillLength) << c.lo << ".." << c.hi << " at " << c.val;
        EXPECT_TRUE(b.surface.GuardsIntact());
    }
}

// The end of the fill at 50 is column 115: presses within 3 pixels of it,
// either way, grab it, and only a grab lets a move (px not 0) drag.
TEST(HorzValueBar, OnlyAPressNearTheEndOfTheFillGrabsAndDragsInsideTheTrack)
{
    const struct {
        const char *what;
        int dx;
        bool grabs;
        int px, py, val;
    } cases[] = {
        {"press on the end", 100, true, 0, 0, 50},
        {"3 right of it", 103, true, 0, 0, 50},
        {"4 right of it", 104, false, 0, 0, 50},
        {"3 left of it", 97, true, 0, 0, 50},
        {"4 left of it", 96, false, 0, 0, 50},
        {"far left of it", 20, false, 0, 0, 50},
        {"drag to +150", 100, true, kTrackLeft + 150, kMidRow, 75},
        {"drag off the bar sideways", 100, true, kTrackLeft + 150, 60, 75},
        {"drag far right: d 199", 100, true, 900, kMidRow, 99},
        {"drag below the right button's first column: d 199", 100, true, kX + 210, 60, 99},
        {"drag far left: d 1", 100, true, 1, kMidRow, 0},
        {"drag left of the surface: x is read unsigned, far right", 100, true, -30, kMidRow, 99},
        {"drag over the right end button: not heard", 100, true, kX + 215, kMidRow, 50},
    };
    for (const auto &c : cases) {
        Bench b;
        EXPECT_TRUE(b.Send(CUIMSG_MOUSEDOWN, kTrackLeft + c.dx)) << c.what;
        EXPECT_EQ(c.grabs, b.bar.dragging) << c.what;
        if (c.px != 0) {
            EXPECT_TRUE(b.Send(CUIMSG_MOUSEMOVE, c.px, c.py)) << c.what;
        }
        EXPECT_EQ(c.val, b.bar.GetVal()) << c.what;
        EXPECT_FALSE(b.Send(CUIMSG_MOUSEUP, kTrackLeft + 20)) << c.what << ": release";
        EXPECT_FALSE(b.bar.dragging) << c.what;
    }
}

// The end buttons and keys reach both ends, and never wrap.
TEST(HorzValueBar, StepsStopAtTheEndsEvenWithWrapSet)
{
    Bench top(0, 100, 100), bottom(0, 100, 0);
    top.bar.wrap = bottom.bar.wrap = true;
    EXPECT_TRUE(top.Send(CUIMSG_MOUSEDOWN, kX + 215)) << "right button";
    EXPECT_TRUE(top.bar.SendMessage(CUIMSG_KEYDOWN, SDLK_RIGHT, 0, top.surface));
    EXPECT_EQ(100, top.bar.GetVal());
    EXPECT_TRUE(bottom.Send(CUIMSG_MOUSEDOWN, kX + 5)) << "left button";
    EXPECT_TRUE(bottom.bar.SendMessage(CUIMSG_KEYDOWN, SDLK_LEFT, 0, bottom.surface));
    EXPECT_EQ(0, bottom.bar.GetVal());
    EXPECT_TRUE(bottom.Send(CUIMSG_MOUSEUP, kX + 5)) << "release on an end button";
    EXPECT_FALSE(bottom.bar.SendMessage(CUIMSG_KEYDOWN, SDLK_TAB, 0, bottom.surface));
}

} // namespace
