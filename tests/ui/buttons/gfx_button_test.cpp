#include <algorithm>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/double_blit.h>
#include <kvt/draw/pixel.h>
#include <kvt/ui/buttons/gfx_button.h>
#include <kvt/ui/buttons/multi_gfx_button.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/theme.h"

using kvt_test::FormatCase;
using kvt_test::kClearPixel;
using kvt_test::SpritePicture;
using kvt_test::SurfacePair;

namespace {

constexpr int kLeft = 5, kTop = 4, kW = 12, kH = 10;
constexpr int kPad = 4; // row padding: SDL's keyed blits want whole-pixel pitches
constexpr Uint32 A = 0x2080C0, B = 0xC04020, C = 0x40C040, o = kClearPixel;

// Three frames of different sizes, so that an image left behind by the
// previous one shows; each has a clear pixel, where the face shows.
const std::vector<SpritePicture> kPictures = {
    {4, 3, 0, 0, {A, o, A, A, A, A, A, A, A, A, A, A}},
    {6, 5, 0, 0, std::vector<Uint32>(30, B)},
    {2, 2, 0, 0, {C, C, o, C}},
};

class GfxButtonPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(kvt_test::LoadSpritePictures(&sprite, kPictures, formatHolder.get()->format));
    }
    void TearDown() override { sprite.FreeFrames(); }

    SurfacePair Pair() { return SurfacePair(GetParam(), kW + 2 * kLeft, kH + 2 * kTop, 7, kPad); }

    // The image painted pixel by pixel from its picture, one pixel in from
    // the button's corner and cut to w x h.
    void PaintImage(SDL_Surface *surface, int frame, int w, int h)
    {
        const SpritePicture &p = kPictures[frame];
        for (int py = 0; py < std::min(p.height, h); ++py)
            for (int px = 0; px < std::min(p.width, w); ++px)
                if (Uint32 c = p.pixels[size_t(py * p.width + px)]; c != kClearPixel)
                    KVT_SetPixel(surface, Sint16(kLeft + 1 + px), Sint16(kTop + 1 + py),
                                 Uint8(c >> 16), Uint8(c >> 8), Uint8(c));
    }
    // The face is opaque in this theme, so it hides any earlier image.
    void PaintButton(SDL_Surface *surface, int w, int h, CUIFrame bevel)
    {
        KVT_FillRectAlpha(surface, kLeft, kTop, w, h, theme.faceColor);
        theme.DrawFrame(surface, kLeft, kTop, w, h, bevel);
    }

    kvt_test::GuardedSurface formatHolder{GetParam(), 1, 1}; // the sprite's format
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite sprite;
};

struct GfxCase {
    const char *what;
    int w, h, frame;
    bool doubleSize;
};
const GfxCase kGfxCases[] = {
    {"image inside the button", kW, kH, 0, false},
    {"image cut at the right and bottom", 6, 5, 1, false},
    {"double size", kW, kH, 0, true},
    {"a frame the sprite lacks", kW, kH, 3, true},
    {"a negative frame", kW, kH, -1, false},
};

TEST_P(GfxButtonPixels, DrawPaintsFaceRestFrameAndTheImage)
{
    for (const GfxCase &c : kGfxCases) {
        SurfacePair s = Pair();
        CUIGfxButton button(kLeft, kTop, c.w, c.h, &theme, &sprite, c.frame, c.doubleSize);
        EXPECT_TRUE(button.SendMessage(CUIMSG_DRAW, 0, 0, s.actual)) << c.what;
        PaintButton(s.expected, c.w, c.h, CUIFrame::Rest);
        const bool hasFrame = c.frame >= 0 && c.frame < int(kPictures.size());
        if (hasFrame && c.doubleSize)
            KVT_DoubleSizeBlit(sprite.GetFrameSurface(c.frame), s.expected, kLeft + 1, kTop + 1);
        else if (hasFrame)
            PaintImage(s.expected, c.frame, c.w - 2, c.h - 2);
        EXPECT_EQ("", s.Difference()) << c.what;
    }
}

