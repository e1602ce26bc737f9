// Writes the seed inputs of the fuzz targets that code can make: sprite
// files from the test kit's writers (sound and damaged), theme files, and
// event scripts that reach every widget of the board; and small pictures
// for `kvt-sprite pack`, which make_seeds.sh turns into more sprite files.
//   kvt_fuzz_make_seeds CORPUS_DIR PICTURE_DIR
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include <SDL.h>

#include "support/event_script.h"
#include "support/sprite_file.h"
#include "support/theme.h"
#include "support/widget_storm.h"

namespace {

using Bytes = std::vector<Uint8>;
using kvt_test::kClearPixel;

bool WriteFile(const std::string &path, const Bytes &bytes)
{
    FILE *file = std::fopen(path.c_str(), "wb");
    if (file == nullptr)
        return false;
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    return std::fclose(file) == 0 && written;
}

// The frame of 3 x 2 pixels, anchor (1, 1): one clear pixel, red and
// green above; blue, white and black below.
kvt_test::SpritePicture SmallPicture()
{
    return {3, 2, 1, 1, {kClearPixel, 0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF, 0x000000}};
}

kvt_test::SpritePicture Diamond(int size, Sint16 hotX, Sint16 hotY)
{
    kvt_test::SpritePicture picture = {size, size, hotX, hotY, {}};
    for (int y = 0; y < size; ++y)
        for (int x = 0; x < size; ++x) {
            const int d = std::abs(2 * x - size + 1) + std::abs(2 * y - size + 1);
            picture.pixels.push_back(d < size ? Uint32(0x102030 * (1 + x + y)) : kClearPixel);
        }
    return picture;
}

std::vector<kvt_test::SpriteRecord> Packed(const std::vector<kvt_test::SpritePicture> &pictures)
{
    std::vector<kvt_test::SpriteRecord> records;
    for (const auto &picture : pictures)
        records.push_back(kvt_test::PackPicture(picture));
    return records;
}

// Each differs from a sound file in one way that Load must refuse.
std::vector<std::pair<std::string, Bytes>> DamagedSprites()
{
    kvt_test::SpriteRecord small = kvt_test::PackPicture(SmallPicture());
    auto tightBlock = small, longRow = small, negative = small, zeroWide = small;
    tightBlock.blockSize = kvt_test::LeastBlockSize(small.rows) - 1;
    longRow.rows[0].push_back(0x00FFFF00);
    negative.height = -2;
    zeroWide.width = 0;
    Bytes cut = kvt_test::SpriteFileBytes({small});
    cut.resize(cut.size() - 5);
    return {{"damaged-block-too-small.spr", kvt_test::SpriteFileBytes({tightBlock})},
            {"damaged-row-too-long.spr", kvt_test::SpriteFileBytes({longRow})},
            {"damaged-negative-height.spr", kvt_test::SpriteFileBytes({negative})},
            {"damaged-zero-width.spr", kvt_test::SpriteFileBytes({zeroWide})},
            {"damaged-count-too-high.spr", kvt_test::SpriteFileBytes(3, {small, small})},
            {"damaged-cut-short.spr", cut}};
}

bool WriteSprites(const std::string &dir)
{
    auto glyphs = kvt_test::TestFontGlyphs();
    glyphs.resize(16); // space to '/': a font for text, small enough for a seed
    std::vector<std::pair<std::string, Bytes>> files = {
        {"example-3x2.spr", kvt_test::SpriteFileBytes(Packed({SmallPicture()}))},
        {"two-diamonds.spr",
         kvt_test::SpriteFileBytes(Packed({Diamond(5, 2, 2), Diamond(8, -3, 9)}))},
        {"font-head.spr", kvt_test::SpriteFileBytes(Packed(glyphs))},
        {"no-frames.spr", kvt_test::SpriteFileBytes({})}};
    for (const auto &damaged : DamagedSprites())
        files.push_back(damaged);
    for (const auto &file : files)
        if (!WriteFile(dir + "/" + file.first, file.second))
            return false;
    return true;
}

Bytes ReadFile(const std::string &path)
{
    Bytes bytes;
    FILE *file = std::fopen(path.c_str(), "rb");
    if (file == nullptr)
        return bytes;
    for (int c; (c = std::fgetc(file)) != EOF;)
        bytes.push_back(Uint8(c));
    std::fclose(file);
    return bytes;
}

// What fuzz_theme_load reads after the 20 bytes of the file: the tile's
// width and height, x y w h of each of the four frames, then the
// background area's x y w h of a byte each.
Bytes Placement()
{
    Bytes bytes = {3, 7};
    const Sint16 frames[] = {2, 3, 40, 30, -10, -5, 100, 1, 10, 20, -20, 5, 0, 0, 53, 37};
    for (Sint16 value : frames)
        bytes.insert(bytes.end(), {Uint8(value), Uint8(Uint16(value) >> 8)});
    bytes.insert(bytes.end(), {Uint8(-8), 4, 60, 50});
    return bytes;
}

// The kit's theme as the library saves it: whole, cut short, and followed
// by placement bytes.
bool WriteThemes(const std::string &dir)
{
    CUITheme theme = kvt_test::DistinctTheme();
    const std::string whole = dir + "/distinct.theme";
    if (!theme.Save(whole.c_str(), nullptr))
        return false;
    const Bytes distinct = ReadFile(whole);
    if (distinct.size() != 20)
        return false;
    Bytes placed = distinct;
    const Bytes placement = Placement();
    placed.insert(placed.end(), placement.begin(), placement.end());
    return WriteFile(dir + "/short.theme", Bytes(distinct.begin(), distinct.begin() + 7)) &&
           WriteFile(dir + "/distinct-placed.theme", placed);
}

// Script steps as event_script.h lays them out.
void Step(Bytes *script, Uint8 kind, unsigned x, unsigned y, Uint8 extra)
{
    script->insert(script->end(), {kind, Uint8(x), Uint8(x >> 8), Uint8(y), Uint8(y >> 8), extra});
}

void Click(Bytes *script, const SDL_Rect &place)
{
    const unsigned x = place.x + place.w / 2, y = place.y + place.h / 2;
    Step(script, 0, x, y, 0);
    Step(script, 2, x, y, 0);
    Step(script, 3, x, y, 0);
}

void Type(Bytes *script, SDLKey key, char character)
{
    Step(script, 4, key, Uint8(character), 0);
    Step(script, 5, key, Uint8(character), 0);
}

bool WriteScripts(const std::string &dir, const kvt_demo::WidgetBoard &board)
{
    const size_t formats = kvt_test::AllFormats().size();
    std::vector<std::pair<std::string, Bytes>> files;
    for (int w = 0; w < kvt_demo::WidgetBoard::kWidgets; ++w) {
        Bytes script = {Uint8(w % formats)};
        Click(&script, board.Place(w));
        files.push_back({"click-widget-" + std::to_string(w), script});
    }
    Bytes tabs = {5}, backTabs = {0};
    for (int i = 0; i < kvt_demo::WidgetBoard::kWidgets + 2; ++i) {
        Step(&tabs, 6, 0, 0, 0);
        Step(&backTabs, 6, 0, 0, 1);
    }
    Bytes typing = {3};
    Click(&typing, board.Place(kvt_demo::WidgetBoard::kTextField));
    for (char c : std::string("Hello"))
        Type(&typing, SDLKey(c | 0x20), c);
    for (SDLKey key : {SDLK_LEFT, SDLK_BACKSPACE, SDLK_HOME, SDLK_DELETE, SDLK_END})
        Type(&typing, key, 0);
    Step(&typing, 7, 0, 0, 0);
    files.insert(files.end(), {{"tab-round", tabs}, {"shift-tab-round", backTabs},
                               {"type-in-field", typing}});
    for (const auto &file : files)
        if (!WriteFile(dir + "/" + file.first, file.second))
            return false;
    return true;
}

// 24-bit pictures with magenta where the frame is clear, as pack reads them.
bool WritePicture(const std::string &path, const kvt_test::SpritePicture &picture)
{
    SDL_Surface *surface = SDL_CreateRGBSurface(SDL_SWSURFACE, picture.width, picture.height, 24,
                                                0xFF0000, 0x00FF00, 0x0000FF, 0);
    if (surface == nullptr)
        return false;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x) {
            const Uint32 pixel = picture.pixels[size_t(y * picture.width + x)];
            SDL_Rect dot = {Sint16(x), Sint16(y), 1, 1};
            SDL_FillRect(surface, &dot, pixel == kClearPixel ? 0xFF00FF : pixel);
        }
    const bool saved = SDL_SaveBMP(surface, path.c_str()) == 0;
    SDL_FreeSurface(surface);
    return saved;
}

bool WritePictures(const std::string &dir)
{
    return WritePicture(dir + "/small.bmp", SmallPicture()) &&
           WritePicture(dir + "/diamond.bmp", Diamond(7, 3, 3)) &&
           WritePicture(dir + "/bar.bmp", {9, 1, 0, 0, std::vector<Uint32>(9, 0x336699)});
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: kvt_fuzz_make_seeds CORPUS_DIR PICTURE_DIR\n", stderr);
        return 2;
    }
    const std::string corpus = argv[1];
    kvt_test::WidgetStorm storm(kvt_test::AllFormats()[0]);
    const bool done = storm.ok() && WriteSprites(corpus + "/fuzz_sprite_load") &&
                      WriteThemes(corpus + "/fuzz_theme_load") &&
                      WriteScripts(corpus + "/fuzz_events", storm.board()) &&
                      WritePictures(argv[2]);
    if (!done)
        std::fputs("kvt_fuzz_make_seeds: a seed could not be written\n", stderr);
    return done ? 0 : 1;
}
