#include <gtest/gtest.h>

#include <kvt/draw/lines.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/buttons/bool_chooser.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::SurfacePair;

namespace {

// The widget sits at (kX, kY) with a margin, so that a lost offset or a
// pixel outside the box shows.
constexpr int kX = 2, kY = 3, kW = 60, kH = 22;
constexpr int kSurfaceW = kW + 6, kSurfaceH = kH + 6;
// The caption and the saved ring go through SDL's blits, which want rows
// of whole pixels.
constexpr int kPadding = 4;
const char kCaption[] = "AB!";
const KVT_RGBA kOn = KVT_RGB(0, 255, 0, 0), kOff = KVT_RGB(255, 0, 0, 0);

class BoolChooserPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        kvt_test::GuardedSurface any(GetParam(), 1, 1);
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, any.get()->format));
    }
    void TearDown() override { font.FreeFrames(); }

    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

// A fresh widget shows the frame for the pointer elsewhere, the fill of
// its value (as last set), and the caption right of the box; nothing else
// is painted. Then a message sent `times` times to it, with its box covered
// by a marker: afterwards the box shows the frame and fill of the row, or
// still the marker where the row expects no painting (kNone).
struct MessageCase {
    const char *what;
    bool before;
    int message;
    intptr_t param1, param2;
    int times;
    bool answer, after;
    int frame; // a CUIFrame, or kNone
    int fill;  // 0 off, 1 on, or kNone
};

const intptr_t kIn = CUIPackPosition(kX + 5, kY + 5);
const int kSunken = int(CUIFrame::Sunken), kActive = int(CUIFrame::Active);
const int kRest = int(CUIFrame::Rest), kSunkenRest = int(CUIFrame::SunkenRest), kNone = -1;

const MessageCase kCases[] = {
    {"press turns on", false, CUIMSG_MOUSEDOWN, kIn, SDL_PRESSED, 1, true, true, kSunken, 1},
    {"press turns off", true, CUIMSG_MOUSEDOWN, kIn, SDL_PRESSED, 1, true, false, kActive, 0},
    {"two presses", false, CUIMSG_MOUSEDOWN, kIn, SDL_PRESSED, 2, true, false, kActive, 0},
    {"release", true, CUIMSG_MOUSEUP, kIn, SDL_RELEASED, 1, false, true, kNone, kNone},
    {"Return: fill only", false, CUIMSG_KEYDOWN, SDLK_RETURN, 0, 1, true, true, kNone, 1},
    {"Return when on", true, CUIMSG_KEYDOWN, SDLK_RETURN, 0, 1, true, false, kNone, 0},
    {"Tab", false, CUIMSG_KEYDOWN, SDLK_TAB, 0, 1, false, false, kNone, kNone},
    {"keypad Enter", true, CUIMSG_KEYDOWN, SDLK_KP_ENTER, 0, 1, false, true, kNone, kNone},
    {"char of Return", false, CUIMSG_CHAR, '\r', 0, 1, false, false, kNone, kNone},
    {"enter when off", false, CUIMSG_MOUSEENTER, kIn, 0, 1, true, false, kActive, kNone},
    {"enter when on, held", true, CUIMSG_MOUSEENTER, kIn, SDL_BUTTON_LMASK, 1, true, true, kSunken,
     kNone},
    {"leave when on", true, CUIMSG_MOUSELEAVE, 0, 0, 1, true, true, kSunkenRest, kNone},
    {"leave when off", false, CUIMSG_MOUSELEAVE, 0, 0, 1, true, false, kRest, kNone},
    {"refresh", true, CUIMSG_REFRESH, 0, 0, 1, true, true, kNone, 1},
    {"move", false, CUIMSG_MOUSEMOVE, kIn, SDL_BUTTON_LMASK, 1, false, false, kNone, kNone},
    {"set text", false, CUIMSG_SETTEXT, intptr_t(kCaption), 0, 1, false, false, kNone, kNone},
    {"message 50", true, 50, kIn, 1, 1, false, true, kNone, kNone},
};

TEST_P(BoolChooserPixels, DrawShowsTheValueThenEachMessageAnswersAndPaintsAsItsStateSays)
{
    const KVT_RGBA marker = KVT_RGB(0, 255, 255, 0);
    for (const MessageCase &c : kCases) {
        SurfacePair s(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
        CUIBoolChooser chooser(kX, kY, kW, kH, &theme, &font, kCaption, !c.before);
        chooser.SetValue(c.before);
        EXPECT_TRUE(chooser.SendMessage(CUIMSG_DRAW, 0, 0, s.actual)) << c.what;
        const CUIFrame atRest = c.before ? CUIFrame::SunkenRest : CUIFrame::Rest;
        theme.DrawFrame(s.expected, kX, kY, 20, 20, atRest);
        KVT_FillRect(s.expected, kX + 1, kY + 1, 18, 18, c.before ? kOn : kOff);
        KVT_DisplayText(s.expected, &font, kX + 20, kY + 2, kCaption);
        EXPECT_EQ("", s.Difference()) << c.what << ": drawn";
        KVT_FillRect(s.actual, kX, kY, 20, 20, marker);
        s.Settle();
        for (int i = 0; i < c.times; ++i)
            EXPECT_EQ(c.answer, chooser.SendMessage(c.message, c.param1, c.param2, s.actual))
                << c.what;
        if (c.frame != kNone)
            theme.DrawFrame(s.expected, kX, kY, 20, 20, CUIFrame(c.frame));
        if (c.fill != kNone)
            KVT_FillRect(s.expected, kX + 1, kY + 1, 18, 18, c.fill ? kOn : kOff);
        EXPECT_EQ("", s.Difference()) << c.what;
        EXPECT_EQ(c.after, chooser.GetValue()) << c.what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, BoolChooserPixels,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
