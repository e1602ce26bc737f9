#include <algorithm>
#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/shade.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/dialogs/sdb_open_file.h>
#include <kvt/ui/dialogs/sdb_save_file.h>
#include <kvt/ui/lists/string_list.h>

#include "support/events.h"
#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/temp_dir.h"
#include "support/theme.h"

namespace {

// The dialog stands inside a margin of the surface so that a lost offset shows.
constexpr int kX = 10, kY = 8, kW = 200, kH = 180, kSurfaceW = 230, kSurfaceH = 200;
const char *const kTitle = "Pick", *const kOk = "OK", *const kCancel = "Cancel";

using kvt_test::Click;
using kvt_test::Events;
using kvt_test::Join;
using kvt_test::Point;
using kvt_test::Type;

// Inside the row area of the list, right of its 21-pixel scroll bar.
Point Row(int n) { return {kX + 45, kY + 30 + 16 * n + 8}; }
constexpr Point kOkButton{kX + 50, kY + kH - 20}, kCancelButton{kX + 150, kY + kH - 20},
    kField{kX + 50, kY + kH - 60};

// Runs `test` on a scanned body of the open (save false) or the save dialog.
template <class Test>
void WithBody(bool save, int width, CUITheme *theme, KVT_Sprite *font, const char *suffix,
              Test test)
{
    auto run = [&](auto &&body) {
        body.ScanDir(suffix);
        test(body);
    };
    if (save)
        run(CUISDBSaveFile(kX, kY, width, kH, theme, font, kTitle, kOk, kCancel));
    else
        run(CUISDBOpenFile(kX, kY, width, kH, theme, font, kTitle, kOk, kCancel));
}

// Every test runs at every depth in a directory with three names, a dot
// name and a folder, as the current one.
class DialogBody : public ::testing::TestWithParam<kvt_test::FormatCase> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.ok());
        for (const char *name : {"one.txt", "two.txt", "three.dat", ".hidden"})
            ASSERT_TRUE(dir.MakeFile(name)) << name;
        ASSERT_TRUE(dir.MakeDir("sub.txt"));
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, surface.get()->format));
    }
    void TearDown() override
    {
        EXPECT_TRUE(surface.GuardsIntact());
        font.FreeFrames();
    }

    kvt_test::TempCurrentDir dir;
    kvt_test::SurfacePair pair{GetParam(), kSurfaceW, kSurfaceH, 7, 4};
    kvt_test::GuardedSurface &surface = pair.actual;
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

TEST_P(DialogBody, FullDrawFramesTheBodyAndPlacesTheTitleFourPixelsRightOfCentre)
{
    for (bool save : {false, true})
        WithBody(save, kW, &theme, &font, "", [&](auto &body) {
            pair.actual.FillColour(0, 0, 0);
            body.FullDraw(pair.actual);
            EXPECT_TRUE(body.screen->focusWidget == 0 && body.screen->widgets[0]->focused)
                << "the focus does not start on the list";
            // The widgets are taken as drawn; the title band is wiped and the
            // title painted where it belongs, and the frame painted again.
            pair.Settle();
            SDL_Rect band{kX + 1, kY + 1, kW - 2, 28};
            SDL_FillRect(pair.expected, &band, SDL_MapRGB(pair.expected.get()->format, 0, 0, 0));
            int centred = kX + (kW - KVT_GetTextWidth(&font, kTitle)) / 2;
            KVT_DisplayText(pair.expected, &font, centred + 4, kY + 4, kTitle);
            KVT_RectShade(pair.expected, kX, kY, kW, kH, theme.activeFirst, theme.activeMid,
                          theme.activeLast);
            EXPECT_EQ("", pair.Difference()) << (save ? "save" : "open") << " body";
        });
}

TEST_P(DialogBody, ScanDirListsTheNamesExceptDotEntriesIntoSlotZero)
{
    const struct {
        const char *suffix;
        std::vector<std::string> names;
    } cases[] = {
        {"", {".hidden", "one.txt", "sub.txt", "three.dat", "two.txt"}},
        {".txt", {"one.txt", "sub.txt", "two.txt"}},
        {"zzz", {}},
    };
    for (bool save : {false, true})
        for (const auto &c : cases)
            WithBody(save, kW, &theme, &font, c.suffix, [&](auto &body) {
                std::vector<std::string> names;
                for (ListNode *node = body.fileNames->GetHead(); node; node = node->next)
                    names.push_back(static_cast<const char *>(node->element));
                std::sort(names.begin(), names.end());
                EXPECT_EQ(c.names, names) << "suffix \"" << c.suffix << "\"";
                auto *list = dynamic_cast<CUIStringList *>(body.screen->widgets[0]);
                ASSERT_NE(nullptr, list) << "slot 0 is not the list";
                EXPECT_EQ(int(names.size()), list->scrollBar->GetInterval() + 1) << "rows";
                EXPECT_EQ(body.fileNames, list->strings) << "the list shows other names";
            });
}

