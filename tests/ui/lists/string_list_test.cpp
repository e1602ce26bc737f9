#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/lists/string_list.h>
#include <kvt/util/list.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/surfaces.h"
#include "support/theme.h"

using kvt_test::FormatCase;

namespace {

// A list at (4, 3), 70 x 33 with rows of 6 pixels: five whole rows.
constexpr int kX = 4, kY = 3, kW = 70, kH = 33, kRow = 6, kBar = 10;

struct RowsCase {
    const char *what;
    std::vector<std::string> added; // in the order of AddElement
    int nbEl, base;
    std::string addedLater; // added after the widget is built, if not ""
    std::vector<std::string> rows; // the texts expected from the top row down
};

const RowsCase kCases[] = {
    {"the string added last is on top", {"ab", "cd", "ef"}, 3, 0, "", {"ef", "cd", "ab"}},
    {"the view starts at its base",
     {"s0", "s1", "s2", "s3", "s4", "s5", "s6", "s7"}, 8, 2, "", {"s5", "s4", "s3", "s2", "s1"}},
    {"a string added later pushes the rows down and the oldest out of reach",
     {"ab", "cd"}, 2, 0, "new", {"new", "cd"}},
    {"a row wider than the list is cut at the face", {"a string of text wider than the list"},
     1, 0, "", {"a string of text wider than the list"}},
};

class StringListPixels : public ::testing::TestWithParam<FormatCase> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, formatHolder.get()->format));
    }
    void TearDown() override { font.FreeFrames(); }

    kvt_test::GuardedSurface formatHolder{GetParam(), 1, 1}; // the font's format
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

// What the drawn list should look like: the face (alpha 0, so the face
// colour itself), one line of text per row cut at the face (some glyphs of
// the test font reach above their row), and the mark on element 0 when it
// is in view.
void PaintExpected(SDL_Surface *surface, const CUITheme &theme, KVT_Sprite *font,
                   const RowsCase &c)
{
    int left = kX + kBar + 1, w = kW - kBar - 2;
    KVT_FillRectAlpha(surface, left, kY + 1, w, kH - 2, theme.faceColor);
    SDL_Rect face = {Sint16(left), Sint16(kY + 1), Uint16(w), Uint16(kH - 2)};
    SDL_SetClipRect(surface, &face);
    for (size_t i = 0; i < c.rows.size(); ++i)
        KVT_DisplayText(surface, font, left, kY + int(i) * kRow + 1, c.rows[i].c_str());
    SDL_SetClipRect(surface, nullptr);
    if (c.base == 0)
        theme.DrawFrame(surface, left, kY + 1, w, kRow, CUIFrame::Active);
}

// Rows are cut at the face (nothing beside the list changes), inside
// whatever clip rectangle the caller had, which is back afterwards.
TEST_P(StringListPixels, RowsShowTheStringsOfTheList)
{
    const SDL_Rect callersClip = {1, 1, 88, 38};
    for (const RowsCase &c : kCases) {
        kvt_test::SurfacePair pair(GetParam(), 90, 40, 7, 4);
        List strings;
        for (const std::string &s : c.added)
            strings.AddElement(const_cast<char *>(s.c_str()));
        CUIStringList list(kX, kY, kW, kH, &theme, c.nbEl, kRow, kBar);
        list.SetFont(&font);
        list.SetStringList(&strings);
        if (!c.addedLater.empty())
            strings.AddElement(const_cast<char *>(c.addedLater.c_str()));
        list.scrollBar->SetBaseVal(c.base);
        SDL_SetClipRect(pair.actual, &callersClip);
        const std::vector<Uint8> before = pair.actual.PixelBytes();
        // Only the rows are compared: what DRAW leaves is taken as it is,
        // and the refresh must paint the rows anew over the restored face.
        list.SendMessage(CUIMSG_DRAW, 0, 0, pair.actual);
        pair.Settle();
        PaintExpected(pair.expected, theme, &font, c);
        list.SendMessage(CUIMSG_REFRESH, 0, 0, pair.actual);
        EXPECT_EQ("", pair.Difference()) << c.what;
        EXPECT_EQ("", kvt_test::ChangedOutside(pair.actual, before, SDL_Rect{kX, kY, kW, kH}))
            << c.what;
        SDL_Rect clip;
        SDL_GetClipRect(pair.actual, &clip);
        EXPECT_TRUE(clip.x == 1 && clip.y == 1 && clip.w == 88 && clip.h == 38) << c.what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, StringListPixels, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
