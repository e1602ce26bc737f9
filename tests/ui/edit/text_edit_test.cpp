#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <kvt/draw/lines.h>
#include <kvt/draw/pixel.h>
#include <kvt/draw/shade.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/edit/text_edit.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::SurfacePair;

namespace {

// The field sits at (kX, kY) inside a margin, so that a lost offset or a
// pixel outside the field shows. Saved regions and glyphs go through
// SDL's blits, which want rows of whole pixels.
constexpr int kX = 3, kY = 2, kW = 60, kH = 10;
constexpr int kSurfaceW = kW + 6, kSurfaceH = kH + 5, kPadding = 4;

class TextEditTest : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        kvt_test::GuardedSurface any(GetParam(), 1, 1);
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, any.get()->format));
    }
    void TearDown() override { font.FreeFrames(); }

    // A field with its caret at `caret`, drawn on `surface`, then focused
    // when asked.
    std::unique_ptr<CUITextEdit> Drawn(SDL_Surface *surface, const char *text, int caret,
                                       bool readOnly, bool focus, int width = kW)
    {
        auto field = std::make_unique<CUITextEdit>(kX, kY, width, kH, &theme, &font, text,
                                                   readOnly);
        field->caret = Uint8(caret);
        field->SendMessage(CUIMSG_DRAW, 0, 0, surface);
        if (focus)
            field->SendMessage(CUIMSG_FOCUSIN, 0, 0, surface);
        return field;
    }

    // What a field shows, painted by hand: face, rest frame, `shown` text,
    // the caret `caretAt` pixels in (none when negative), the focus ring.
    void PaintField(SDL_Surface *surface, int width, const char *shown, int caretAt, bool focus)
    {
        KVT_FillRectAlpha(surface, kX, kY, width, kH, theme.faceColor);
        theme.DrawFrame(surface, kX, kY, width, kH, CUIFrame::Rest);
        KVT_DisplayText(surface, &font, kX + 2, kY + 2, shown);
        if (caretAt >= 0)
            KVT_DisplayText(surface, &font, kX + 2 + caretAt, kY + 2, "_");
        if (focus)
            theme.DrawFrame(surface, kX - 1, kY - 1, width + 2, kH + 2, CUIFrame::Active);
    }

    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

// One message to a drawn, focused field with a marker line across its
// inside. Afterwards the field holds `after` with the caret at
// `caretAfter` and looks exactly like a field drawn fresh in that state,
// with the marker still there unless the message refreshed the field.
struct EditCase {
    const char *what;
    const char *before;
    int caret;
    bool readOnly;
    int message;
    intptr_t param1;
    bool answer;
    const char *after;
    int caretAfter;
    bool refreshes;
};

const KVT_RGBA kMarker = KVT_RGB(0, 255, 255, 0);
constexpr int kKey = CUIMSG_KEYDOWN, kChar = CUIMSG_CHAR;
const char kNewText[] = "BCD";

