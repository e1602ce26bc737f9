#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

#include <kvt/ui/lists/file_lister.h>
#include <kvt/ui/lists/string_list.h>
#include <kvt/util/dirlister.h>

#include "support/sprite_file.h"
#include "support/surface_pair.h"
#include "support/temp_dir.h"
#include "support/theme.h"

namespace {

constexpr int kX = 4, kY = 3, kW = 90, kH = 33, kRow = 6, kBar = 10;

// The names of the lister from element 0 on, walked through the nodes.
std::vector<std::string> NamesOf(CUIFileLister &lister)
{
    std::vector<std::string> names;
    for (ListNode *node = lister.names.GetHead(); node; node = node->next)
        names.push_back(static_cast<const char *>(node->element));
    return names;
}

std::multiset<std::string> AsSet(const std::vector<std::string> &names)
{
    return {names.begin(), names.end()};
}

// A folder with files and a folder whose names try the suffix rules.
struct Folder {
    kvt_test::TempCurrentDir dir;
    Folder()
    {
        for (const char *file : {"a.png", "b.PNG", "png", "apng", "dot.", "xabcdefghijklmno"})
            EXPECT_TRUE(dir.MakeFile(file)) << file;
        EXPECT_TRUE(dir.MakeDir("d.png"));
    }
};

struct ScanCase {
    const char *suffix;
    std::multiset<std::string> names;
    const char *kept; // what the lister keeps of the suffix
};

const ScanCase kScans[] = {
    {"", {"a.png", "b.PNG", "png", "apng", "dot.", "xabcdefghijklmno", "d.png"}, ""},
    {".png", {"a.png", "d.png"}, ".png"},
    {"png", {"a.png", "png", "apng", "d.png"}, "png"},
    {".", {"dot."}, "."},
    {"zzz", {}, "zzz"},
    {"abcdefghijklmnopqrst", {"xabcdefghijklmno"}, "abcdefghijklmno"},
};

TEST(FileLister, ScanListsMatchingNamesButNotTheDotEntries)
{
    Folder folder;
    ASSERT_TRUE(folder.dir.ok());
    CUITheme theme = kvt_test::DistinctTheme();
    CUIFileLister lister(kX, kY, kW, kH, &theme, kRow, kBar, nullptr);
    EXPECT_EQ(0, lister.scrollBar->GetInterval() + 1) << "a new lister is not empty";
    for (const ScanCase &c : kScans) {
        lister.scrollBar->SetVal(1);
        lister.Scan(c.suffix);
        std::vector<std::string> names = NamesOf(lister);
        EXPECT_EQ(c.names, AsSet(names)) << "suffix \"" << c.suffix << "\"";
        EXPECT_STREQ(c.kept, lister.extension) << "suffix \"" << c.suffix << "\"";
        EXPECT_EQ(int(names.size()), lister.names.GetNbElement()) << c.suffix;
        EXPECT_EQ(int(names.size()), lister.scrollBar->GetInterval() + 1)
            << "suffix \"" << c.suffix << "\": rows not reset to the names";
        EXPECT_EQ(0, lister.GetSelectedElement()) << "selection not back at 0";
    }
}

TEST(FileLister, NamesStandInReverseDirectoryOrderAndARescanReplacesThem)
{
    Folder folder;
    ASSERT_TRUE(folder.dir.ok());
    std::vector<std::string> read;
    {
        KVT_DirLister dir("");
        while (const char *name = dir.GetNextName())
            if (strcmp(name, ".") != 0 && strcmp(name, "..") != 0)
                read.insert(read.begin(), name);
    }
    CUITheme theme = kvt_test::DistinctTheme();
    CUIFileLister lister(kX, kY, kW, kH, &theme, kRow, kBar, nullptr);
    lister.Scan("");
    EXPECT_EQ(read, NamesOf(lister));
    // A second scan frees the first names (the sanitizer build sees a
    // leak otherwise) and leaves one node per name.
    lister.Scan("");
    EXPECT_EQ(read, NamesOf(lister)) << "a repeated scan changed the names";
    ASSERT_TRUE(folder.dir.RemoveWhileInside());
    lister.Scan("");
    EXPECT_TRUE(NamesOf(lister).empty()) << "a vanished directory listed names";
    EXPECT_EQ(0, lister.scrollBar->GetInterval() + 1);
}

// A lister draws its rows as a string list over the same names does.
TEST(FileLister, RowsShowTheNamesAsAStringList)
{
    Folder folder;
    ASSERT_TRUE(folder.dir.ok());
    kvt_test::SurfacePair pair(kvt_test::AllFormats()[5], 110, 40, 7, 4);
    KVT_Sprite font;
    ASSERT_TRUE(kvt_test::LoadTestFont(&font, pair.actual.get()->format));
    CUITheme theme = kvt_test::DistinctTheme();
    CUIFileLister lister(kX, kY, kW, kH, &theme, kRow, kBar, &font);
    lister.Scan("");
    List same; // the lister's names in the lister's order
    for (ListNode *node = lister.names.tail; node; node = node->previous)
        same.AddElement(node->element);
    CUIStringList strings(kX, kY, kW, kH, &theme, same.GetNbElement(), kRow, kBar);
    strings.SetFont(&font);
    strings.SetStringList(&same);
    for (CUIGenericList *list : {static_cast<CUIGenericList *>(&lister),
                                 static_cast<CUIGenericList *>(&strings)}) {
        list->scrollBar->SetBaseVal(1);
        list->scrollBar->SetVal(2);
    }
    lister.SendMessage(CUIMSG_DRAW, 0, 0, pair.actual);
    strings.SendMessage(CUIMSG_DRAW, 0, 0, pair.expected);
    EXPECT_EQ("", pair.Difference());
    EXPECT_TRUE(pair.actual.GuardsIntact());
    font.FreeFrames();
}

} // namespace
