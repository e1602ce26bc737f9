#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/sprite/text.h>

#include "support/sprite_file.h"
#include "support/surfaces.h"

using kvt_test::GuardedSurface;

namespace {

// Text on a 20 x 8 surface in the test font, whose glyph widths are (for
// the characters used here) ' ' 1, '!' 4, '"' 2, '#' 5, '$' 3, 'A' 5,
// 'B' 3, 'C' 1; '"' is anchored one pixel right of its corner.
class Text : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(kvt_test::LoadTestFont(&font, want.get()->format)); }
    void TearDown() override { font.FreeFrames(); }

    // Both surfaces get the same random background.
    void Clear()
    {
        const unsigned seed = unsigned(rng());
        std::mt19937 a(seed), b(seed);
        want.FillRandom(a);
        got.FillRandom(b);
    }
    // What a text must look like: the given glyphs side by side from x.
    void DrawGlyphs(int x, int y, const std::vector<Uint32> &frames)
    {
        for (Uint32 frame : frames) {
            font.Display(want, Sint16(x), Sint16(y), frame);
            x += font.GetW(int(frame));
        }
    }

    std::mt19937 rng{9};
    GuardedSurface want{kvt_test::AllFormats()[5], 20, 8, 4};
    GuardedSurface got{kvt_test::AllFormats()[5], 20, 8, 4};
    KVT_Sprite font;
};

struct TextCase {
    const char *name;
    const char *text;
    int x;
    std::vector<Uint32> drawn; // the frames that must show, in order
    int width;                 // worked out by hand from the glyph widths
    Uint32 glyphs = 0;         // a font of the test font's first glyphs; 0: all
};

TEST_F(Text, GlyphsAdvanceByTheirFrameWidths)
{
    const std::vector<TextCase> cases = {
        {"empty text", "", 3, {}, 0},
        {"mixed widths", "!#A C", 1, {1, 3, 33, 0, 35}, 16},
        // Read as unsigned, 0xE9 and 0x80 would be frames 201 and 96;
        // 0x7F, frame 95, is the last code with a glyph.
        {"control and high characters", "A\n\xE9\x1F\x80" "B\x7F", 2, {33, 34, 95}, 9},
        {"starting left of the surface", "#$A", -4, {3, 4, 33}, 13},
        // The fourth pen is 20, the surface's width: '"' would show at 19.
        {"crossing the right edge", "###\"", 5, {3, 3, 3}, 17},
        {"pen far left", "A", -2000000000, {33}, 5},
        // The font ends at 'A', so 'B' is the first code without a glyph.
        {"one past the last glyph", "A!B\"", 2, {33, 1, 2}, 11, 34},
    };
    for (const TextCase &c : cases) {
        KVT_Sprite shortFont;
        KVT_Sprite *used = &font;
        if (c.glyphs > 0) {
            std::vector<kvt_test::SpritePicture> glyphs = kvt_test::TestFontGlyphs();
            glyphs.resize(c.glyphs);
            ASSERT_TRUE(kvt_test::LoadSpritePictures(&shortFont, glyphs, want.get()->format));
            used = &shortFont;
        }
        Clear();
        DrawGlyphs(c.x, 3, c.drawn);
        KVT_DisplayText(got, used, c.x, 3, c.text);
        EXPECT_EQ("", kvt_test::FirstDifference(want, got)) << c.name;
        EXPECT_EQ(c.width, KVT_GetTextWidth(used, c.text)) << c.name;
        shortFont.FreeFrames();
    }
}

TEST_F(Text, CentredTextStartsHalfTheSpareWidthInRoundingDown)
{
    struct Centre {
        int width;
        const char *text; // "!$" is 7 wide, "#A" 10
        int start;
    };
    for (const Centre &c : {Centre{10, "!$", 7}, Centre{7, "#A", 4}, Centre{0, "!$", 2}}) {
        Clear();
        KVT_DisplayText(want, &font, c.start, 2, c.text);
        KVT_DisplayTextCenter(got, &font, 6, 2, c.width, c.text);
        EXPECT_EQ("", kvt_test::FirstDifference(want, got))
            << "\"" << c.text << "\" centred in " << c.width << " from 6";
    }
}

} // namespace
