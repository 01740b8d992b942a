#include "authoring/TopicTable.h"

#include "base/Count16.h"
#include "book/Book.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct TopicTableTest : testing::Test
{
    Book book;

    // Topics of those names; topic n is at position 10 * n and has n as its logic.
    void Fill(const Strings& names)
    {
        for (const std::string& name : names) {
            ASSERT_TRUE(book.TopicCount.Add());
            const int number = book.TopicCount;
            GrowTopicTables(book, number);
            book.TopicNames(number) = "[" + name + "]";
            book.TopicPos(number) = 10 * number;
            book.TopicRecs(number).Text = "text of " + name;
            book.TopicRecs(number).Logic = std::to_string(number);
        }
    }

    // "name@position:text:logic" of every topic; a removed one ends in "-".
    [[nodiscard]] Strings Rows() const
    {
        Strings rows;
        for (int number = 1; number <= book.TopicCount; ++number) {
            const TopicRec& rec = book.TopicRecs(number);
            rows.push_back(book.TopicNames(number) + "@" + std::to_string(book.TopicPos(number)) + ":" +
                           rec.Text + ":" + rec.Logic + (rec.Deleted ? "-" : ""));
        }
        return rows;
    }

    [[nodiscard]] std::string Order() const
    {
        std::string order;
        for (int i = 1; i <= book.TopicCount; ++i) {
            const std::string& name = book.TopicNames(i);
            order += name.substr(1, name.size() - 2);
        }
        return order;
    }
};

TEST_F(TopicTableTest, nameFromText_trimsBlanksAndLineEndsOnly)
{
    struct Row
    {
        const char* what;
        const char* text;
        const char* name;
    };
    for (const Row& row :
         {Row{"plain", "Intro", "Intro"}, Row{"blanks at both ends", "  Intro ", "Intro"},
          Row{"only blanks", "   ", ""}, Row{"nothing", "", ""}, Row{"blanks inside", "a  b", "a  b"},
          Row{"a TAB is text", "\tIntro", "\tIntro"}, Row{"pasted line end", "Intro\r\n", "Intro"},
          Row{"pasted in two lines", "One\r\nTwo", "One Two"}}) {
        EXPECT_EQ(TopicNameFromText(row.text), row.name) << row.what;
    }
}

TEST_F(TopicTableTest, refusal_namesThatMayNotBeAdded)
{
    Fill({"Intro", "Gone", "Two [inner", "EOF "});
    book.TopicRecs(2).Deleted = true;
    book.TopicNames(3) = "[Open end";
    const std::string brackets = "You may not use brackets in the topic name.";
    const std::string taken = "Sorry, you already have a chapter with this name.";
    struct Row
    {
        const char* name;
        std::string refusal;
    };
    for (const Row& row :
         {Row{"[Intro]", brackets}, Row{"a[b", brackets}, Row{"a]b", brackets}, Row{"Intro", taken},
          Row{"Gone", taken}, Row{"Open end", taken}, Row{"intro", ""}, Row{"INTRO", ""}, Row{"Intro 2", ""},
          Row{"EOF", "You may not use EOF as a topic name, because it marks the end of a book."},
          Row{"eof", ""}, Row{"EOF 2", ""}}) {
        EXPECT_EQ(NameRefusal(book, row.name), row.refusal) << row.name;
    }
}

TEST_F(TopicTableTest, refusal_nameBehindTheCount_isFree)
{
    // A table keeps its size; the count says how much of it is used.
    book.TopicNames(1) = "[Old]";
    EXPECT_EQ(NameRefusal(book, "Old"), "");
}

TEST_F(TopicTableTest, add_appendsAnEntryInMemoryAndMakesItCurrent)
{
    Fill({"A"});
    book.TopicRecs(2) = {"left", "over", true};
    book.TopicPos(2) = 99;
    ASSERT_TRUE(AddTopic(book, "Intro"));
    EXPECT_EQ(Rows(), (Strings{"[A]@10:text of A:1", "[Intro]@0:Insert text here.:"}));
    EXPECT_EQ(book.CurrentTopicName, "Intro");
    EXPECT_EQ(book.CurrentTopicNo, 2);
    EXPECT_TRUE(book.BookChanged) << "leaving must ask about the topic";
}