const EditCase kEdits[] = {
    {"backspace at 0", "abc", 0, false, kKey, SDLK_BACKSPACE, true, "abc", 0, false},
    {"backspace at end", "abc", 3, false, kKey, SDLK_BACKSPACE, true, "ab", 2, true},
    {"backspace inside", "abc", 1, false, kKey, SDLK_BACKSPACE, true, "bc", 0, true},
    {"delete when empty", "", 0, false, kKey, SDLK_DELETE, true, "", 0, false},
    {"delete at 0", "abc", 0, false, kKey, SDLK_DELETE, true, "bc", 0, true},
    {"delete at end", "abc", 3, false, kKey, SDLK_DELETE, true, "ab", 2, true},
    {"left at 0", "abc", 0, false, kKey, SDLK_LEFT, true, "abc", 0, false},
    {"left at end", "abc", 3, false, kKey, SDLK_LEFT, true, "abc", 2, true},
    {"right at end", "abc", 3, false, kKey, SDLK_RIGHT, true, "abc", 3, false},
    {"right at 0", "abc", 0, false, kKey, SDLK_RIGHT, true, "abc", 1, true},
    {"Tab key", "abc", 1, false, kKey, SDLK_TAB, false, "abc", 1, false},
    {"Return key", "abc", 1, false, kKey, SDLK_RETURN, false, "abc", 1, false},
    {"type inside", "abc", 1, false, kChar, 'X', true, "aXbc", 2, true},
    {"type at 0", "abc", 0, false, kChar, 'X', true, "Xabc", 1, true},
    {"type at end", "abc", 3, false, kChar, 'X', true, "abcX", 4, true},
    {"type 32", "abc", 1, false, kChar, 32, true, "a bc", 2, true},
    {"type 127", "abc", 3, false, kChar, 127, true, "abc\x7f", 4, true},
    {"char 0", "abc", 1, false, kChar, 0, true, "abc", 1, false},
    {"char 9", "abc", 1, false, kChar, 9, true, "abc", 1, false},
    {"char 13", "abc", 1, false, kChar, 13, true, "abc", 1, false},
    {"char 31", "abc", 1, false, kChar, 31, true, "abc", 1, false},
    // The screen sign-extends the byte; a field that read it as unsigned
    // (plain char on ARM) would let these in.
    {"char 128", "abc", 1, false, kChar, -128, true, "abc", 1, false},
    {"char 200", "abc", 1, false, kChar, -56, true, "abc", 1, false},
    {"char 255", "abc", 1, false, kChar, -1, true, "abc", 1, false},
    {"char 200 unextended", "abc", 1, false, kChar, 200, true, "abc", 1, false},
    {"read-only refuses typing", "abc", 1, true, kChar, 'X', false, "abc", 1, false},
    {"read-only backspace", "abc", 2, true, kKey, SDLK_BACKSPACE, true, "ac", 1, true},
    {"read-only delete", "abc", 0, true, kKey, SDLK_DELETE, true, "bc", 0, true},
    {"read-only right", "abc", 0, true, kKey, SDLK_RIGHT, true, "abc", 1, true},
    {"a click leaves the caret", "abc", 1, false, CUIMSG_MOUSEDOWN, CUIPackPosition(kX + 1, kY + 1),
     false, "abc", 1, false},
    {"message 50", "abc", 1, false, 50, 'X', false, "abc", 1, false},
    {"set text: shown at once, caret at the end", "abc", 0, false, CUIMSG_SETTEXT,
     intptr_t(kNewText), true, "BCD", 3, true},
};

