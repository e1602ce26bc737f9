#include <string>
#include <memory>

#include <gtest/gtest.h>

#include <kvt/ui/lists/file_chooser.h>

#include "support/sprite_file.h"
#include "support/surfaces.h"
#include "support/temp_dir.h"
#include "support/theme.h"

namespace {

// The chooser sits inside a margin of the surface so that a pixel drawn
// outside it would reach the guards. Saved regions and glyphs go through
// SDL's blits, which want rows of whole pixels.
constexpr int kX = 3, kY = 2, kW = 90, kH = 10, kPadding = 4;

class FileChooserTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(dir.ok());
        ASSERT_TRUE(kvt_test::LoadTestFont(&font, surface.get()->format));
    }
    void TearDown() override
    {
        EXPECT_TRUE(surface.GuardsIntact()) << "the chooser drew outside the surface";
        font.FreeFrames();
    }

    void MakeFiles(std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            ASSERT_TRUE(dir.MakeFile(name)) << name;
    }

    // A chooser on the current directory's names ending in `suffix`, drawn.
    std::unique_ptr<CUIFileChooser> Scanned(const char *suffix, bool hideExtension, bool wrap)
    {
        auto chooser = std::make_unique<CUIFileChooser>(kX, kY, kW, kH, &theme, &font,
                                                        hideExtension);
        chooser->wrap = wrap;
        chooser->Scan(suffix);
        chooser->SendMessage(CUIMSG_DRAW, 0, 0, surface.get());
        return chooser;
    }

    kvt_test::TempCurrentDir dir;
    kvt_test::GuardedSurface surface{kvt_test::AllFormats().back(), kW + 6, kH + 5, kPadding};
    CUITheme theme = kvt_test::DistinctTheme();
    KVT_Sprite font;
};

TEST_F(FileChooserTest, HideExtensionCutsAtTheLastDotAfterTheFirstCharacter)
{
    struct {
        const char *file, *suffix;
        bool hide;
        const char *shown;
    } const cases[] = {
        {"two.dots.txt", "", true, "two.dots"},  {"two.dots.txt", "txt", true, "two.dots"},
        {"two.dots.txt", ".dots.txt", true, "two.dots"},
        {"trailing.", "", true, "trailing"},     {".leading", "", true, ".leading"},
        {"no_dot", "", true, "no_dot"},          {"two.dots.txt", "", false, "two.dots.txt"},
    };
    for (const auto &c : cases) {
        kvt_test::TempCurrentDir own;
        ASSERT_TRUE(own.ok() && own.MakeFile(c.file));
        auto chooser = Scanned(c.suffix, c.hide, false);
        EXPECT_STREQ(chooser->nameField->GetText(), c.shown)
            << c.file << " scanned with \"" << c.suffix << "\", hideExtension " << c.hide;
    }
}

TEST_F(FileChooserTest, StepsStopOrWrapAtTheEnds)
{
    MakeFiles({"a.x", "b.x", "c.x", "only.txt"});
    struct {
        const char *suffix;
        bool wrap;
        const char *keys; // L and R, pressed in turn
        int val;
        const char *shown; // null: the name at `val`
    } const cases[] = {
        {".x", false, "L", 0, nullptr},   {".x", false, "RRR", 2, nullptr},
        {".x", true, "RRR", 0, nullptr},  {".x", true, "L", 2, nullptr},
        {".x", true, "RRL", 1, nullptr},  {".txt", true, "R", 0, "only.txt"},
        {".txt", true, "L", 0, "only.txt"}, {".png", true, "RL", 0, "no file"},
    };
    for (const auto &c : cases) {
        auto chooser = Scanned(c.suffix, false, c.wrap);
        for (const char *key = c.keys; *key; ++key)
            chooser->SendMessage(CUIMSG_KEYDOWN, *key == 'L' ? SDLK_LEFT : SDLK_RIGHT, 0,
                                 surface.get());
        const char *shown =
            c.shown ? c.shown : static_cast<const char *>(chooser->names.GetElementN(c.val));
        EXPECT_EQ(chooser->GetVal(), c.val) << c.suffix << " wrap " << c.wrap << " " << c.keys;
        EXPECT_STREQ(chooser->nameField->GetText(), shown)
            << c.suffix << " wrap " << c.wrap << " " << c.keys;
    }
}

TEST_F(FileChooserTest, RescanReplacesNamesAndSkipsDotEntries)
{
    MakeFiles({"x.", "y"});
    auto chooser = Scanned("", false, false);
    EXPECT_EQ(chooser->names.GetNbElement(), 2) << "\".\" and \"..\" must be skipped";
    chooser->SendMessage(CUIMSG_KEYDOWN, SDLK_RIGHT, 0, surface.get());
    chooser->Scan(".");
    chooser->SendMessage(CUIMSG_DRAW, 0, 0, surface.get());
    EXPECT_EQ(chooser->GetVal(), 0) << "a new scan starts at the first name";
    EXPECT_STREQ(chooser->nameField->GetText(), "x.");

    ASSERT_EQ(std::remove("x."), 0);
    chooser->Scan(".");
    chooser->SendMessage(CUIMSG_DRAW, 0, 0, surface.get());
    EXPECT_STREQ(chooser->nameField->GetText(), "no file") << "a scan that finds nothing";
}

TEST_F(FileChooserTest, LongExtensionIsCutToFifteenCharacters)
{
    MakeFiles({"x-0123456789abcd"});
    auto chooser = Scanned("-0123456789abcdefghij", false, false);
    EXPECT_STREQ(chooser->extension, "-0123456789abcd");
    EXPECT_STREQ(chooser->nameField->GetText(), "x-0123456789abcd")
        << "the cut suffix is the one matched";
}

} // namespace
