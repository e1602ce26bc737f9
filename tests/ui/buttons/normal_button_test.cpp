#include <memory>

#include <gtest/gtest.h>

#include <kvt/draw/lines.h>
#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/buttons/bool_chooser.h>
#include <kvt/ui/buttons/gfx_button.h>
#include <kvt/ui/buttons/multi_gfx_button.h>
#include <kvt/ui/buttons/normal_button.h>
#include <kvt/ui/buttons/sign_button.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::SurfacePair;

namespace {

// Buttons sit at (6, 3) with a margin all round, so that a lost offset, a
// caption left of the button or a pixel outside it shows.
constexpr int kLeft = 6, kTop = 3, kW = 16, kH = 12;
constexpr int kPad = 4; // row padding: SDL's keyed blits want whole-pixel pitches

class PressButtonPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        const SDL_PixelFormat *format = formatHolder.get()->format;
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, format));
        const Uint32 c = 0x2080C0;
        ASSERT_TRUE(kvt_test::LoadSpritePictures(&sprite, {{3, 2, 0, 0, {c, c, c, c, c, c}}},
                                                 format));
    }
    void TearDown() override
    {
        font.FreeFrames();
        sprite.FreeFrames();
    }

    // Kinds 0 to 3 share the mouse behaviour; the multi-image button has a
    // single frame, so that a press repaints the same image.
    std::unique_ptr<CUIObject> Make(int kind)
    {
        if (kind == 0)
            return std::make_unique<CUINormalButton>(kLeft, kTop, kW, kH, &theme, &font, "Ok",
                                                     true);
        if (kind == 1)
            return std::make_unique<CUIGfxButton>(kLeft, kTop, kW, kH, &theme, &sprite, 0, false);
        if (kind == 2)
            return std::make_unique<CUIMultiGfxButton>(kLeft, kTop, kW, kH, &theme, &sprite,
                                                       false);
        if (kind == 3)
            return std::make_unique<CUISignButton>(kLeft, kTop, kW, kH, &theme, CUISIGN_UP);
        // Its box is 20 pixels square whatever its size: only the focus
        // test, on a surface with room for it, makes one.
        return std::make_unique<CUIBoolChooser>(kLeft, kTop, 30, 22, &theme, &font, "Ok", true);
    }

    kvt_test::GuardedSurface formatHolder{GetParam(), 1, 1}; // the sprites' format
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font, sprite;
};

const char *const kKinds[] = {"normal", "gfx", "multi", "sign", "bool chooser"};
constexpr int kPressKinds = 4, kAllKinds = 5;

struct CaptionCase {
    const char *what;
    int width;
    const char *caption;
    bool centered;
    int offset; // worked out from the test font: "A" is 5 wide, "B" 3
};
const CaptionCase kCaptions[] = {
    {"centred", 30, "AB", true, 11},
    {"centred, odd leftover rounds down", 31, "AB", true, 11},
    {"centred and wider than the button", 5, "AB", true, -2},
    {"empty, centred", 9, "", true, 4},
    {"left-aligned", 30, "AB", false, 2},
};

TEST_P(PressButtonPixels, DrawPaintsFaceRestFrameAndThePlacedCaption)
{
    for (const CaptionCase &c : kCaptions) {
        SurfacePair s(GetParam(), c.width + 2 * kLeft, kH + 2 * kTop, 7, kPad);
        CUINormalButton button(kLeft, kTop, c.width, kH, &theme, &font, "", c.centered);
        button.SetCaption(c.caption);
        EXPECT_EQ(c.offset, button.textOffset) << c.what << ", after SetCaption";
        EXPECT_EQ(c.offset, CUINormalButton(kLeft, kTop, c.width, kH, &theme, &font, c.caption,
                                            c.centered)
                                .textOffset)
            << c.what << ", from the constructor";
        EXPECT_EQ("", s.Difference()) << c.what << ": SetCaption must not draw";
        EXPECT_TRUE(button.SendMessage(CUIMSG_DRAW, 0, 0, s.actual)) << c.what;
        KVT_FillRectAlpha(s.expected, kLeft, kTop, c.width, kH, theme.faceColor);
        theme.DrawFrame(s.expected, kLeft, kTop, c.width, kH, CUIFrame::Rest);
        KVT_DisplayText(s.expected, &font, kLeft + c.offset, kTop + 2, c.caption);
        EXPECT_EQ("", s.Difference()) << c.what;
    }
}

