#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/ui/core/region_saver.h>

#include "support/expected.h"
#include "support/surfaces.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;

namespace {

TEST(RegionSaver, RestoreBeforeAnySaveFailsAndASecondSaveReplacesTheFirst)
{
    GuardedSurface surface(kvt_test::AllFormats()[5], 16, 12);
    KVT_RegionSaver saver;
    EXPECT_FALSE(saver.RestaurRegion(surface));
    ASSERT_TRUE(saver.SaveRegion(surface, 1, 1, 8, 8));
    ASSERT_TRUE(saver.SaveRegion(surface, 2, 3, 5, 4));
    ASSERT_NE(saver.image, nullptr);
    EXPECT_EQ(saver.image->w * 100 + saver.image->h, 504) << "the image is not the second one";
}

class RegionSaverAtFormat : public ::testing::TestWithParam<FormatCase> {};

// Save, scribble over everything, restore, twice: the saved part of the
// rectangle comes back byte for byte both times, nothing else changes,
// and the caller's surface keeps its blending settings (colour key and
// surface alpha, when set, are skipped for the copy and then put back).
// The restoring blit cuts `area` to the part it put back, at every edge.
TEST_P(RegionSaverAtFormat, RestoreBringsBackExactlyTheSavedPixelsOnTheSurface)
{
    const int w = 20, h = 14;
    struct Case {
        SDL_Rect saved, cut;
        Uint32 settings = 0; // SDL_SRCCOLORKEY, SDL_SRCALPHA, set before the save
    };
    const Case cases[] = {
        {{3, 4, 10, 5}, {3, 4, 10, 5}},         {{-2, 3, 6, 2}, {0, 3, 4, 2}},
        {{5, -3, 4, 7}, {5, 0, 4, 4}},          {{w - 3, 2, 8, 6}, {w - 3, 2, 3, 6}},
        {{4, h - 2, 5, 6}, {4, h - 2, 5, 2}},   {{-2, -3, 6, 7}, {0, 0, 4, 4}},
        {{-1, -1, 30, 30}, {0, 0, Uint16(w), Uint16(h)}},
        {{3, 4, 10, 5}, {3, 4, 10, 5}, SDL_SRCCOLORKEY},
        {{3, 4, 10, 5}, {3, 4, 10, 5}, SDL_SRCALPHA},
        {{-2, 3, 6, 2}, {0, 3, 4, 2}, SDL_SRCCOLORKEY | SDL_SRCALPHA},
    };
    std::mt19937 rng(7);
    for (const Case &c : cases) {
        const SDL_Rect &r = c.saved;
        GuardedSurface surface(GetParam(), w, h);
        surface.FillRandom(rng);
        SDL_PixelFormat *f = surface.get()->format;
        if (c.settings & SDL_SRCCOLORKEY)
            SDL_SetColorKey(surface, SDL_SRCCOLORKEY, SDL_MapRGB(f, 255, 0, 255));
        if (c.settings & SDL_SRCALPHA)
            SDL_SetAlpha(surface, SDL_SRCALPHA, 100);
        const Uint32 flags = surface.get()->flags, key = f->colorkey;
        const Uint8 alpha = f->alpha;
        ExpectedPixels saved(surface);
        KVT_RegionSaver saver;
        ASSERT_TRUE(saver.SaveRegion(surface, r.x, r.y, r.w, r.h));
        for (int round = 0; round < 2; ++round) {
            surface.FillRandom(rng);
            ExpectedPixels expected(surface);
            for (int y = std::max(0, int(r.y)); y < std::min(h, r.y + r.h); ++y)
                for (int x = std::max(0, int(r.x)); x < std::min(w, r.x + r.w); ++x)
                    expected.Set(x, y, saved.Get(x, y));
            EXPECT_TRUE(saver.RestaurRegion(surface));
            const std::string what = "restoring (" + std::to_string(r.x) + ", " +
                                     std::to_string(r.y) + ", " + std::to_string(r.w) + ", " +
                                     std::to_string(r.h) + "), round " + std::to_string(round);
            EXPECT_EQ(expected.Differences(surface), "") << what;
            const SDL_Rect &a = saver.area;
            EXPECT_EQ(std::vector<int>({c.cut.x, c.cut.y, c.cut.w, c.cut.h}),
                      std::vector<int>({a.x, a.y, a.w, a.h}))
                << what << ": area after the restore";
        }
        EXPECT_EQ(surface.get()->flags, flags) << "saving changed the surface's flags";
        EXPECT_EQ(f->colorkey, key) << "saving changed the colour key";
        EXPECT_EQ(f->alpha, alpha) << "saving changed the surface alpha";
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, RegionSaverAtFormat,
                         ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
