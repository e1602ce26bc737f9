// kvt-sprite info, font and the failures of every command, run as a
// program: info refuses whatever Load refuses, a font has one frame per
// character as wide as its advance, and a bad command line or input ends
// with one line on stderr and nothing written.
#include <algorithm>

#include <SDL_ttf.h>
#include <gtest/gtest.h>

#include <kvt/sprite/sprite.h>

#include "output_file.h"
#include "png_output.h"
#include "support/sprite_file.h"
#include "support/surfaces.h"
#include "tool_run.h"

using kvt_sprite_test::RunTool;
using kvt_sprite_test::ToolRun;

namespace {

// The 68-byte example file: one 3 x 2 frame anchored at (1, 1).
std::string ExampleFile()
{
    const kvt_test::SpriteRecord frame = {
        36, 3, 2, 0, 1, 1, {{0xFFFFFFFF, 2, 0xFF0000, 0x00FF00}, {3, 0x0000FF, 0xFFFFFF, 0}}};
    const std::vector<Uint8> bytes = kvt_test::SpriteFileBytes({frame});
    return std::string(bytes.begin(), bytes.end());
}

// "" when the run failed as a refusal should: the status, nothing on
// stdout, and exactly one line on stderr.
std::string RefusalProblem(const ToolRun &run, int status)
{
    if (run.status != status)
        return "exit status " + std::to_string(run.status) + ", stderr: " + run.err;
    if (!run.out.empty())
        return "printed on stdout: " + run.out;
    const bool oneLine = run.err.rfind("kvt-sprite: ", 0) == 0 &&
                         std::count(run.err.begin(), run.err.end(), '\n') == 1 &&
                         run.err.back() == '\n';
    return oneLine ? "" : "stderr is not one line: " + run.err;
}

TEST(InfoCommand, PrintsTheExampleAndRefusesItCutAtEveryLength)
{
    kvt_sprite_test::ScratchFolder folder;
    const std::string path = folder / "example.spr", example = ExampleFile();
    ASSERT_EQ(68u, example.size());
    kvt_sprite_test::WriteFile(path, example);
    const ToolRun whole = RunTool({"info", path});
    EXPECT_EQ(0, whole.status) << whole.err;
    EXPECT_EQ(path + ": 1 frame\nframe 0: 3x2, anchor (1, 1), tag 0\n", whole.out);
    for (size_t length = 0; length < example.size(); ++length) {
        kvt_sprite_test::WriteFile(path, example.substr(0, length));
        EXPECT_EQ("", RefusalProblem(RunTool({"info", path}), 1)) << "cut at " << length;
    }
}

// The frames' widths against the font's own advances, and their ink.
TEST(FontCommand, DejaVuSansGivesNinetyFiveFramesAsWideAsTheirAdvances)
{
    const int size = 15;
    kvt_sprite_test::ScratchFolder folder;
    const ToolRun run =
        RunTool({"font", folder / "font.spr", KVT_SPRITE_TTF, std::to_string(size)});
    ASSERT_EQ(0, run.status) << run.err;
    SDL_Surface *holder = SDL_CreateRGBSurface(0, 1, 1, 32, 0xFF0000, 0xFF00, 0xFF, 0);
    KVT_Sprite sprite;
    const bool loaded = sprite.Load((folder / "font.spr").c_str(), holder->format);
    SDL_FreeSurface(holder);
    ASSERT_TRUE(loaded);
    ASSERT_EQ(95u, sprite.GetNbFrames());
    ASSERT_EQ(0, TTF_Init());
    TTF_Font *font = TTF_OpenFont(KVT_SPRITE_TTF, size);
    ASSERT_NE(nullptr, font) << TTF_GetError();
    for (int c = 32; c <= 126; ++c) {
        int minX, maxX, minY, maxY, advance;
        ASSERT_EQ(0, TTF_GlyphMetrics(font, Uint16(c), &minX, &maxX, &minY, &maxY, &advance));
        const KVT_SpriteFrame &frame = sprite.frames[c - 32];
        EXPECT_EQ(advance, sprite.GetW(c - 32)) << "character " << c;
        EXPECT_EQ(TTF_FontHeight(font), frame.surface->h) << "character " << c;
        EXPECT_TRUE(frame.hotX == 0 && frame.hotY == 0) << "character " << c;
        int ink = 0, notWhite = 0;
        for (int y = 0; y < frame.surface->h; ++y)
            for (int x = 0; x < frame.surface->w; ++x) {
                const Uint32 pixel = kvt_test::ReadValue(frame.surface, x, y) & 0xFFFFFF;
                ink += pixel != 0xFF00FF;
                notWhite += pixel != 0xFF00FF && pixel != 0xFFFFFF;
            }
        EXPECT_EQ(c == ' ', ink == 0) << "character " << c << " has " << ink << " ink pixels";
        EXPECT_EQ(0, notWhite) << "character " << c << " is not solid white";
    }
    TTF_CloseFont(font);
    TTF_Quit();
    sprite.FreeFrames();
}

struct Refusal {
    const char *what;
    std::vector<std::string> args; // "@/" stands for the scratch folder
    int status;
};

void PrintTo(const Refusal &refusal, std::ostream *out) { *out << refusal.what; }

class RefusedCommand : public ::testing::TestWithParam<Refusal> {};

TEST_P(RefusedCommand, SaysWhyOnOneLineAndWritesNothing)
{
    kvt_sprite_test::ScratchFolder folder;
    const std::string example = ExampleFile();
    kvt_sprite_test::WriteFile(folder / "keep.spr", example);
    kvt_sprite_test::WriteFile(folder / "damaged.spr", example.substr(0, 40));
    std::string lying = example;
    lying.replace(8, 4, "\xff\xff\xff\x7f"); // the first frame's width
    kvt_sprite_test::WriteFile(folder / "lying.spr", lying);
    kvt_sprite_test::WriteFile(folder / "text.txt", "not a picture\n");
    kvt_sprite::Picture dot;
    dot.width = dot.height = 1;
    dot.pixels = {0x123456};
    std::vector<Uint8> png;
    std::string error;
    ASSERT_TRUE(kvt_sprite::PngBytes(dot, &png, &error) &&
                kvt_sprite::WriteWholeFile(folder / "dot.png", png, &error))
        << error;
    std::vector<std::string> args = GetParam().args;
    for (std::string &arg : args)
        if (arg.rfind("@/", 0) == 0)
            arg = folder / arg.substr(2);
    const std::string before = folder.Listing();
    EXPECT_EQ("", RefusalProblem(RunTool(args), GetParam().status));
    EXPECT_EQ(before, folder.Listing()) << "the folder changed";
}

const Refusal kRefusals[] = {
    {"no_command", {}, 2},
    {"unknown_command", {"shrink", "@/keep.spr"}, 2},
    {"pack_without_images", {"pack", "@/keep.spr"}, 2},
    {"anchor_of_one_number", {"pack", "@/keep.spr", "@/dot.png@1"}, 2},
    {"anchor_of_four_numbers", {"pack", "@/keep.spr", "@/dot.png@1,2,3,4"}, 2},
    {"anchor_not_a_number", {"pack", "@/keep.spr", "@/dot.png@x,2"}, 2},
    {"anchor_with_a_blank", {"pack", "@/keep.spr", "@/dot.png@ 1,2"}, 2},
    {"anchor_out_of_range", {"pack", "@/keep.spr", "@/dot.png@32768,0"}, 2},
    {"tag_out_of_range", {"pack", "@/keep.spr", "@/dot.png@0,0,65536"}, 2},
    {"missing_image_after_a_good_one", {"pack", "@/new.spr", "@/dot.png", "@/none.png"}, 1},
    {"image_that_is_text", {"pack", "@/keep.spr", "@/text.txt"}, 1},
    {"output_in_a_missing_folder", {"pack", "@/none/new.spr", "@/dot.png"}, 1},
    {"font_without_size", {"font", "@/new.spr", KVT_SPRITE_TTF}, 2},
    {"font_size_0", {"font", "@/new.spr", KVT_SPRITE_TTF, "0"}, 2},
    {"font_size_with_a_unit", {"font", "@/new.spr", KVT_SPRITE_TTF, "12pt"}, 2},
    {"font_file_missing", {"font", "@/new.spr", "@/none.ttf", "12"}, 1},
    {"font_file_that_is_text", {"font", "@/keep.spr", "@/text.txt", "12"}, 1},
    {"info_without_file", {"info"}, 2},
    {"info_of_a_missing_file", {"info", "@/none.spr"}, 1},
    {"unpack_of_a_damaged_file", {"unpack", "@/damaged.spr", "@/frames"}, 1},
    {"info_of_a_lying_width", {"info", "@/lying.spr"}, 1},
    {"unpack_of_a_lying_width", {"unpack", "@/lying.spr", "@/frames"}, 1},
    {"unpack_into_a_file", {"unpack", "@/keep.spr", "@/text.txt"}, 1},
    // The scratch folder itself, where a file is wanted.
    {"info_of_a_directory", {"info", "@/"}, 1},
    {"unpack_of_a_directory", {"unpack", "@/", "@/frames"}, 1},
    {"image_that_is_a_directory", {"pack", "@/new.spr", "@/"}, 1},
    {"output_that_is_a_directory", {"pack", "@/", "@/dot.png"}, 1},
    {"font_file_that_is_a_directory", {"font", "@/new.spr", "@/", "12"}, 1},
};

INSTANTIATE_TEST_SUITE_P(Cases, RefusedCommand, ::testing::ValuesIn(kRefusals),
                         [](const auto &info) { return std::string(info.param.what); });

} // namespace