TEST_P(DialogBody, RectanglesFollowTheWidthIncludingAnOddOne)
{
    // Hand-computed for x 10, y 8, height 180: buttons (width - 16) >> 1
    // wide with a gap of 8, leaving 4 on the right, or 5 for an odd width.
    const struct {
        bool save;
        int width;
        std::vector<std::string> rects;
    } cases[] = {
        {false, 200, {"14,38 192x110", "14,156 92x28", "114,156 92x28"}},
        {false, 201, {"14,38 193x110", "14,156 92x28", "114,156 92x28"}},
        {true, 200, {"14,38 192x70", "14,118 192x28", "14,156 92x28", "114,156 92x28"}},
        {true, 203, {"14,38 195x70", "14,118 195x28", "14,156 93x28", "115,156 93x28"}},
    };
    for (const auto &c : cases)
        WithBody(c.save, c.width, &theme, &font, "", [&](auto &body) {
            std::vector<std::string> rects;
            for (int i = 0; i < body.screen->nbWidgets; ++i) {
                const CUIObject *w = body.screen->widgets[i];
                rects.push_back(std::to_string(w->x) + "," + std::to_string(w->y) + " " +
                                std::to_string(w->width) + "x" + std::to_string(w->height));
            }
            EXPECT_EQ(c.rects, rects) << (c.save ? "save" : "open") << ", width " << c.width;
        });
}

const Events kQuitAndKeyUp = {[] { SDL_Event e{}; e.type = SDL_QUIT; return e; }(),
                              kvt_test::KeyUpEvent(SDLK_RETURN)};

struct Scenario {
    const char *what;
    bool save;
    const char *suffix; // "zzz" leaves the list empty
    Events events;
    bool finished; // after the last event; none before it may finish
    // The name at the end: null for none, else a leading digit N stands
    // for the name at list position N, followed by the rest of the text.
    const char *name;
    bool state = false; // save, once finished: GetState
};

const Scenario kScenarios[] = {
    {"open: OK untouched", false, "", Click(kOkButton), true, "0", false},
    {"open: a row, then OK", false, "", Join({Click(Row(2)), Click(kOkButton)}), true, "2"},
    {"open: Cancel after a choice", false, "", Join({Click(Row(1)), Click(kCancelButton)}),
     true, nullptr},
    {"open: OK on an empty list", false, "zzz", Click(kOkButton), true, nullptr},
    {"open: Return on the list", false, "", Type("\r"), false, nullptr},
    {"open: Return on OK", false, "", Type("\t\r"), true, "0"},
    {"open: Return on Cancel", false, "", Type("\t\t\r"), true, nullptr},
    {"open: Tab walks list, OK, Cancel and round", false, "", Type("\t\t\t\t\r"), true, "0"},
    {"open: release over the other button", false, "", Click(kOkButton, kCancelButton), false,
     nullptr},
    {"open: quit and a key release", false, "", kQuitAndKeyUp, false, nullptr},
    {"save: OK, empty field", true, "", Click(kOkButton), true, "", true},
    {"save: a clicked name overwrites typing, then is edited", true, "",
     Join({Click(kField), Type("zz"), Click(Row(1)), Type("\tx"), Click(kOkButton)}), true,
     "1x", true},
    {"save: Return on the list copies the selection", true, "", Type("\r"), false, "0"},
    {"save: Return in the field", true, "", Type("\ta\r"), false, "a"},
    {"save: Return on OK", true, "", Type("\t\t\r"), true, "", true},
    {"save: Return on Cancel after typing", true, "", Type("\tab\t\t\r"), true, "ab", false},
    {"save: Tab walks list, field, OK, Cancel and round", true, "", Type("\t\t\t\t\t\t\r"),
     true, "", true},
    {"save: a click in an empty list", true, "zzz",
     Join({Click(kField), Type("q"), Click(Row(0))}), false, "q"},
    {"save: release over the other button", true, "", Click(kCancelButton, kOkButton), false,
     ""},
};

std::string Expected(const char *name, List *names)
{
    if (name[0] < '0' || name[0] > '9')
        return name;
    return static_cast<const char *>(names->GetElementN(name[0] - '0')) + std::string(name + 1);
}

TEST_P(DialogBody, EachSequenceEndsOrGoesOnWithTheRightName)
{
    for (const Scenario &s : kScenarios)
        WithBody(s.save, kW, &theme, &font, s.suffix, [&](auto &body) {
            body.FullDraw(surface);
            bool finished = false;
            for (size_t i = 0; i < s.events.size(); ++i) {
                finished = body.SendMessage(s.events[i], surface);
                EXPECT_TRUE(!finished || i + 1 == s.events.size()) << s.what << ": early end";
            }
            EXPECT_EQ(s.finished, finished) << s.what;
            std::string expected = s.name ? Expected(s.name, body.fileNames) : "";
            EXPECT_STREQ(s.name ? expected.c_str() : nullptr, body.GetFileName()) << s.what;
            if constexpr (std::is_same_v<std::decay_t<decltype(body)>, CUISDBSaveFile>) {
                EXPECT_TRUE(!s.finished || s.state == body.GetState()) << s.what << ": state";
            }
        });
}

INSTANTIATE_TEST_SUITE_P(AllFormats, DialogBody, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
