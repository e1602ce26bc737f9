#include <algorithm>
#include <cstring>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <kvt/util/dirlister.h>
#include <kvt/util/name_scan.h>

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

// A folder of files and one directory whose names try the suffix rules,
// and what the lister gives for each suffix there.
struct SuffixFolder {
    kvt_test::TempCurrentDir dir;
    SuffixFolder()
    {
        for (const char *file : {"a.png", "b.PNG", "png", "apng", "c.png.txt", ".png", "dot."})
            EXPECT_TRUE(dir.MakeFile(file)) << file;
        EXPECT_TRUE(dir.MakeDir("d.png"));
    }
};

struct SuffixCase {
    const char *suffix;
    Names expected;
};

const SuffixCase kSuffixCases[] = {
    {".png", {"a.png", ".png", "d.png"}},
    {"png", {"a.png", "png", "apng", ".png", "d.png"}}, // no implied dot
    {"PNG", {"b.PNG"}},
    {"Png", {}},
    {".", {".", "..", "dot."}},
    {"", {".", "..", "a.png", "b.PNG", "png", "apng", "c.png.txt", ".png", "dot.", "d.png"}},
    {"longer than every name", {}},
};

TEST(DirListerTest, MatchesTheTailOfEachNameExactly)
{
    SuffixFolder folder;
    ASSERT_TRUE(folder.dir.ok());
    for (const auto &c : kSuffixCases)
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

bool IsDotEntry(const std::string &name) { return name == "." || name == ".."; }

// The lister's names in the order it reads them, the dot entries left out.
std::vector<std::string> ReadingOrder(const char *suffix)
{
    std::vector<std::string> names;
    KVT_DirLister lister(suffix);
    while (const char *name = lister.GetNextName())
        if (!IsDotEntry(name))
            names.push_back(name);
    return names;
}

// The names of a List from its head to its tail.
std::vector<std::string> Walk(List &names)
{
    std::vector<std::string> walked;
    for (ListNode *node = names.GetHead(); node; node = node->next)
        walked.push_back(static_cast<const char *>(node->element));
    return walked;
}

TEST(NameScanTest, CopiesTheListersNamesNewestFirstWithoutTheDotEntries)
{
    SuffixFolder folder;
    ASSERT_TRUE(folder.dir.ok());
    for (const auto &c : kSuffixCases) {
        Names expected = c.expected;
        expected.erase(".");
        expected.erase("..");
        std::vector<std::string> newestFirst = ReadingOrder(c.suffix);
        std::reverse(newestFirst.begin(), newestFirst.end());

        List names;
        KVT_ScanNames(&names, c.suffix);
        const std::vector<std::string> scanned = Walk(names);
        EXPECT_EQ(Names(scanned.begin(), scanned.end()), expected) << "suffix \"" << c.suffix
                                                                   << "\"";
        EXPECT_EQ(scanned, newestFirst) << "suffix \"" << c.suffix << "\": not newest first";
        // A scan adds to what the list holds; freeing empties it for the next.
        KVT_ScanNames(&names, c.suffix);
        EXPECT_EQ(names.GetNbElement(), int(2 * expected.size())) << c.suffix;
        KVT_FreeNames(&names);
        EXPECT_TRUE(names.IsEmpty()) << "suffix \"" << c.suffix << "\": names left after freeing";
    }
}

TEST(NameScanTest, FreeingTheStringsAloneKeepsTheNodes)
{
    SuffixFolder folder;
    ASSERT_TRUE(folder.dir.ok());
    List names;
    KVT_ScanNames(&names, "");
    const int scanned = names.GetNbElement();
    ASSERT_GT(scanned, 0);
    KVT_FreeNameStrings(&names);
    EXPECT_EQ(names.GetNbElement(), scanned) << "the nodes went with the names";
    names.Clear();

    ASSERT_TRUE(folder.dir.RemoveWhileInside());
    KVT_ScanNames(&names, "");
    EXPECT_TRUE(names.IsEmpty()) << "a vanished directory gave names";
}

TEST(NameScanTest, KeepsAtMostTheLongestExtension)
{
    const std::string longest(KVT_EXTENSION_MAX, 'e');
    const struct {
        std::string given, kept;
    } cases[] = {
        {"", ""},
        {".png", ".png"},
        {longest, longest},
        {longest + "f", longest},
        {"-0123456789abcdefghij", "-0123456789abcd"},
    };
    for (const auto &c : cases) {
        char kept[KVT_EXTENSION_MAX + 1];
        std::memset(kept, 'x', sizeof kept); // no stale byte may show through
        KVT_KeepExtension(kept, c.given.c_str());
        EXPECT_EQ(std::string(kept), c.kept) << "extension \"" << c.given << "\"";
    }
}

} // namespace
