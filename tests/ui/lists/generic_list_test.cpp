#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <tuple>
#include <vector>

#include <kvt/draw/pixel.h>
#include <kvt/ui/lists/generic_list.h>

#include "support/surface_pair.h"
#include "support/theme.h"

namespace {

// A list at (10, 5), 80 x 53, rows of 10 pixels: five whole rows and a
// strip of 3 pixels below them. The bar is 20 wide with 16-pixel buttons.
constexpr int kX = 10, kY = 5, kW = 80, kH = 53, kRow = 10, kBar = 20, kVisible = 5;

using Row = std::tuple<int, int, int>; // element, left, top

// Writes down the rows it is asked to paint, and paints none.
class LoggingList : public CUIGenericList {
public:
    LoggingList(CUITheme *theme, int nbEl, int rowHeight = kRow)
        : CUIGenericList(kX, kY, kW, kH, theme, nbEl, rowHeight, kBar) {}
    void DisplayListElement(int element, int left, int top, SDL_Surface *) override
    {
        rows.emplace_back(element, left, top);
    }
    std::vector<Row> rows;
};

// The rows a refresh should paint: from `base`, as many as fit and exist.
std::vector<Row> RowsFrom(int base, int count)
{
    std::vector<Row> rows;
    for (int i = 0; i < count; ++i)
        rows.emplace_back(base + i, kX + kBar + 1, kY + i * kRow + 1);
    return rows;
}

struct Bench {
    CUITheme theme = kvt_test::DistinctTheme();
    kvt_test::SurfacePair pair;
    LoggingList list;
    Bench(int nbEl, int base = 0, const kvt_test::FormatCase &format = kvt_test::AllFormats()[5],
          int rowHeight = kRow)
        : pair(format, 110, 70, 7, 4), list(&theme, nbEl, rowHeight)
    {
        list.scrollBar->SetBaseVal(base);
        list.SendMessage(CUIMSG_DRAW, 0, 0, pair.actual);
        list.rows.clear();
        pair.Settle();
    }
    bool Send(int message, intptr_t param1, intptr_t param2 = SDL_BUTTON_LMASK)
    {
        return list.SendMessage(message, param1, param2, pair.actual);
    }
    bool Press(int px, int py) { return Send(CUIMSG_MOUSEDOWN, CUIPackPosition(px, py)); }
    bool Key(SDLKey key) { return Send(CUIMSG_KEYDOWN, key, 0); }
    int Val() const { return list.GetSelectedElement(); }
    int Base() const { return list.scrollBar->GetBaseVal(); }
    // Whether anything in the bar's column changed since the last Settle.
    bool BarColumnChanged() const
    {
        for (int py = kY; py < kY + kH; ++py)
            for (int px = kX; px < kX + kBar; ++px)
                if (kvt_test::ReadValue(pair.actual, px, py) !=
                    kvt_test::ReadValue(pair.expected, px, py))
                    return true;
        return false;
    }
};

struct PressCase {
    const char *what;
    int nbEl, base, px, py, val, baseAfter;
    bool barHeard;
};

const PressCase kPresses[] = {
    {"row 2 selects element 2", 20, 0, kX + 40, kY + 25, 2, 0, false},
    {"the first row counts from the view's base", 20, 7, kX + 40, kY + 5, 7, 7, false},
    {"the row's first pixel is y, not y + 1", 20, 0, kX + kBar, kY + kRow, 1, 0, false},
    {"the strip below the last whole row picks an unseen element", 20, 0, kX + 40, kY + 51,
     5, 0, false},
    {"the strip with no element there keeps the selection", 5, 0, kX + 40, kY + 51, 0, 0,
     false},
    {"below the last of three elements keeps the selection", 3, 0, kX + 40, kY + 35, 0, 0,
     false},
    {"the empty list keeps 0", 0, 0, kX + 40, kY + 5, 0, 0, false},
    {"bottom button with more elements than rows scrolls", 20, 0, kX + 5, kY + kH - 4, 0, 1,
     true},
    {"bottom button with one element out of view scrolls", 6, 0, kX + 5, kY + kH - 4, 0, 1,
     true},
    {"bottom button with all elements in view: bar not told", 5, 0, kX + 5, kY + kH - 4, 0, 0,
     false},
    {"track below the thumb pages down", 20, 0, kX + 5, kY + 35, 0, 5, true},
    {"track press with few elements: bar not told", 3, 0, kX + 5, kY + 35, 0, 0, false},
};

TEST(GenericList, MousePressesMoveSelectionInRowsAndViewInBar)
{
    for (const PressCase &c : kPresses) {
        Bench b(c.nbEl, c.base);
        EXPECT_TRUE(b.Press(c.px, c.py)) << c.what;
        EXPECT_EQ(c.val, b.Val()) << c.what;
        EXPECT_EQ(c.baseAfter, b.Base()) << c.what;
        EXPECT_EQ(c.barHeard, b.BarColumnChanged()) << c.what;
        int shown = std::min(kVisible, c.nbEl);
        EXPECT_EQ(RowsFrom(c.baseAfter, shown), b.list.rows) << c.what << ": rows not refreshed";
        EXPECT_TRUE(b.pair.actual.GuardsIntact()) << c.what;
    }
}

struct KeyCase {
    const char *what;
    int nbEl, val, base;
    SDLKey key;
    bool answer;
    int valAfter, baseAfter;
};

const KeyCase kKeys[] = {
    {"up at element 0 changes nothing", 20, 0, 0, SDLK_UP, true, 0, 0},
    {"down inside the view moves only the selection", 20, 3, 0, SDLK_DOWN, true, 4, 0},
    {"down off the last visible row scrolls by one", 20, 4, 0, SDLK_DOWN, true, 5, 1},
    {"up off the first visible row scrolls by one", 20, 6, 6, SDLK_UP, true, 5, 5},
    {"down at the last element changes nothing", 20, 19, 15, SDLK_DOWN, true, 19, 15},
    {"selection far above: up scrolls by one only", 20, 2, 10, SDLK_UP, true, 1, 9},
    {"selection far above: down moves only the selection", 20, 2, 10, SDLK_DOWN, true, 3, 10},
    {"selection far below: down scrolls by one only", 20, 18, 0, SDLK_DOWN, true, 19, 1},
    {"selection far below: up moves only the selection", 20, 18, 0, SDLK_UP, true, 17, 0},
    {"element 0 out of view: up still scrolls", 20, 0, 3, SDLK_UP, true, 0, 2},
    {"empty list: down", 0, 0, 0, SDLK_DOWN, true, 0, 0},
    {"empty list: up", 0, 0, 0, SDLK_UP, true, 0, 0},
    {"other keys are left to the screen", 20, 3, 0, SDLK_PAGEDOWN, false, 3, 0},
};

TEST(GenericList, KeysMoveTheViewByAtMostOne)
{
    for (const KeyCase &c : kKeys) {
        Bench b(c.nbEl, c.base);
        b.list.scrollBar->SetVal(c.val);
        EXPECT_EQ(c.answer, b.Key(c.key)) << c.what;
        EXPECT_EQ(c.valAfter, b.Val()) << c.what;
        EXPECT_EQ(c.baseAfter, b.Base()) << c.what;
    }
}

// The selection mark is the active frame around the selected row, only
// while that row is in view; a refresh restores the face under it first.
struct MarkCase {
    const char *what;
    int nbEl, base, val, rowHeight;
};

const MarkCase kMarks[] = {
    {"selected row in view", 20, 0, 2, kRow},
    {"selected row in view after scrolling", 20, 3, 5, kRow},
    {"selection below the view", 20, 0, 7, kRow},
    {"selection above the view", 20, 3, 0, kRow},
    {"the empty list marks its first row", 0, 0, 0, kRow},
    {"rows taller than the list: no row, no mark", 20, 0, 0, kH + 1},
};

class GenericListPixels : public ::testing::TestWithParam<kvt_test::FormatCase> {};

TEST_P(GenericListPixels, SelectionMarkOnlyWhenInView)
{
    for (const MarkCase &c : kMarks) {
        Bench b(c.nbEl, c.base, GetParam(), c.rowHeight);
        b.list.scrollBar->SetVal(c.val);
        b.Send(CUIMSG_REFRESH, 0, 0);
        // The face has alpha 0, so the restored face is the face colour.
        int left = kX + kBar + 1, w = kW - kBar - 2, d = c.val - c.base;
        KVT_FillRectAlpha(b.pair.expected, left, kY + 1, w, kH - 2, b.theme.faceColor);
        if (d >= 0 && d < kH / c.rowHeight)
            b.theme.DrawFrame(b.pair.expected, left, kY + d * c.rowHeight + 1, w, c.rowHeight,
                              CUIFrame::Active);
        EXPECT_EQ("", b.pair.Difference()) << c.what;
        int shown = std::min(kH / c.rowHeight, c.nbEl);
        EXPECT_EQ(size_t(shown), b.list.rows.size()) << c.what;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, GenericListPixels,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

TEST(GenericList, ThumbDragScrollsUntilTheRelease)
{
    Bench b(20);
    // The thumb (5 of 21 track pixels) starts at the track's top, row kY + 16.
    EXPECT_TRUE(b.Press(kX + 5, kY + 17));
    b.list.rows.clear();
    EXPECT_TRUE(b.Send(CUIMSG_MOUSEMOVE, CUIPackPosition(kX + 5, kY + 27)));
    EXPECT_LT(0, b.Base()) << "the drag did not scroll";
    EXPECT_EQ(RowsFrom(b.Base(), kVisible), b.list.rows) << "the drag did not refresh the rows";
    EXPECT_TRUE(b.Send(CUIMSG_MOUSEUP, CUIPackPosition(kX + 5, kY + 27)));
    b.list.rows.clear();
    // Off the bar, so that only a drag would take the move.
    EXPECT_FALSE(b.Send(CUIMSG_MOUSEMOVE, CUIPackPosition(kX + 40, kY + 17)))
        << "a move after the release still dragged";
    EXPECT_TRUE(b.list.rows.empty()) << "an unanswered move refreshed the rows";
}

} // namespace
