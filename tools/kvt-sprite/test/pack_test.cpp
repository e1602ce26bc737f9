// kvt-sprite pack and unpack, run as a program: what it writes is the
// compact file that the library loads back into the same pixels, at
// every format, and unpacking gives images that pack into the same file.
#include <random>

#include <gtest/gtest.h>
#include <png.h>

#include <kvt/draw/pixel.h>
#include <kvt/sprite/sprite.h>

#include "support/sprite_file.h"
#include "support/surfaces.h"
#include "tool_run.h"

using kvt_sprite_test::RunTool;
using kvt_test::SpritePicture;

namespace {

// An input image: pixels 0xAARRGGBB, the anchor and tag it is packed
// with, and the frame that pack should make of it.
struct Input {
    std::string name;
    int width, height;
    bool hasAlpha;
    Sint16 hotX, hotY;
    Uint16 tag;
    std::vector<Uint32> argb;

    std::string Argument(const kvt_sprite_test::ScratchFolder &folder) const
    {
        return folder / name + "@" + std::to_string(hotX) + "," + std::to_string(hotY) + "," +
               std::to_string(tag);
    }
    SpritePicture Frame() const
    {
        SpritePicture frame = {width, height, hotX, hotY, {}};
        for (Uint32 p : argb) {
            const bool clear = (p & 0xFFFFFF) == 0xFF00FF || (hasAlpha && p >> 24 == 0);
            frame.pixels.push_back(clear ? kvt_test::kClearPixel : p & 0xFFFFFF);
        }
        return frame;
    }
};

// Colours in stretches of random length, some of them magenta and, with
// alpha, some fully or partly transparent, so rows mix runs of both kinds.
Input RandomInput(std::string name, int width, int height, bool hasAlpha, std::mt19937 &rng)
{
    Input input = {std::move(name), width, height, hasAlpha, 0, 0, 0, {}};
    const Uint32 alphas[] = {0x00, 0x40, 0xFF, 0xFF};
    Uint32 colour = 0;
    for (int i = 0; i < width * height; ++i) {
        if (rng() % 3 == 0)
            colour = rng() % 4 == 0 ? 0xFF00FF : rng() & 0xFFFFFF;
        const Uint32 alpha = hasAlpha ? alphas[rng() % 4] : 0xFF;
        input.argb.push_back(alpha << 24 | colour);
    }
    return input;
}

bool WriteBmp(const Input &input, const std::string &path)
{
    SDL_Surface *s = SDL_CreateRGBSurface(SDL_SWSURFACE, input.width, input.height, 24, 0xFF0000,
                                          0xFF00, 0xFF, 0);
    for (int i = 0; i < input.width * input.height; ++i) {
        const Uint32 p = input.argb[size_t(i)];
        KVT_SetPixel(s, Sint16(i % input.width), Sint16(i / input.width), Uint8(p >> 16),
                     Uint8(p >> 8), Uint8(p));
    }
    const bool saved = SDL_SaveBMP(s, path.c_str()) == 0;
    SDL_FreeSurface(s);
    return saved;
}

bool WritePng(const Input &input, const std::string &path)
{
    std::vector<Uint8> bytes;
    for (Uint32 p : input.argb) {
        for (int shift : {16, 8, 0})
            bytes.push_back(Uint8(p >> shift));
        if (input.hasAlpha)
            bytes.push_back(Uint8(p >> 24));
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = png_uint_32(input.width);
    image.height = png_uint_32(input.height);
    image.format = input.hasAlpha ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, path.c_str(), 0, bytes.data(), 0, nullptr) != 0;
}

// A BMP for a name ending in .bmp, a PNG otherwise.
bool WriteImage(const Input &input, const std::string &path)
{
    const bool bmp = path.size() > 4 && path.compare(path.size() - 4, 4, ".bmp") == 0;
    return bmp ? WriteBmp(input, path) : WritePng(input, path);
}

class PackTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        std::mt19937 rng(4);
        inputs = {RandomInput("a.bmp", 23, 7, false, rng), RandomInput("b.png", 16, 9, true, rng),
                  RandomInput("c.png", 5, 3, false, rng), RandomInput("d.png", 1, 1, true, rng)};
        inputs[0].hotX = 3, inputs[0].hotY = 2;
        inputs[1].hotX = -4, inputs[1].hotY = 32767, inputs[1].tag = 513;
        inputs[2].hotY = -32768, inputs[2].tag = 65535;
    }

    void SetUp() override
    {
        std::vector<std::string> args = {"pack", sprite};
        for (const Input &input : inputs) {
            const std::string path = folder / input.name;
            ASSERT_TRUE(WriteImage(input, path)) << path;
            args.push_back(input.Argument(folder));
        }
        packed = RunTool(args);
        ASSERT_EQ(0, packed.status) << packed.err;
    }

    static std::vector<Input> inputs;
    kvt_sprite_test::ScratchFolder folder;
    const std::string sprite = folder / "out.spr";
    kvt_sprite_test::ToolRun packed;
};

