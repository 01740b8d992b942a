#include "book/XrefLists.h"

#include "book/Book.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Entries = std::vector<XrefEntry>;

struct XrefListsTest : testing::Test
{
    Book book;

    void Add(const char* from, const char* to)
    {
        ASSERT_TRUE(book.XrefCount.Add());
        book.Xrefs(book.XrefCount) = {from, to, "note"};
    }
};

TEST_F(XrefListsTest, find_bothWays_inTableOrderWithDoubles)
{
    Add("A", "C");
    Add("B", "A");
    Add("A", "B");
    Add("A", "C");
    Add("C", "B");
    const XrefLists lists = FindXrefs(book, "A");
    EXPECT_EQ(lists.to, (Entries{{"C", 1}, {"B", 3}, {"C", 4}}));
    EXPECT_EQ(lists.in, (Entries{{"B", 2}}));
}

TEST_F(XrefListsTest, find_referenceToItself_standsInBoth)
{
    Add("A", "A");
    const XrefLists lists = FindXrefs(book, "A");
    EXPECT_EQ(lists.to, (Entries{{"A", 1}}));
    EXPECT_EQ(lists.in, (Entries{{"A", 1}}));
}

TEST_F(XrefListsTest, find_otherCase_isAnotherTopic)
{
    Add("A", "b");
    EXPECT_TRUE(FindXrefs(book, "B").in.empty());
    EXPECT_TRUE(FindXrefs(book, "a").to.empty());
}

} // namespace
} // namespace ls
