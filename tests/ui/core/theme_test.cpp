#include <algorithm>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/shade.h>
#include <kvt/ui/core/theme.h>

#include "support/expected.h"
#include "support/surfaces.h"
#include "support/temp_dir.h"
#include "support/temp_file.h"

using kvt_test::ExpectedPixels;
using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::TempFile;

namespace {

// The stored colours in file order, and every colour field in field order.
std::vector<KVT_RGBA *> Stored(CUITheme *t)
{
    return {&t->activeFirst, &t->activeLast, &t->restFirst, &t->restLast, &t->faceColor};
}
std::vector<KVT_RGBA *> AllColours(CUITheme *t)
{
    return {&t->activeFirst, &t->activeMid, &t->activeLast, &t->restFirst,
            &t->restMid,     &t->restLast,  &t->faceColor};
}

// Every colour byte of the theme set to seed, seed + 1, ...
void FillColours(CUITheme *t, int seed)
{
    for (KVT_RGBA *c : AllColours(t))
        *c = KVT_RGB(Uint8(seed), Uint8(seed + 1), Uint8(seed + 2), Uint8(seed + 3)), seed += 4;
}

std::vector<Uint8> Bytes(const std::vector<KVT_RGBA *> &colours)
{
    std::vector<Uint8> out;
    for (const KVT_RGBA *c : colours)
        out.insert(out.end(), {c->r, c->g, c->b, c->a});
    return out;
}

TEST(ThemeColours, RepackTakesTheMeanOfEachChannelAndKeepsTheMiddleAlpha)
{
    CUITheme t;
    FillColours(&t, 40);
    t.activeFirst = KVT_RGB(255, 0, 10, 1);
    t.activeLast = KVT_RGB(0, 0, 11, 2);
    t.restFirst = KVT_RGB(1, 254, 100, 3);
    t.restLast = KVT_RGB(2, 255, 201, 4);
    Uint8 activeAlpha = t.activeMid.a, restAlpha = t.restMid.a;
    t.RepackColor(nullptr);
    EXPECT_EQ(Bytes({&t.activeMid}), std::vector<Uint8>({127, 0, 10, activeAlpha}));
    EXPECT_EQ(Bytes({&t.restMid}), std::vector<Uint8>({1, 254, 150, restAlpha}));
}

TEST(ThemeFile, LoadOfAMissingFileFailsAndChangesNothing)
{
    CUITheme t;
    FillColours(&t, 3);
    std::vector<Uint8> before = Bytes(AllColours(&t));
    EXPECT_FALSE(t.Load("/nonexistent-folder/theme.kvt", nullptr));
    EXPECT_FALSE(t.Save("/nonexistent-folder/theme.kvt", nullptr));
    EXPECT_EQ(before, Bytes(AllColours(&t))) << "a failed open must leave the theme as it was";
}

// A directory cannot be opened for writing, so Save fails; it opens for
// reading but gives no bytes, so Load answers true as for an empty file
// and only the middle colours are worked out again.
TEST(ThemeFile, ADirectoryIsAnUnwritableEmptyFile)
{
    kvt_test::TempCurrentDir folder;
    ASSERT_TRUE(folder.ok() && folder.MakeDir("folder.theme"));
    CUITheme t;
    FillColours(&t, 3);
    const std::vector<Uint8> stored = Bytes(Stored(&t));
    EXPECT_FALSE(t.Save("folder.theme", nullptr));
    EXPECT_TRUE(t.Load("folder.theme", nullptr));
    EXPECT_EQ(stored, Bytes(Stored(&t)));
    EXPECT_EQ((t.activeFirst.r + t.activeLast.r) >> 1, t.activeMid.r);
}

// Byte k of the file replaces channel k % 4 of stored colour k / 4; what
// the file does not hold stays, and bytes past the twentieth are ignored.
// Saving writes the stored colours back in the same order. Both work the
// middle colours out again.
TEST(ThemeFile, LoadTakesOnlyTheBytesTheFileHolds)
{
    for (size_t length : {0, 6, 8, 20, 24}) {
        std::vector<Uint8> content(length);
        for (size_t k = 0; k < length; ++k)
            content[k] = Uint8(200 + k);
        TempFile file;
        file.Write(content);
        CUITheme t;
        FillColours(&t, 1);
        std::vector<Uint8> want = Bytes(Stored(&t));
        std::copy(content.begin(), content.begin() + std::min<size_t>(length, 20), want.begin());
        EXPECT_TRUE(t.Load(file.path(), nullptr)) << length << " bytes";
        EXPECT_EQ(want, Bytes(Stored(&t))) << length << " bytes";
        EXPECT_EQ((t.restFirst.g + t.restLast.g) >> 1, t.restMid.g) << length << " bytes";
        t.activeMid = KVT_RGB(1, 2, 3, 4);
        TempFile saved;
        EXPECT_TRUE(t.Save(saved.path(), nullptr)) << length << " bytes";
        EXPECT_EQ(want, saved.Read()) << length << " bytes: file layout";
        EXPECT_EQ((t.activeFirst.b + t.activeLast.b) >> 1, t.activeMid.b) << length << " bytes";
    }
}

// Each frame is the shaded rectangle of its triple; all colours differ, so
// a wrong slot or order shows.
TEST(ThemeFrames, EachFrameUsesItsTriple)
{
    CUITheme t;
    FillColours(&t, 20);
    struct {
        CUIFrame frame;
        KVT_RGBA first, middle, last;
    } const frames[] = {
        {CUIFrame::Rest, t.restFirst, t.restMid, t.restLast},
        {CUIFrame::Active, t.activeFirst, t.activeMid, t.activeLast},
        {CUIFrame::Sunken, t.activeLast, t.activeMid, t.activeFirst},
        {CUIFrame::SunkenRest, t.restLast, t.restMid, t.restFirst},
        {CUIFrame::Hover, t.activeFirst, t.restMid, t.activeLast},
    };
    const FormatCase format = kvt_test::EightBitChannelFormats()[0];
    for (const auto &f : frames) {
        GuardedSurface drawn(format, 12, 9), shaded(format, 12, 9);
        t.DrawFrame(drawn, 2, 1, 8, 6, f.frame);
        KVT_RectShade(shaded, 2, 1, 8, 6, f.first, f.middle, f.last);
        EXPECT_EQ("", kvt_test::FirstDifference(drawn, shaded)) << "frame " << int(f.frame);
    }
}

// Tiles lie on a grid anchored at the surface's origin: every painted
// pixel (x, y) shows tile pixel (x % W, y % H). The tile's columns and
// rows all hold different values, so any misplaced source shows.
class ThemeBackground : public ::testing::TestWithParam<FormatCase> {};

TEST_P(ThemeBackground, TilesFollowTheOriginGrid)
{
    const int tileW = 64, tileH = 5;
    GuardedSurface tile(GetParam(), tileW, tileH);
    SDL_SetAlpha(tile.get(), 0, 255); // a plain copy, even for formats with alpha
    ExpectedPixels tileValues(tile);
    for (int y = 0; y < tileH; ++y)
        for (int x = 0; x < tileW; ++x)
            tileValues.Set(x, y, Uint32(x + 64 * y) * 0x01030507u);
    tileValues.WriteTo(tile);
    CUITheme t;
    t.background = tile.get();
    const SDL_Rect areas[] = {kvt_test::Rect(70, 1, 20, 3), kvt_test::Rect(70, 3, 60, 12),
                              kvt_test::Rect(-5, -2, 30, 9), kvt_test::Rect(140, 18, 40, 9)};
    for (SDL_Rect area : areas) {
        GuardedSurface s(GetParam(), 150, 20);
        std::mt19937 rng(5);
        s.FillRandom(rng);
        ExpectedPixels want(s);
        for (int y = std::max<int>(area.y, 0); y < std::min(area.y + area.h, 20); ++y)
            for (int x = std::max<int>(area.x, 0); x < std::min(area.x + area.w, 150); ++x)
                want.Set(x, y, tileValues.Get(x % tileW, y % tileH));
        SDL_Rect copy = area;
        t.DrawBackground(s, &copy);
        EXPECT_EQ("", want.Differences(s)) << "area at " << area.x << "," << area.y;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, ThemeBackground, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
