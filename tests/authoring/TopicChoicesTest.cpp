#include "authoring/TopicChoices.h"

#include "authoring/TopicTable.h"
#include "book/Book.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ls {
namespace {

struct TopicChoicesTest : testing::Test
{
    Book book;

    void Add(const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            ASSERT_TRUE(AddTopic(book, name));
        }
    }
};

TEST_F(TopicChoicesTest, removal_contentsOrder_numbersEveryTopicByItsPlaceInTheTable)
{
    Add({"B", "A", "C"});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(RemovalEntries(book, false),
              (std::vector<RemovalEntry>{{"1. B", 1, false}, {"2. A", 2, true}, {"3. C", 3, false}}));
}

TEST_F(TopicChoicesTest, removal_alphabeticOrder_sortsWithoutRegardToCaseAndNumbers)
{
    Add({"b", "C", "A", "B"});
    book.TopicRecs(1).Deleted = true;
    EXPECT_EQ(RemovalEntries(book, true),
              (std::vector<RemovalEntry>{{"A", 3, false}, {"B", 4, false}, {"b", 1, true}, {"C", 2, false}}));
}

TEST_F(TopicChoicesTest, movable_topicsThatAreNotRemovedInContentsOrder)
{
    Add({"B", "Gone", "A"});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(MovableTopics(book), (std::vector<TopicListItem>{{"B", 1}, {"A", 3}}));
}

TEST_F(TopicChoicesTest, targets_startAndTheTopicsThatStay)
{
    const std::vector<TopicListItem> movable{{"B", 1}, {"A", 3}, {"D", 4}, {"C", 7}};
    EXPECT_EQ(MoveTargets(movable, {7, 3}),
              (std::vector<TopicListItem>{{"** Start **", 0}, {"B", 1}, {"D", 4}}));
}

TEST_F(TopicChoicesTest, selection_noneAndAll_areRefused)
{
    const std::vector<TopicListItem> movable{{"B", 1}, {"A", 3}};
    EXPECT_EQ(SelectionRefusal(movable, {}), "You must select at least one topic to move.");
    EXPECT_EQ(SelectionRefusal(movable, {1, 3}), "You may not select all the topics at once.");
    EXPECT_EQ(SelectionRefusal(movable, {3}), "");
}

TEST_F(TopicChoicesTest, selection_theOnlyTopic_isAllOfThem)
{
    EXPECT_EQ(SelectionRefusal({{"B", 1}}, {1}), "You may not select all the topics at once.");
}

} // namespace
} // namespace ls