TEST_P(TextEditTest, EachEditChangesTextCaretAndPictureAsExpected)
{
    for (const EditCase &c : kEdits) {
        SurfacePair s(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
        auto field = Drawn(s.actual, c.before, c.caret, c.readOnly, true);
        Drawn(s.expected, c.after, c.caretAfter, c.readOnly, true);
        KVT_FillRect(s.actual, kX + 1, kY + kH - 2, kW - 2, 1, kMarker);
        if (!c.refreshes)
            KVT_FillRect(s.expected, kX + 1, kY + kH - 2, kW - 2, 1, kMarker);
        EXPECT_EQ(c.answer, field->SendMessage(c.message, c.param1, 0, s.actual)) << c.what;
        EXPECT_STREQ(c.after, field->GetText()) << c.what;
        EXPECT_EQ(c.caretAfter, field->caret) << c.what;
        EXPECT_EQ("", s.Difference()) << c.what;
    }
}

// Glyph widths of the test font: A 5, B 3, C 1, D 4, E 2, and "_" 5. The
// inner width is the field's width less 4: 16 here, so "BCDE" (10) and a
// caret fit, but "ABCDE" (15) only fits without one.
const char kLong[] = "ABCDEABCDE";
struct TailCase {
    const char *what;
    bool readOnly, focus;
    int width, caret, key;
    const char *shown;
    int caretAt;
};
const TailCase kTails[] = {
    {"unfocused keeps room for a caret", false, false, 20, 10, 0, "BCDE", -1},
    {"caret at the end", false, true, 20, 10, 0, "BCDE", 10},
    {"tail and caret fill it exactly", false, true, 19, 10, 0, "BCDE", 10},
    {"caret inside the tail", false, true, 20, 8, 0, "BCDE", 4},
    {"caret before the first shown", false, true, 20, 6, 0, "BCDE", 0},
    {"left past the view hides it", false, true, 20, 6, SDLK_LEFT, "BCDE", -1},
    {"right brings it back", false, true, 20, 5, SDLK_RIGHT, "BCDE", 0},
    {"caret from the constructor", false, true, 20, 0, 0, "BCDE", -1},
    {"read-only reserves no room", true, true, 20, 10, 0, "ABCDE", -1},
    {"narrower than a caret", false, true, 8, 10, 0, "", 0},
};

TEST_P(TextEditTest, ShowsTheLongestTailThatLeavesRoomForTheCaret)
{
    for (const TailCase &c : kTails) {
        SurfacePair s(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
        auto field = Drawn(s.actual, kLong, c.caret, c.readOnly, c.focus, c.width);
        if (c.key != 0) {
            EXPECT_TRUE(field->SendMessage(CUIMSG_KEYDOWN, c.key, 0, s.actual)) << c.what;
        }
        PaintField(s.expected, c.width, c.shown, c.caretAt, c.focus);
        EXPECT_EQ("", s.Difference()) << c.what;
    }
}

// Under the pointer the frame mixes the ramps; leaving brings the rest
// frame; losing the focus takes ring and caret away.
TEST_P(TextEditTest, FrameFollowsPointerAndFocus)
{
    SurfacePair s(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
    auto field = Drawn(s.actual, "AB", 1, false, true);
    PaintField(s.expected, kW, "AB", 5, true);
    ASSERT_EQ("", s.Difference()) << "drawn and focused";

    EXPECT_TRUE(field->SendMessage(CUIMSG_MOUSEENTER, CUIPackPosition(kX + 1, kY + 1), 0, s.actual));
    KVT_RectShade(s.expected, kX, kY, kW, kH, theme.activeFirst, theme.restMid, theme.activeLast);
    EXPECT_EQ("", s.Difference()) << "pointer over the field";

    EXPECT_TRUE(field->SendMessage(CUIMSG_MOUSELEAVE, 0, 0, s.actual));
    theme.DrawFrame(s.expected, kX, kY, kW, kH, CUIFrame::Rest);
    EXPECT_EQ("", s.Difference()) << "pointer gone";

    SurfacePair unfocused(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
    field->SendMessage(CUIMSG_DRAW, 0, 0, unfocused.actual);
    field->SendMessage(CUIMSG_FOCUSIN, 0, 0, unfocused.actual);
    EXPECT_TRUE(field->SendMessage(CUIMSG_FOCUSOUT, 0, 0, unfocused.actual));
    PaintField(unfocused.expected, kW, "AB", -1, false);
    EXPECT_EQ("", unfocused.Difference()) << "focus gone";
}

// 255 characters fill the field: more typing is taken and ignored, and a
// longer text is cut, so neither the buffer nor the count overflows.
TEST_P(TextEditTest, HoldsAtMost255Characters)
{
    SurfacePair s(GetParam(), kSurfaceW, kSurfaceH, 7, kPadding);
    const std::string full(255, 'a');
    auto field = Drawn(s.actual, full.substr(1).c_str(), 0, false, true);
    EXPECT_TRUE(field->SendMessage(CUIMSG_CHAR, 'b', 0, s.actual));
    EXPECT_TRUE(field->SendMessage(CUIMSG_CHAR, 'c', 0, s.actual));
    EXPECT_EQ("b" + full.substr(1), field->GetText()) << "typing into a full field";
    EXPECT_EQ(1, field->caret);
    field->SetText((full + "!").c_str());
    EXPECT_EQ(full, field->GetText()) << "SetText with one character too many";
    EXPECT_EQ(255, field->caret) << "SetText puts the caret at the end";
    EXPECT_EQ(255, field->length);

    const std::string tooLong = full + "xyz";
    EXPECT_TRUE(field->SendMessage(CUIMSG_SETTEXT, intptr_t(tooLong.c_str()), 0, s.actual));
    EXPECT_EQ(full, field->GetText()) << "a text longer than the field";
    EXPECT_EQ(255, field->caret);
}

INSTANTIATE_TEST_SUITE_P(AllFormats, TextEditTest, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