// One multi-image button through a sequence: after each message, the
// answer, the value, and the whole picture (face, bevel, only the image
// of the present frame).
struct Step {
    const char *what;
    int message;
    intptr_t param1;
    bool answer;
    int frame;
    CUIFrame bevel;
};
const Step kSteps[] = {
    {"draw", CUIMSG_DRAW, 0, true, 0, CUIFrame::Rest},
    {"press", CUIMSG_MOUSEDOWN, CUIPackPosition(kLeft + 3, kTop + 3), true, 1, CUIFrame::Sunken},
    {"release", CUIMSG_MOUSEUP, CUIPackPosition(kLeft + 3, kTop + 3), true, 1, CUIFrame::Active},
    {"Return", CUIMSG_KEYDOWN, SDLK_RETURN, true, 2, CUIFrame::Active},
    {"Tab", CUIMSG_KEYDOWN, SDLK_TAB, false, 2, CUIFrame::Active},
    {"press wraps", CUIMSG_MOUSEDOWN, CUIPackPosition(kLeft + 3, kTop + 3), true, 0,
     CUIFrame::Sunken},
    {"refresh", CUIMSG_REFRESH, 0, true, 0, CUIFrame::Sunken},
    {"leave", CUIMSG_MOUSELEAVE, 0, true, 0, CUIFrame::Rest},
    {"draw again keeps the value", CUIMSG_DRAW, 0, true, 0, CUIFrame::Rest},
    {"press on the corner turns too", CUIMSG_MOUSEDOWN, CUIPackPosition(kLeft, kTop), true, 1,
     CUIFrame::Sunken},
    {"set text", CUIMSG_SETTEXT, 0, false, 1, CUIFrame::Sunken},
    {"message 50", 50, 0, false, 1, CUIFrame::Sunken},
};

TEST_P(GfxButtonPixels, MultiButtonCyclesThroughTheFramesAndWraps)
{
    SurfacePair s = Pair();
    CUIMultiGfxButton button(kLeft, kTop, kW, kH, &theme, &sprite, false);
    for (const Step &step : kSteps) {
        EXPECT_EQ(step.answer, button.SendMessage(step.message, step.param1, 0, s.actual))
            << step.what;
        EXPECT_EQ(step.frame, button.GetFrame()) << step.what;
        PaintButton(s.expected, kW, kH, step.bevel);
        PaintImage(s.expected, step.frame, kW - 2, kH - 2);
        EXPECT_EQ("", s.Difference()) << step.what;
    }
}

// SetFrame takes only frames the sprite has and draws nothing; a refresh
// before any draw has nothing to restore and puts the image over what is
// there.
TEST_P(GfxButtonPixels, MultiButtonSetFrameAndRefreshBeforeDraw)
{
    SurfacePair s = Pair();
    CUIMultiGfxButton button(kLeft, kTop, kW, kH, &theme, &sprite, false);
    for (int index : {2, 3, -1})
        button.SetFrame(index);
    EXPECT_EQ(2, button.GetFrame()) << "indices past either end must be ignored";
    EXPECT_EQ("", s.Difference()) << "SetFrame must not draw";
    EXPECT_TRUE(button.SendMessage(CUIMSG_REFRESH, 0, 0, s.actual));
    PaintImage(s.expected, 2, kW - 2, kH - 2);
    EXPECT_EQ("", s.Difference()) << "refresh before draw";
}

// A sprite without frames: no image anywhere, the value stays at 0, and
// presses and Return still answer and paint the bevel.
TEST_P(GfxButtonPixels, EmptySpriteDrawsNoImageAndStaysAtFrameZero)
{
    KVT_Sprite empty;
    for (bool doubleSize : {false, true}) {
        SurfacePair s = Pair();
        CUIMultiGfxButton multi(kLeft, kTop, kW, kH, &theme, &empty, doubleSize);
        multi.SendMessage(CUIMSG_DRAW, 0, 0, s.actual);
        multi.SetFrame(0);
        EXPECT_TRUE(multi.SendMessage(CUIMSG_MOUSEDOWN, CUIPackPosition(8, 8), 1, s.actual));
        EXPECT_TRUE(multi.SendMessage(CUIMSG_KEYDOWN, SDLK_RETURN, 0, s.actual));
        EXPECT_EQ(0, multi.GetFrame()) << "double size " << doubleSize;
        PaintButton(s.expected, kW, kH, CUIFrame::Sunken);
        EXPECT_EQ("", s.Difference()) << "double size " << doubleSize;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, GfxButtonPixels, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
