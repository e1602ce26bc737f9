#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/sprite/sprite.h>

#include "support/expected.h"
#include "support/sprite_file.h"
#include "support/surfaces.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::kClearPixel;

namespace {

enum class Op { Display, Clipped, Alpha };

struct DisplayCase {
    const char *name;
    Op op;
    Sint16 x, y;
    Uint32 frame;
    Uint16 w, h; // the part shown by Clipped, the alpha of Alpha
    bool drawn;
    int left, top; // where the frame's top left corner is expected
};

// Frame 0 is anchored at (3, 2); frame 1, the same picture, at
// (65535, 0), which is one pixel to the left of its corner.
const kvt_test::SpritePicture kPicture = {
    5, 4, 3, 2,
    {0x102030, kClearPixel, 0x405060, 0x708090, 0xA0B0C0,
     0xC0FFEE, 0x00FF00,    kClearPixel, kClearPixel, 0x0000FF,
     0xFF0000, 0x123456,    0x654321, 0xFEDCBA, 0x0F0F0F,
     kClearPixel, 0x777777, 0x888888, 0x999999, kClearPixel}};

class SpriteDisplayFormats : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        kvt_test::SpritePicture shifted = kPicture;
        shifted.hotX = Sint16(-1);
        shifted.hotY = 0;
        const std::vector<Uint8> file = kvt_test::SpriteFileBytes(
            {kvt_test::PackPicture(kPicture), kvt_test::PackPicture(shifted)});
        ASSERT_TRUE(kvt_test::LoadSpriteBytes(&sprite, file, target.get()->format));
        ASSERT_TRUE(kvt_test::LoadSpriteBytes(&twin, file, target.get()->format));
    }
    void TearDown() override
    {
        sprite.FreeFrames();
        twin.FreeFrames();
    }

    // Whether SDL itself blits a frame with surface alpha `alpha` onto the
    // target's format, asked of a twin of the sprite so that the sprite's
    // own alpha state is left to the calls under test. The SDLs differ on
    // a palette: classic SDL blits alpha 255 as opaque and refuses any
    // other alpha, sdl12-compat refuses every alpha blit.
    bool SdlTakesAlphaBlit(Uint8 alpha)
    {
        GuardedSurface scratch(GetParam(), 12, 10, 4);
        SDL_Surface *frame = twin.GetFrameSurface(0);
        SDL_SetAlpha(frame, SDL_SRCALPHA, alpha);
        return SDL_BlitSurface(frame, nullptr, scratch, nullptr) == 0;
    }

    bool Run(const DisplayCase &c)
    {
        switch (c.op) {
        case Op::Display: return sprite.Display(target, c.x, c.y, c.frame);
        case Op::Clipped: return sprite.DisplayClipped(target, c.x, c.y, c.w, c.h, c.frame);
        case Op::Alpha: return sprite.DisplayAlpha(target, c.x, c.y, c.frame, Uint8(c.w));
        }
        return false;
    }

    // The target with the frame's opaque pixels copied to (left, top), cut
    // to w x h and to the surface.
    ExpectedPixels Expect(int left, int top, int w, int h) const
    {
        ExpectedPixels want(target);
        for (int py = 0; py < std::min(h, kPicture.height); ++py)
            for (int px = 0; px < std::min(w, kPicture.width); ++px) {
                const int x = left + px, y = top + py;
                const bool clear = kPicture.pixels[size_t(py * kPicture.width + px)] == kClearPixel;
                if (!clear && x >= 0 && y >= 0 && x < 12 && y < 10)
                    want.Set(x, y, kvt_test::ReadValue(sprite.GetFrameSurface(0), px, py));
            }
        return want;
    }

    GuardedSurface target{GetParam(), 12, 10, 4}; // SDL blits want whole-pixel pitches
    KVT_Sprite sprite, twin;
};

// The cases run in this order on one sprite: the displays after the
// translucent ones prove that each call sets the frame's alpha state anew.
// SDL decides whether an alpha blit happens at all: where it refuses one
// (onto a palette) the display answers false and draws nothing. A frame
// with an alpha channel blends by that channel, ignoring both the key and
// the alpha given, so the alpha cases are left out there.
TEST_P(SpriteDisplayFormats, FramesLandWithTheirAnchorOnThePosition)
{
    const std::vector<DisplayCase> cases = {
        {"alpha 0 is invisible", Op::Alpha, 4, 4, 0, 0, 0, true, 0, 0},
        {"anchor (3, 2) at (10, 10), cut by the edges", Op::Display, 10, 10, 0, 0, 0, true, 7, 8},
        {"alpha 255 is opaque", Op::Alpha, 4, 4, 0, 255, 0, true, 1, 2},
        {"anchor 65535 wraps to -1", Op::Display, 4, 3, 1, 0, 0, true, 5, 3},
        {"clipped to the top left 2 x 3", Op::Clipped, 4, 4, 0, 2, 3, true, 1, 2},
        {"clipped larger than the frame", Op::Clipped, 4, 4, 0, 100, 100, true, 1, 2},
        {"frame equal to the count", Op::Display, 4, 4, 2, 0, 0, false, 0, 0},
        {"frame equal to the count, clipped", Op::Clipped, 4, 4, 2, 9, 9, false, 0, 0},
        {"frame equal to the count, with alpha", Op::Alpha, 4, 4, 2, 255, 0, false, 0, 0},
        {"negative frame", Op::Clipped, 4, 4, Uint32(-1), 9, 9, false, 0, 0},
        {"negative frame with alpha", Op::Alpha, 4, 4, Uint32(-1), 255, 0, false, 0, 0},
    };
    const SDL_PixelFormat *format = target.get()->format;
    std::mt19937 rng(5);
    for (const DisplayCase &c : cases) {
        if (c.op == Op::Alpha && format->Amask != 0)
            continue;
        target.FillRandom(rng);
        const bool translucent = c.op == Op::Alpha && c.w < 255;
        const bool drawn = c.drawn && (c.op != Op::Alpha || SdlTakesAlphaBlit(Uint8(c.w)));
        const bool shows = drawn && !translucent;
        const int w = c.op == Op::Clipped ? c.w : 100, h = c.op == Op::Clipped ? c.h : 100;
        const ExpectedPixels want = shows ? Expect(c.left, c.top, w, h) : ExpectedPixels(target);
        EXPECT_EQ(drawn, Run(c)) << c.name;
        EXPECT_EQ("", want.Differences(target)) << c.name;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, SpriteDisplayFormats,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
