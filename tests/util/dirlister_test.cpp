#include <set>
#include <string>

#include <gtest/gtest.h>

#include <kvt/util/dirlister.h>

#include "support/temp_dir.h"

namespace {

using Names = std::multiset<std::string>;

// Every name the lister hands out, and "<more after the end>" if it hands
// out anything once it has said there are no more.
Names Listed(const char *suffix)
{
    Names names;
    KVT_DirLister lister(suffix);
    while (const char *name = lister.GetNextName())
        names.insert(name);
    for (int again = 0; again < 2; ++again)
        if (lister.GetNextName() != nullptr)
            names.insert("<more after the end>");
    return names;
}

TEST(DirListerTest, MatchesTheTailOfEachNameExactly)
{
    kvt_test::TempCurrentDir dir;
    ASSERT_TRUE(dir.ok());
    for (const char *file : {"a.png", "b.PNG", "png", "apng", "c.png.txt", ".png", "dot."})
        ASSERT_TRUE(dir.MakeFile(file)) << file;
    ASSERT_TRUE(dir.MakeDir("d.png"));
    struct {
        const char *suffix;
        Names expected;
    } const cases[] = {
        {".png", {"a.png", ".png", "d.png"}},
        {"png", {"a.png", "png", "apng", ".png", "d.png"}}, // no implied dot
        {"PNG", {"b.PNG"}},
        {"Png", {}},
        {".", {".", "..", "dot."}},
        {"", {".", "..", "a.png", "b.PNG", "png", "apng", "c.png.txt", ".png", "dot.", "d.png"}},
        {"longer than every name", {}},
    };
    for (const auto &c : cases)
        EXPECT_EQ(Listed(c.suffix), c.expected) << "suffix \"" << c.suffix << "\"";
}

TEST(DirListerTest, EmptyAndVanishedDirectoriesListNothing)
{
    kvt_test::TempCurrentDir dir;
    ASSERT_TRUE(dir.ok());
    EXPECT_EQ(Listed("x"), Names()) << "empty directory";
    ASSERT_TRUE(dir.MakeFile("x"));
    ASSERT_TRUE(dir.RemoveWhileInside());
    // Tests run as root, for whom permission bits hide nothing; a current
    // directory that no longer exists is one that no one can read.
    EXPECT_EQ(Listed(""), Names()) << "removed current directory";
}

} // namespace
