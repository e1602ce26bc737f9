// The banded background against one blit per tile: the same pixels for
// random areas, clip rectangles and tile sizes, at every format; the
// banded form declines tiles whose blits are more than a copy (colour
// key, alpha, another format).
#include <random>
#include <string>

#include <gtest/gtest.h>

#include <kvt/ui/core/internal/background_tiles.h>

#include "support/expected.h"
#include "support/surfaces.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;

namespace {

enum class TileKind { SameFormat, OtherFormat, ColourKeyed, Translucent };

struct KindCase {
    TileKind kind;
    bool banded; // whether the banded form takes it
};

const KindCase kKinds[] = {{TileKind::SameFormat, true},
                           {TileKind::OtherFormat, false},
                           {TileKind::ColourKeyed, false},
                           {TileKind::Translucent, false}};

// A 32-bit format other than the surface's.
FormatCase OtherThan(const FormatCase &format)
{
    const FormatCase xbgr = {"XBGR32", 32, 0x000000FF, 0x0000FF00, 0x00FF0000, 0};
    const FormatCase xrgb = {"XRGB32", 32, 0x00FF0000, 0x0000FF00, 0x000000FF, 0};
    return format.bitsPerPixel == 32 && format.rmask == xbgr.rmask ? xrgb : xbgr;
}

int Between(std::mt19937 &rng, int low, int high)
{
    return std::uniform_int_distribution<int>(low, high)(rng);
}

SDL_Rect RandomRect(std::mt19937 &rng, int x0, int x1, int maxW, int y0, int y1, int maxH)
{
    return kvt_test::Rect(Between(rng, x0, x1), Between(rng, y0, y1), Between(rng, 0, maxW),
                          Between(rng, 0, maxH));
}

// A random tile of the kind; keyed and translucent tiles set their flag
// explicitly, plain ones clear the alpha that a format with an alpha mask
// gets by default.
void Prepare(GuardedSurface &tile, TileKind kind, std::mt19937 &rng)
{
    tile.FillRandom(rng);
    SDL_SetAlpha(tile.get(), 0, 255);
    if (kind == TileKind::ColourKeyed)
        SDL_SetColorKey(tile.get(), SDL_SRCCOLORKEY, kvt_test::ReadValue(tile.get(), 0, 0));
    if (kind == TileKind::Translucent)
        SDL_SetAlpha(tile.get(), SDL_SRCALPHA, 128);
}

class BackgroundBands : public ::testing::TestWithParam<FormatCase> {};

TEST_P(BackgroundBands, EqualTileByTileOnRandomAreas)
{
    std::mt19937 rng(17);
    const int kW = 90, kH = 50;
    for (int trial = 0; trial < 80; ++trial) {
        const KindCase kind = kKinds[trial % 4];
        const int tileW = trial % 9 == 0 ? 64 : Between(rng, 1, 20);
        GuardedSurface tile(kind.kind == TileKind::OtherFormat ? OtherThan(GetParam()) : GetParam(), tileW,
                            Between(rng, 1, 12), 4);
        Prepare(tile, kind.kind, rng);
        GuardedSurface banded(GetParam(), kW, kH, 4), plain(GetParam(), kW, kH, 4);
        std::mt19937 fill{unsigned(trial)};
        banded.FillRandom(fill);
        fill.seed(unsigned(trial));
        plain.FillRandom(fill);
        SDL_Rect clip = RandomRect(rng, -10, 60, 100, -10, 30, 60);
        SDL_SetClipRect(banded.get(), &clip);
        SDL_SetClipRect(plain.get(), &clip);
        const SDL_Rect area = RandomRect(rng, -40, 100, 130, -20, 60, 80);

        EXPECT_EQ(kvt::TileByBands(tile, banded, area), kind.banded) << "trial " << trial;
        if (!kind.banded)
            kvt::TileByTile(tile, banded, area);
        kvt::TileByTile(tile, plain, area);
        EXPECT_EQ("", kvt_test::FirstDifference(banded, plain))
            << "trial " << trial << ": tile " << tile.get()->w << "x" << tile.get()->h
            << ", area " << area.x << "," << area.y << " " << area.w << "x" << area.h;
        EXPECT_TRUE(banded.GuardsIntact()) << "trial " << trial;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, BackgroundBands, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

} // namespace
