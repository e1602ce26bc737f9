#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/ui/core/object.h>

#include "support/expected.h"
#include "support/recording_widget.h"
#include "support/surfaces.h"
#include "support/theme.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::RecordingWidget;

namespace {

TEST(ObjectHitTest, OnlyPointsStrictlyInsideTheRectangleCount)
{
    CUITheme theme = kvt_test::DistinctTheme();
    std::vector<kvt_test::Message> log;
    RecordingWidget widget(0, &log, 10, 10, 20, 20, &theme);
    struct Case { int x, y; bool on; } cases[] = {
        {10, 15, false}, {15, 10, false}, {30, 15, false}, {15, 30, false},
        {11, 11, true},  {29, 29, true},  {9, 9, false},   {31, 31, false},
    };
    for (const Case &c : cases)
        EXPECT_EQ(widget.IsPtOnObject(c.x, c.y), c.on) << "at (" << c.x << ", " << c.y << ")";
    RecordingWidget thin(1, &log, 10, 10, 1, 20, &theme), flat(2, &log, 10, 10, 20, 1, &theme);
    for (int y = 8; y < 33; ++y)
        for (int x = 8; x < 33; ++x)
            ASSERT_FALSE(thin.IsPtOnObject(x, y) || flat.IsPtOnObject(x, y))
                << "a widget one pixel thin has a point (" << x << ", " << y << ")";
}

// Everything but DRAW, FOCUSIN and FOCUSOUT, and FOCUSOUT with nothing
// saved, leaves the surface alone; only those three answer true.
TEST(ObjectDefaults, UnsharedMessagesAnswerFalseAndFocusOutBeforeDrawRestoresNothing)
{
    CUITheme theme = kvt_test::DistinctTheme();
    std::vector<kvt_test::Message> log;
    GuardedSurface surface(kvt_test::AllFormats()[5], 40, 40);
    std::mt19937 rng(3);
    surface.FillRandom(rng);
    ExpectedPixels before(surface);
    RecordingWidget widget(0, &log, 10, 10, 20, 20, &theme);
    for (int message : {1, 2, 12, 13, 15, 19, 20, 50, 100, 101})
        EXPECT_FALSE(widget.DefaultSendMessage(message, 0x50005, 1, surface)) << message;
    widget.focused = true;
    EXPECT_TRUE(widget.DefaultSendMessage(CUIMSG_FOCUSOUT, 0, 0, surface));
    EXPECT_FALSE(widget.focused);
    EXPECT_EQ(before.Differences(surface), "");
}

class FocusRingAtFormat : public ::testing::TestWithParam<FormatCase> {};

// The focus frame lies on the one-pixel ring around the widget; hiding it
// puts back exactly what lay there, also where the ring leaves the surface.
TEST_P(FocusRingAtFormat, FocusOutRestoresTheRingExactlyAndTwiceInARow)
{
    const int w = 30, h = 24;
    const SDL_Rect places[] = {{5, 6, 10, 8}, {0, 0, 10, 8}, {w - 10, h - 8, 10, 8}, {0, 0, w, h}};
    CUITheme theme = kvt_test::DistinctTheme();
    std::mt19937 rng(11);
    for (const SDL_Rect &p : places) {
        GuardedSurface surface(GetParam(), w, h), framed(GetParam(), w, h);
        surface.FillRandom(rng);
        ExpectedPixels before(surface);
        before.WriteTo(framed);
        theme.DrawFrame(framed, p.x - 1, p.y - 1, p.w + 2, p.h + 2, CUIFrame::Active);
        std::vector<kvt_test::Message> log;
        RecordingWidget widget(0, &log, p.x, p.y, p.w, p.h, &theme);
        widget.SendMessage(CUIMSG_DRAW, 0, 0, surface);
        EXPECT_EQ(widget.topEdge.image->w + widget.leftEdge.image->h, p.w + 2 + p.h)
            << "the corners belong to the top and bottom strips, and only to them";
        for (int round = 0; round < 2; ++round) {
            widget.SendMessage(CUIMSG_FOCUSIN, 0, 0, surface);
            EXPECT_EQ(kvt_test::FirstDifference(surface, framed), "") << "focus frame at " << p.x;
            EXPECT_TRUE(widget.focused);
            widget.SendMessage(CUIMSG_FOCUSOUT, 0, 0, surface);
            EXPECT_EQ(before.Differences(surface), "")
                << "ring of the widget at (" << p.x << ", " << p.y << "), round " << round;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, FocusRingAtFormat,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
