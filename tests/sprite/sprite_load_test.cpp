#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/sprite/internal/decode_paths.h>
#include <kvt/sprite/sprite.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/surfaces.h"
#include "support/temp_dir.h"
#include "support/temp_file.h"

using kvt_test::FormatCase;
using kvt_test::GuardedSurface;
using kvt_test::kClearPixel;
using kvt_test::SpriteRecord;

namespace {

// One frame of 3 x 2 pixels anchored at (1, 1): a clear pixel, red and
// green on top; blue, white and black below.
const std::vector<Uint8> kExample = {
    0x01, 0x00, 0x00, 0x00, 0x24, 0x00, 0x00, 0x00, // frameCount 1, blockSize 36
    0x03, 0x00, 0x00, 0x00, 0x02, 0x00, 0x00, 0x00, // width 3, height 2
    0x00, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, // tag 0, hotX 1
    0x01, 0x00, 0x00, 0x00, 0x04, 0x00, 0x00, 0x00, // hotY 1, rowWords 4
    0xFF, 0xFF, 0xFF, 0xFF, 0x02, 0x00, 0x00, 0x00, // run -1, run 2
    0x00, 0x00, 0xFF, 0x00, 0x00, 0xFF, 0x00, 0x00, // red, green
    0x04, 0x00, 0x00, 0x00, 0x03, 0x00, 0x00, 0x00, // rowWords 4, run 3
    0xFF, 0x00, 0x00, 0x00, 0xFF, 0xFF, 0xFF, 0x00, // blue, white
    0x00, 0x00, 0x00, 0x00,                         // black
};
const std::vector<Uint32> kExamplePixels = {kClearPixel, 0xFF0000, 0x00FF00,
                                            0x0000FF,    0xFFFFFF, 0x000000};

bool IsEmpty(const KVT_Sprite &s) { return s.frames == nullptr && s.nbFrames == 0; }

class SpriteLoadFormats : public ::testing::TestWithParam<FormatCase> {
protected:
    GuardedSurface formatHolder{GetParam(), 1, 1};
    const SDL_PixelFormat *format = formatHolder.get()->format;
    KVT_Sprite sprite;
    void TearDown() override { sprite.FreeFrames(); }
};

TEST_P(SpriteLoadFormats, ExampleFileBuildsOneKeyedFrameInTheTargetFormat)
{
    ASSERT_TRUE(kvt_test::LoadSpriteBytes(&sprite, kExample, format));
    ASSERT_EQ(1u, sprite.GetNbFrames());
    const KVT_SpriteFrame &frame = sprite.frames[0];
    SDL_Surface *s = sprite.GetFrameSurface(0);
    EXPECT_EQ(std::vector<int>({3, 2, 0, 1, 1}),
              std::vector<int>({sprite.GetW(0), s->h, frame.tag, frame.hotX, frame.hotY}))
        << "width, height, tag, hotX, hotY";
    EXPECT_EQ(std::vector<Uint32>({format->BitsPerPixel, format->Rmask, format->Gmask,
                                   format->Bmask, format->Amask}),
              std::vector<Uint32>({s->format->BitsPerPixel, s->format->Rmask, s->format->Gmask,
                                   s->format->Bmask, s->format->Amask}))
        << "depth and masks must be the target's";
    EXPECT_EQ(Uint32(SDL_SRCCOLORKEY), s->flags & (SDL_SRCCOLORKEY | SDL_RLEACCELOK));
    EXPECT_EQ(SDL_MapRGB(format, 255, 0, 255), s->format->colorkey);
    if (format->palette != nullptr) {
        EXPECT_EQ(0, std::memcmp(format->palette->colors, s->format->palette->colors,
                                 256 * sizeof(SDL_Color)))
            << "an 8-bit frame must carry the target's palette";
    }
    EXPECT_EQ("", kvt_test::FrameDifference(s, format, 3, kExamplePixels));
}

// Run word 0, a fourth byte in pixel words, a run cut at the edge with
// words left over, a literal key colour, the most negative run, and
// anchor and tag words whose high halves must not count.
TEST_P(SpriteLoadFormats, RunEdgeCasesDecodeByTheRowRules)
{
    const SpriteRecord record = {0, 4, 4, 0x12345678, 0xABCD0002, 0x0000FFFF,
                                 {{0, 2, 0xAB102030, 0x01FA04FB, Uint32(-2)},
                                  {6, 1, 2, 3, 4, 5, 6, 9, 9},
                                  {Uint32(-1), 1, 0xFFFF00FF, 1, 0x00808080, Uint32(-1)},
                                  {0x80000000u}}};
    ASSERT_TRUE(kvt_test::LoadSpriteBytes(&sprite, kvt_test::SpriteFileBytes({record}), format));
    const std::vector<Uint32> want = {0x102030,    0xFA04FB,    kClearPixel, kClearPixel,
                                      1,           2,           3,           4,
                                      kClearPixel, 0xFF00FF,    0x808080,    kClearPixel,
                                      kClearPixel, kClearPixel, kClearPixel, kClearPixel};
    EXPECT_EQ("", kvt_test::FrameDifference(sprite.GetFrameSurface(0), format, 4, want));
    const KVT_SpriteFrame &frame = sprite.frames[0];
    EXPECT_EQ(std::vector<int>({0x5678, 2, -1}), std::vector<int>({frame.tag, frame.hotX, frame.hotY}));
}

// Random rows (short, overlong, with spare words, words running out) on
// random surfaces, some smaller than the frame: the row-pointer decoder
// must write exactly the bytes of the per-pixel one, and nothing outside.
// First, one-row frames whose first opaque pixel is white or black, which
// the decoder must map like any other colour before it has met one.
TEST_P(SpriteLoadFormats, FastDecodeEqualsPlainDecode)
{
    const struct {
        const char *first;
        std::vector<Uint32> words;
    } starts[] = {
        {"white", {Uint32(-2), 3, 0xFFFFFF, 0xFFFFFF, 0x102030}},
        {"black", {3, 0x000000, 0x000000, 0xFFFFFF, Uint32(-2)}},
    };
    for (const auto &start : starts) {
        const kvt::RowSpan row = {0, start.words.size()};
        const kvt::FrameRuns runs = {5, 1, start.words.data(), &row};
        kvt_test::SurfacePair pair(GetParam(), 5, 1);
        kvt::DecodeFramePlain(pair.expected, runs);
        kvt::DecodeFrame(pair.actual, runs);
        EXPECT_EQ("", pair.Difference()) << "frame whose first opaque pixel is " << start.first;
    }
    std::mt19937 rng(77);
    for (int trial = 0; trial < 60; ++trial) {
        const int w = 1 + int(rng() % 40), h = 1 + int(rng() % 6);
        std::vector<Uint32> words;
        std::vector<kvt::RowSpan> rows;
        for (int y = 0; y < h; ++y) {
            const size_t first = words.size();
            for (int runs = int(rng() % 8); runs > 0; --runs) {
                const int n = int(rng() % 12) - 4;
                words.push_back(Uint32(n));
                for (int k = 0; k < n; ++k)
                    words.push_back(rng() % 4 == 0 ? 0x00FF00FF : Uint32(rng()));
            }
            if (words.size() > first && rng() % 2 == 0)
                words.pop_back(); // a run that lacks a word, or a spare word gone
            rows.push_back({first, words.size() - first});
        }
        const kvt::FrameRuns runs = {w, h, words.data(), rows.data()};
        const int sw = w - int(rng() % 3) % w, sh = h - int(rng() % 2) % h;
        kvt_test::SurfacePair pair(GetParam(), sw, sh, unsigned(rng()));
        kvt::DecodeFramePlain(pair.expected, runs);
        kvt::DecodeFrame(pair.actual, runs);
        ASSERT_EQ("", pair.Difference())
            << w << "x" << h << " frame on " << sw << "x" << sh << ", trial " << trial;
    }
}

INSTANTIATE_TEST_SUITE_P(AllFormats, SpriteLoadFormats, ::testing::ValuesIn(kvt_test::AllFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });
INSTANTIATE_TEST_SUITE_P(MoreFormats, SpriteLoadFormats,
                         ::testing::ValuesIn(kvt_test::MoreFormats()),
                         [](const auto &info) { return kvt_test::FormatName(info.param); });

class SpriteFile : public ::testing::Test {
protected:
    GuardedSurface formatHolder{kvt_test::AllFormats()[5], 1, 1};
    const SDL_PixelFormat *format = formatHolder.get()->format;
};

// A path that does not open fails before anything changes; a directory
// opens but cannot be read, so it fails as a damaged file does, with the
// sprite empty.
TEST_F(SpriteFile, UnreadablePathsFail)
{
    kvt_test::TempCurrentDir folder;
    ASSERT_TRUE(folder.ok() && folder.MakeDir("folder.spr"));
    const struct {
        const char *path;
        bool untouched;
    } cases[] = {{"/nonexistent-folder/sprite.spr", true}, {"folder.spr", false}, {".", false}};
    for (const auto &c : cases) {
        KVT_SpriteFrame frame = {};
        KVT_Sprite sprite;
        sprite.frames = &frame;
        sprite.nbFrames = 7;
        EXPECT_FALSE(sprite.Load(c.path, format)) << c.path;
        EXPECT_EQ(c.untouched ? &frame : nullptr, sprite.frames) << c.path;
        EXPECT_EQ(c.untouched ? 7u : 0u, sprite.nbFrames) << c.path;
        sprite.frames = nullptr; // not the sprite's to free
        sprite.nbFrames = 0;
    }
}

// Every cut of the example file fails, even on a sprite that held frames,
// and leaves it empty; bytes after the last frame are not read.
TEST_F(SpriteFile, CutFilesFailAndLeaveTheSpriteEmpty)
{
    KVT_Sprite loaded;
    ASSERT_TRUE(kvt_test::LoadSpriteBytes(&loaded, kExample, format));
    for (size_t length = 0; length < kExample.size(); ++length) {
        KVT_Sprite sprite = loaded;
        const std::vector<Uint8> cut(kExample.begin(), kExample.begin() + long(length));
        EXPECT_FALSE(kvt_test::LoadSpriteBytes(&sprite, cut, format)) << length << " bytes";
        EXPECT_TRUE(IsEmpty(sprite)) << length << " bytes";
    }
    std::vector<Uint8> longer = kExample;
    longer.insert(longer.end(), {0xFF, 0xFF, 0xFF});
    KVT_Sprite sprite;
    EXPECT_TRUE(kvt_test::LoadSpriteBytes(&sprite, longer, format));
    sprite.FreeFrames();
    loaded.FreeFrames();
}

struct DamageCase {
    const char *name;
    Uint32 frameCount;
    std::vector<SpriteRecord> records;
    bool loads;
};

SpriteRecord Example(Uint32 blockSize, Sint32 width, Sint32 height,
                     std::vector<kvt_test::SpriteRow> rows = {{Uint32(-1), 2, 0xFF0000, 0xFF00},
                                                              {3, 0xFF, 0xFFFFFF, 0}})
{
    return {blockSize, width, height, 0, 1, 1, rows};
}

TEST_F(SpriteFile, DamagedRecordsFailAndLeaveTheSpriteEmpty)
{
    const std::vector<DamageCase> cases = {
        {"no frames: an empty sprite", 0, {}, true},
        {"least block size", 1, {Example(36, 3, 2)}, true},
        {"block size one short", 1, {Example(35, 3, 2)}, false},
        {"largest block size", 1, {Example(0xFFFFFFFF, 3, 2)}, true},
        {"negative width", 1, {Example(0, -1, 2)}, false},
        {"negative height", 1, {Example(0, 3, -1)}, false},
        {"zero width with rows", 1, {Example(0, 0, 2)}, false},
        {"zero width and height", 1, {Example(0, 0, 0, {})}, true},
        {"zero height", 1, {Example(0, 3, 0, {})}, true},
        {"zero height, least block size", 1, {Example(12, 3, 0, {})}, true},
        {"zero height, block size one short", 1, {Example(11, 3, 0, {})}, false},
        {"width over 16384", 1, {Example(0, 16385, 2)}, false},
        {"height over 16384", 1, {Example(0, 3, 16385)}, false},
        {"a surface SDL refuses, after a good frame", 2,
         {Example(0, 3, 2), Example(0, 16384, 1, {{Uint32(-16384)}})}, false},
        {"a row short of its literal pixels", 1, {Example(0, 3, 2, {{Uint32(-1), 2, 0xFF}, {Uint32(-3)}})}, false},
        {"a run past the edge short of its words", 1, {Example(0, 3, 2, {{5, 1, 2, 3}, {Uint32(-3)}})}, false},
        {"a row without words", 1, {Example(0, 3, 2, {{}, {Uint32(-3)}})}, false},
        {"the most negative run", 1, {Example(0, 3, 2, {{0x80000000u}, {Uint32(-3)}})}, true},
        {"more frames than the file holds", 2, {Example(36, 3, 2)}, false},
        {"the largest frame count", 0xFFFFFFFF, {Example(36, 3, 2)}, false},
    };
    for (const DamageCase &c : cases) {
        KVT_Sprite sprite;
        const std::vector<Uint8> file = kvt_test::SpriteFileBytes(c.frameCount, c.records);
        EXPECT_EQ(c.loads, kvt_test::LoadSpriteBytes(&sprite, file, format)) << c.name;
        EXPECT_EQ(c.loads ? c.frameCount : 0u, sprite.GetNbFrames()) << c.name;
        EXPECT_EQ(c.loads && c.frameCount > 0, sprite.frames != nullptr) << c.name;
        sprite.FreeFrames();
    }
}

// Whatever bytes a file holds, a load gives frames that all have a surface
// or fails with the sprite empty; under the sanitizers this also shows
// that the loader stays inside its buffers.
TEST_F(SpriteFile, RandomDamageNeverHandsOutAFrameWithoutASurface)
{
    std::vector<SpriteRecord> records;
    for (const kvt_test::SpritePicture &glyph : kvt_test::TestFontGlyphs())
        if (records.size() < 6)
            records.push_back(kvt_test::PackPicture(glyph));
    const std::vector<Uint8> file = kvt_test::SpriteFileBytes(records);
    std::mt19937 rng(11);
    for (int trial = 0; trial < 300; ++trial) {
        std::vector<Uint8> damaged = file;
        for (int k = 1 + int(rng() % 4); k > 0; --k)
            damaged[rng() % damaged.size()] = Uint8(rng());
        if (rng() % 4 == 0)
            damaged.resize(rng() % damaged.size());
        KVT_Sprite sprite;
        if (kvt_test::LoadSpriteBytes(&sprite, damaged, format)) {
            for (Uint32 i = 0; i < sprite.nbFrames; ++i)
                ASSERT_NE(nullptr, sprite.frames[i].surface) << "trial " << trial;
        } else {
            ASSERT_TRUE(IsEmpty(sprite)) << "trial " << trial;
        }
        sprite.FreeFrames();
    }
}

// Pixels smaller than a byte are refused, at 1 and 4 bits alike; the
// formats are described by hand, since sdl12-compat makes no surface
// below 8 bits. What SDL itself makes of a request for 1 bit (a 1-bit
// surface on classic SDL, an 8-bit one on sdl12-compat) is loaded into
// exactly when its pixels are whole bytes.
TEST_F(SpriteFile, TargetsWithPixelsSmallerThanAByteAreRefused)
{
    SDL_Surface *eightBit = SDL_CreateRGBSurface(0, 8, 1, 8, 0, 0, 0, 0);
    ASSERT_NE(nullptr, eightBit);
    for (Uint8 bits : {1, 4}) {
        SDL_PixelFormat narrow = *eightBit->format;
        narrow.BitsPerPixel = bits;
        KVT_Sprite sprite;
        EXPECT_FALSE(kvt_test::LoadSpriteBytes(&sprite, kExample, &narrow)) << int(bits) << " bits";
        EXPECT_TRUE(IsEmpty(sprite)) << int(bits) << " bits";
    }
    SDL_FreeSurface(eightBit);

    SDL_Surface *asked = SDL_CreateRGBSurface(0, 8, 1, 1, 0, 0, 0, 0);
    ASSERT_NE(nullptr, asked);
    const int made = asked->format->BitsPerPixel;
    KVT_Sprite sprite;
    EXPECT_EQ(made >= 8, kvt_test::LoadSpriteBytes(&sprite, kExample, asked->format))
        << "SDL made " << made << " bits per pixel of a request for 1";
    EXPECT_EQ(made < 8, IsEmpty(sprite));
    sprite.FreeFrames();
    SDL_FreeSurface(asked);
}

} // namespace
