// The palette search of drawing calls against SDL_MapRGB of the loaded
// SDL: irregular palettes, ties between repeated entries, short palettes,
// and values of the fourth colour byte that an SDL might weigh.
#include <algorithm>
#include <cctype>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/draw/internal/palette_cache.h>

namespace {

struct PaletteCase {
    const char *name;
    int colours;    // entries in the palette
    int distinct;   // how many different colours they repeat, 0 for all random
    int unusedStep; // added to the fourth byte per entry: 0 keeps it equal
    Uint8 unused;   // its value in entry 0
    bool searchedByUs;
    int grid[3];    // levels of red, green, blue for a grid palette, else 0
    int levelStep;  // level d of a grid is 255 - d * step when negative
    bool tabulated; // whether the grid is looked up per channel
    int extras = 0; // greys after the grid
    bool twinBlue = false; // blue levels 1 and 2 of the grid are equal
    bool lastUnusedDiffers = false; // only the last entry's fourth byte differs
};

const PaletteCase kPalettes[] = {
    {"random", 256, 0, 0, 0, true, {}, 0, false},
    {"random, fourth byte 255", 256, 0, 0, 255, true, {}, 0, false},
    {"random, fourth byte 77", 256, 0, 0, 77, true, {}, 0, false},
    {"eight colours repeated", 256, 8, 0, 0, true, {}, 0, false},
    {"five entries", 5, 0, 0, 0, true, {}, 0, false},
    {"one entry", 1, 0, 0, 0, true, {}, 0, true},
    {"fourth byte varies", 256, 0, 1, 0, false, {}, 0, false},
    {"fourth byte of the last entry differs", 256, 0, 0, 0, false, {}, 0, false, 0, false, true},
    {"no entries", 0, 0, 0, 0, false, {}, 0, false},
    {"3-3-2 grid", 256, 0, 0, 0, true, {8, 8, 4}, 36, true},
    {"3-3-2 grid, fourth byte 255", 256, 0, 0, 255, true, {8, 8, 4}, 36, true},
    {"3-3-2 grid, fourth byte of the last entry differs", 256, 0, 0, 0, false, {8, 8, 4}, 36, false,
     0, false, true},
    {"cube of six", 216, 0, 0, 0, true, {6, 6, 6}, 51, true},
    {"cube of six and ten greys", 226, 0, 0, 0, true, {6, 6, 6}, 51, false, 10},
    {"levels with midpoints", 64, 0, 0, 0, true, {4, 4, 4}, 10, true},
    {"a blue level twice", 64, 0, 0, 0, true, {4, 4, 4}, 80, false, 0, true},
    {"one channel", 256, 0, 0, 0, true, {256, 1, 1}, 1, true},
    {"falling levels", 27, 0, 0, 0, true, {3, 3, 3}, -100, false},
};

void PrintTo(const PaletteCase &c, std::ostream *out) { *out << c.name; }

Uint8 Level(const PaletteCase &c, int d)
{
    return Uint8(c.levelStep < 0 ? 255 + d * c.levelStep : d * c.levelStep);
}

Uint8 BlueLevel(const PaletteCase &c, int d) { return Level(c, c.twinBlue && d == 2 ? 1 : d); }

// One colour more than the palette holds, for colours near none of them.
std::vector<SDL_Color> MakeColours(const PaletteCase &c, std::mt19937 &rng)
{
    if (c.grid[0] > 0) {
        std::vector<SDL_Color> grid;
        for (int r = 0; r < c.grid[0]; ++r)
            for (int g = 0; g < c.grid[1]; ++g)
                for (int b = 0; b < c.grid[2]; ++b)
                    grid.push_back({Level(c, r), Level(c, g), BlueLevel(c, b), c.unused});
        for (int i = 0; i < c.extras; ++i) {
            const Uint8 grey = Uint8(12 + 25 * i);
            grid.push_back({grey, grey, grey, c.unused});
        }
        if (c.lastUnusedDiffers)
            grid[size_t(c.colours) - 1].unused = Uint8(c.unused + 1);
        grid.push_back({1, 2, 3, c.unused});
        return grid;
    }
    std::uniform_int_distribution<int> byte(0, 255);
    std::vector<SDL_Color> colours(size_t(c.colours) + 1);
    for (size_t i = 0; i < colours.size(); ++i) {
        const size_t from = c.distinct > 0 ? i % size_t(c.distinct) : i;
        colours[i] = from < i ? colours[from]
                              : SDL_Color{Uint8(byte(rng)), Uint8(byte(rng)), Uint8(byte(rng)), 0};
        colours[i].unused = Uint8(c.unused + c.unusedStep * int(i));
    }
    if (c.lastUnusedDiffers)
        colours[size_t(c.colours) - 1].unused = Uint8(c.unused + 1);
    return colours;
}

class PaletteSearch : public ::testing::TestWithParam<PaletteCase> {};

TEST_P(PaletteSearch, GivesWhatSdlMapRgbGives)
{
    const PaletteCase &c = GetParam();
    std::mt19937 rng(29);
    std::vector<SDL_Color> colours = MakeColours(c, rng);
    // The palette of a real 8-bit surface, written in place, so that SDL
    // reads exactly these bytes.
    SDL_Surface *surface = SDL_CreateRGBSurface(0, 1, 1, 8, 0, 0, 0, 0);
    ASSERT_NE(surface, nullptr);
    SDL_Palette &palette = *surface->format->palette;
    ASSERT_GE(palette.ncolors, c.colours);
    const int ownCount = palette.ncolors;
    std::copy(colours.begin(), colours.begin() + c.colours, palette.colors);
    palette.ncolors = c.colours;

    EXPECT_EQ(kvt::NearestColour(&palette).Usable(), c.searchedByUs);
    EXPECT_EQ(kvt::NearestColour(&palette).Cheap(), c.tabulated);
    kvt::PaletteCache cache(surface->format);
    std::uniform_int_distribution<int> byte(0, 255);
    for (int k = 0; k < 4000; ++k) {
        // The palette's own colours, colours near them, and any colour.
        const SDL_Color &near = colours[size_t(k) % colours.size()];
        const int spread = k % 3 == 0 ? 0 : k % 3 == 1 ? 3 : 255;
        auto pick = [&](Uint8 v) {
            if (spread == 255)
                return Uint8(byte(rng));
            return Uint8(std::clamp(v + byte(rng) % (2 * spread + 1) - spread, 0, 255));
        };
        // Black first: an answer that nothing has filled in yet must not
        // pass for it.
        const Uint8 r = k == 0 ? 0 : pick(near.r), g = k == 0 ? 0 : pick(near.g);
        const Uint8 b = k == 0 ? 0 : pick(near.b);
        const Uint32 want = SDL_MapRGB(surface->format, r, g, b);
        ASSERT_EQ(cache.Map(r, g, b), want) << int(r) << "," << int(g) << "," << int(b);
        ASSERT_EQ(cache.Map(r, g, b), want) << "again, from the cache";
    }
    palette.ncolors = ownCount;
    SDL_FreeSurface(surface);
}

INSTANTIATE_TEST_SUITE_P(Palettes, PaletteSearch, ::testing::ValuesIn(kPalettes),
                         [](const auto &info) {
                             std::string name;
                             for (const char *p = info.param.name; *p != '\0'; ++p)
                                 if (std::isalnum(Uint8(*p)))
                                     name += *p;
                             return name;
                         });

} // namespace
