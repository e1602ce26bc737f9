#include <string>

#include <gtest/gtest.h>

#include <kvt/util/list.h>

namespace {

// Elements are addresses inside one array, so that a test can tell them
// apart and print them by letter.
char items[] = "abcdefgh";
void *Item(char letter) { return &items[letter - 'a']; }

char Letter(void *element)
{
    return element == nullptr ? '0' : *static_cast<char *>(element);
}

// The letters from head to tail, after checking every link both ways,
// `tail`, `count` and IsEmpty against the walk; "broken: ..." otherwise.
std::string Contents(List &list)
{
    std::string letters;
    ListNode *previous = nullptr;
    for (ListNode *node = list.GetHead(); node; previous = node, node = node->next) {
        if (node->previous != previous)
            return "broken: wrong previous link after \"" + letters + "\"";
        letters += Letter(node->element);
    }
    if (list.tail != previous)
        return "broken: tail is not the last node of \"" + letters + "\"";
    if (list.GetNbElement() != int(letters.size()) || list.IsEmpty() != letters.empty())
        return "broken: count or IsEmpty disagree with \"" + letters + "\"";
    return letters;
}

void Fill(List &list, const char *letters)
{
    for (const char *c = letters; *c; ++c)
        list.AddElement(Item(*c));
}

TEST(ListTest, PositionsCountFromTheLastAdded)
{
    struct {
        const char *added;
        int index;
        char expected; // '0' for null
    } const cases[] = {{"abc", 0, 'c'}, {"abc", 2, 'a'}, {"abc", 3, 'a'}, {"abc", 100, 'a'},
                       {"abc", -1, '0'}, {"", 0, '0'},    {"", -1, '0'}};
    for (const auto &c : cases) {
        List list;
        Fill(list, c.added);
        EXPECT_EQ(Letter(list.GetElementN(c.index)), c.expected)
            << "GetElementN(" << c.index << ") after adding \"" << c.added << "\"";
    }
}

TEST(ListTest, DeleteRemovesTheFirstMatchFromTheHead)
{
    struct {
        const char *added, *removed, *left;
    } const cases[] = {
        {"abcd", "d", "cba"}, // head
        {"abcd", "a", "dcb"}, // tail
        {"abcd", "b", "dca"}, // middle
        {"a", "a", ""},       // only element
        {"abc", "e", "cba"},  // absent
        {"abab", "a", "bba"}, // duplicate: the copy nearer the head goes
        {"", "a", ""},        // empty list
    };
    for (const auto &c : cases) {
        List list;
        Fill(list, c.added);
        for (const char *r = c.removed; *r; ++r)
            list.DeleteElement(Item(*r));
        EXPECT_EQ(Contents(list), c.left) << "added \"" << c.added << "\", removed \""
                                          << c.removed << "\"";
    }
}

TEST(ListTest, DuplicateAndNullElements)
{
    List source;
    Fill(source, "abc");
    source.AddElement(nullptr);
    EXPECT_TRUE(source.IsElementInList(nullptr));
    List destination;
    Fill(destination, "gh");
    source.Duplicate(&destination);
    EXPECT_EQ(Contents(destination), "abc0") << "old content dropped, order reversed";
    EXPECT_EQ(Contents(source), "0cba") << "the source is left as it was";
    destination.DeleteElement(Item('b'));
    EXPECT_EQ(Contents(source), "0cba") << "the copies must have nodes of their own";

    source.Duplicate(&source);
    EXPECT_EQ(Contents(source), "") << "a duplicate into itself empties the list";
    source.AddElement(Item('a'));
    EXPECT_EQ(Contents(source), "a") << "the emptied list takes elements again";
}

} // namespace