std::vector<Input> PackTest::inputs;

TEST_F(PackTest, WritesTheLeastBlockSizeAndTheFewestRuns)
{
    // The support writer packs maximal runs and the least block size; the
    // tool also writes negative anchors as 32-bit two's complement.
    std::vector<kvt_test::SpriteRecord> records;
    for (const Input &input : inputs) {
        records.push_back(kvt_test::PackPicture(input.Frame()));
        records.back().tag = input.tag;
        records.back().hotX = Uint32(Sint32(input.hotX));
        records.back().hotY = Uint32(Sint32(input.hotY));
    }
    const std::vector<Uint8> want = kvt_test::SpriteFileBytes(records);
    EXPECT_EQ(std::string(want.begin(), want.end()), kvt_sprite_test::ReadFile(sprite));
}

TEST_F(PackTest, LoadGivesThePixelsAnchorsAndTagsAtEveryFormat)
{
    for (const kvt_test::FormatCase &pixelFormat : kvt_test::AllFormats()) {
        kvt_test::GuardedSurface holder(pixelFormat, 1, 1);
        KVT_Sprite loaded;
        ASSERT_TRUE(loaded.Load(sprite.c_str(), holder.get()->format)) << pixelFormat.name;
        ASSERT_EQ(inputs.size(), loaded.GetNbFrames()) << pixelFormat.name;
        for (size_t i = 0; i < inputs.size(); ++i) {
            const KVT_SpriteFrame &frame = loaded.frames[i];
            EXPECT_EQ(inputs[i].hotX, frame.hotX) << pixelFormat.name << " frame " << i;
            EXPECT_EQ(inputs[i].hotY, frame.hotY) << pixelFormat.name << " frame " << i;
            EXPECT_EQ(inputs[i].tag, frame.tag) << pixelFormat.name << " frame " << i;
            EXPECT_EQ("", kvt_test::FrameDifference(frame.surface, holder.get()->format,
                                                    inputs[i].width, inputs[i].Frame().pixels))
                << pixelFormat.name << " frame " << i << " from " << inputs[i].name;
        }
        loaded.FreeFrames();
    }
}

TEST_F(PackTest, UnpackedImagesPackIntoTheSameFile)
{
    const kvt_sprite_test::ToolRun unpacked = RunTool({"unpack", sprite, folder / "frames"});
    ASSERT_EQ(0, unpacked.status) << unpacked.err;
    // Each line is the argument that packs one frame with its anchor and tag.
    std::vector<std::string> args = {"pack", folder / "again.spr"};
    for (size_t start = 0, end; (end = unpacked.out.find('\n', start)) != std::string::npos;
         start = end + 1)
        args.push_back(unpacked.out.substr(start, end - start));
    ASSERT_EQ(inputs.size() + 2, args.size()) << unpacked.out;
    const kvt_sprite_test::ToolRun repacked = RunTool(args);
    ASSERT_EQ(0, repacked.status) << repacked.err;
    EXPECT_EQ(kvt_sprite_test::ReadFile(sprite), kvt_sprite_test::ReadFile(folder / "again.spr"));
}

} // namespace