// What a message paints over a drawn button, and its answer. The old frame
// is overwritten with a marker first, so that painting the rest frame is
// told apart from painting nothing.
struct MessageCase {
    const char *what;
    int message;
    int px, py; // pointer relative to the button's corner, or param1 itself
    intptr_t param2;
    bool answer;
    int frame;        // a CUIFrame, or -1: the message paints nothing
    bool multiTreats; // the multi-image button answers this one itself
};
const MessageCase kMessages[] = {
    {"press", CUIMSG_MOUSEDOWN, 5, 5, SDL_PRESSED, true, int(CUIFrame::Sunken), false},
    {"release inside", CUIMSG_MOUSEUP, 1, 1, SDL_RELEASED, true, int(CUIFrame::Active), false},
    {"release on the first column", CUIMSG_MOUSEUP, 0, 5, 0, true, int(CUIFrame::Rest), false},
    {"release past the last column", CUIMSG_MOUSEUP, kW, 5, 0, true, int(CUIFrame::Rest), false},
    {"release past the last row", CUIMSG_MOUSEUP, 5, kH, 0, true, int(CUIFrame::Rest), false},
    {"release far above", CUIMSG_MOUSEUP, 5, -40, 0, true, int(CUIFrame::Rest), false},
    {"enter, button held", CUIMSG_MOUSEENTER, 5, 5, SDL_BUTTON_LMASK, true,
     int(CUIFrame::Sunken), false},
    {"enter, no button", CUIMSG_MOUSEENTER, 5, 5, 0, true, int(CUIFrame::Active), false},
    {"leave", CUIMSG_MOUSELEAVE, 40, 5, SDL_BUTTON_LMASK, true, int(CUIFrame::Rest), false},
    {"key Return", CUIMSG_KEYDOWN, SDLK_RETURN, 0, 0, false, -1, true},
    {"char", CUIMSG_CHAR, 'a', 0, 0, false, -1, false},
    {"move", CUIMSG_MOUSEMOVE, 5, 5, SDL_BUTTON_LMASK, false, -1, false},
    {"refresh", CUIMSG_REFRESH, 0, 0, 0, false, -1, true},
    {"set text", CUIMSG_SETTEXT, 0, 0, 0, false, -1, false},
    {"message 50", 50, 5, 5, 1, false, -1, false},
};

TEST_P(PressButtonPixels, EachMessagePaintsTheFrameOfItsStateOrNothing)
{
    const KVT_RGBA marker = KVT_RGB(0, 255, 255, 0);
    for (int kind = 0; kind < kPressKinds; ++kind)
        for (const MessageCase &m : kMessages) {
            if (kind == 2 && m.multiTreats)
                continue; // its own answers are checked with its frame cycling
            SurfacePair s(GetParam(), kW + 2 * kLeft, kH + 2 * kTop, 7, kPad);
            std::unique_ptr<CUIObject> button = Make(kind);
            button->SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
            KVT_Rect(s.actual, kLeft, kTop, kW, kH, marker);
            s.Settle();
            const bool packed = m.message != CUIMSG_KEYDOWN && m.message != CUIMSG_CHAR;
            const intptr_t param1 = packed ? CUIPackPosition(kLeft + m.px, kTop + m.py) : m.px;
            EXPECT_EQ(m.answer, button->SendMessage(m.message, param1, m.param2, s.actual))
                << kKinds[kind] << ", " << m.what;
            if (m.frame >= 0)
                theme.DrawFrame(s.expected, kLeft, kTop, kW, kH, CUIFrame(m.frame));
            EXPECT_EQ("", s.Difference()) << kKinds[kind] << ", " << m.what;
        }
}

// DRAW saves the ring around the button before painting, so the focus
// frame goes away down to what lay there.
TEST_P(PressButtonPixels, FocusFrameVanishesDownToTheBackground)
{
    for (int kind = 0; kind < kAllKinds; ++kind) {
        SurfacePair s(GetParam(), 30 + 2 * kLeft, 22 + 2 * kTop, 7, kPad);
        std::unique_ptr<CUIObject> button = Make(kind);
        button->SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
        s.Settle();
        EXPECT_TRUE(button->SendMessage(CUIMSG_FOCUSIN, 0, 0, s.actual)) << kKinds[kind];
        EXPECT_NE("", s.Difference()) << kKinds[kind] << ": focus in paints the ring";
        EXPECT_TRUE(button->SendMessage(CUIMSG_FOCUSOUT, 0, 0, s.actual)) << kKinds[kind];
        EXPECT_EQ("", s.Difference()) << kKinds[kind] << ": focus out";
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, PressButtonPixels,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