TEST_F(TopicTableTest, add_pastTheBound_growsAllTablesByTen)
{
    for (int i = 1; i <= 100; ++i) {
        ASSERT_TRUE(AddTopic(book, "T" + std::to_string(i)));
    }
    EXPECT_EQ(book.TopicNames.UpperBound(), 100);
    ASSERT_TRUE(AddTopic(book, "T101"));
    EXPECT_EQ(book.TopicNames.UpperBound(), 110);
    EXPECT_EQ(book.TopicPos.UpperBound(), 110);
    EXPECT_EQ(book.TopicRecs.UpperBound(), 110);
    EXPECT_EQ(book.TopicNames(1), "[T1]");
    EXPECT_EQ(book.TopicRecs(100).Text, "Insert text here.");
}

TEST_F(TopicTableTest, add_asManyAsCanBeCounted_isNotDone)
{
    GrowTopicTables(book, Count16::Max);
    book.TopicCount = Count16::Max - 1;
    EXPECT_TRUE(AddTopic(book, "Last"));
    book.BookChanged = false;
    EXPECT_FALSE(AddTopic(book, "One too many"));
    EXPECT_EQ(book.TopicCount, 32767);
    EXPECT_EQ(book.CurrentTopicName, "Last");
    EXPECT_EQ(book.CurrentTopicNo, 32767);
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicTableTest, setRemoved_removesAndRestores)
{
    Fill({"A", "B", "C"});
    book.TopicRecs(2).Deleted = true;
    SetRemoved(book, {{1, true}, {2, false}, {3, false}});
    EXPECT_EQ(Rows(), (Strings{"[A]@10:text of A:1-", "[B]@20:text of B:2", "[C]@30:text of C:3"}));
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(book.TopicOrder, 0U) << "numbers mean the same topics as before";
}

TEST_F(TopicTableTest, move_namesPositionsAndRecordsMoveTogether)
{
    Fill({"A", "B", "C"});
    MoveTopics(book, {1}, 2);
    EXPECT_EQ(Rows(), (Strings{"[B]@20:text of B:2", "[A]@10:text of A:1", "[C]@30:text of C:3"}));
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(TopicTableTest, move_places)
{
    struct Row
    {
        const char* what;
        std::vector<int> selected;
        int after;
        const char* order;
    };
    for (const Row& row : std::vector<Row>{{"one to the start", {3}, 0, "CABDEF"},
                                           {"one to the end", {1}, 6, "BCDEFA"},
                                           {"back to its own place", {3}, 2, "ABCDEF"},
                                           {"two that stand apart", {2, 5}, 3, "ACBEDF"},
                                           {"in the order of the book", {5, 2}, 3, "ACBEDF"},
                                           {"from both sides", {1, 6}, 4, "BCDAFE"},
                                           {"all but one, to the start", {1, 2, 4, 5, 6}, 0, "ABDEFC"},
                                           {"all but one, behind it", {1, 2, 4, 5, 6}, 3, "CABDEF"}}) {
        book = Book{};
        Fill({"A", "B", "C", "D", "E", "F"});
        MoveTopics(book, row.selected, row.after);
        EXPECT_EQ(Order(), row.order) << row.what;
    }
}

TEST_F(TopicTableTest, move_removedTopics_keepTheirPlaceAmongTheOthers)
{
    Fill({"A", "x", "B", "C", "y", "D"});
    book.TopicRecs(2).Deleted = true;
    book.TopicRecs(5).Deleted = true;
    MoveTopics(book, {3}, 6);
    EXPECT_EQ(Order(), "AxCyDB");
    EXPECT_TRUE(book.TopicRecs(2).Deleted);
    EXPECT_TRUE(book.TopicRecs(4).Deleted);
    MoveTopics(book, {5}, 1);
    EXPECT_EQ(Order(), "ADxCyB");
}

TEST_F(TopicTableTest, move_currentTopic_isFollowed)
{
    Fill({"A", "B", "C"});
    book.CurrentTopicNo = 1;
    MoveTopics(book, {1}, 3);
    EXPECT_EQ(book.CurrentTopicNo, 3);
    MoveTopics(book, {1, 2}, 3);
    EXPECT_EQ(book.CurrentTopicNo, 1) << "others moved after it";
    book.CurrentTopicNo = 0;
    MoveTopics(book, {1}, 3);
    EXPECT_EQ(book.CurrentTopicNo, 0);
}

TEST_F(TopicTableTest, move_changesWhatNumbersMean)
{
    Fill({"A", "B"});
    const auto before = book.TopicOrder;
    MoveTopics(book, {2}, 0);
    EXPECT_NE(book.TopicOrder, before);
}

} // namespace
} // namespace ls
