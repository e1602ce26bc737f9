#ifndef KVT_TESTS_SUPPORT_SPRITE_FILE_H
#define KVT_TESTS_SUPPORT_SPRITE_FILE_H

// Writing sprite files for tests: frame records word by word (damaged ones
// included), pictures packed into runs, and the small font of the tests.

#include <string>
#include <vector>

#include <SDL.h>

#include <kvt/sprite/sprite.h>

namespace kvt_test {

using SpriteRow = std::vector<Uint32>; // run words and pixel words

// One frame record as it goes into the file. A blockSize of 0 is replaced
// by the least that the rows need.
struct SpriteRecord {
    Uint32 blockSize;
    Sint32 width, height;
    Uint32 tag, hotX, hotY;
    std::vector<SpriteRow> rows;
};

// The file: frameCount (the number of records unless given), then the
// records, little-endian.
std::vector<Uint8> SpriteFileBytes(const std::vector<SpriteRecord> &records);
std::vector<Uint8> SpriteFileBytes(Uint32 frameCount, const std::vector<SpriteRecord> &records);
Uint32 LeastBlockSize(const std::vector<SpriteRow> &rows);

// A frame picture: pixels row by row as 0xRRGGBB, or kClearPixel.
constexpr Uint32 kClearPixel = 0xFFFFFFFFu;
struct SpritePicture {
    int width, height;
    Sint16 hotX, hotY;
    std::vector<Uint32> pixels;
};
// Packs a picture the way a writer would: transparent stretches as
// negative runs, colours as literal runs.
SpriteRecord PackPicture(const SpritePicture &picture);

// The test font: one glyph per code from 32 to 255 as unsigned, so that a
// character of 128 or more read as unsigned would find a glyph. Widths
// vary from 1 to 5, heights are 4, some glyphs have a clear pixel and some
// an anchor off their corner.
std::vector<SpritePicture> TestFontGlyphs();

// Writes `file` to a temporary file and loads it.
bool LoadSpriteBytes(KVT_Sprite *sprite, const std::vector<Uint8> &file,
                     const SDL_PixelFormat *format);
// Packs the pictures as the frames of one file and loads it.
bool LoadSpritePictures(KVT_Sprite *sprite, const std::vector<SpritePicture> &pictures,
                        const SDL_PixelFormat *format);
// Loads the test font in `format`.
bool LoadTestFont(KVT_Sprite *font, const SDL_PixelFormat *format);

// "" when the loaded frame is `pixels` (width columns, row by row) mapped
// through `format`, with the key where a pixel is clear; otherwise the
// first pixel that is not.
std::string FrameDifference(SDL_Surface *frame, const SDL_PixelFormat *format, int width,
                            const std::vector<Uint32> &pixels);

} // namespace kvt_test

#endif
