#include "book/TopicList.h"

#include "book/Book.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace ls {
namespace {

using Items = std::vector<TopicListItem>;

constexpr bool Alphabetic = true;
constexpr bool Contents = false;

struct TopicListTest : testing::Test
{
    Book book;

    void Add(const std::string& header)
    {
        ASSERT_TRUE(book.TopicCount.Add());
        GrowTopicTables(book, book.TopicCount);
        book.TopicNames(book.TopicCount) = header;
    }

    void Add(std::initializer_list<const char*> headers)
    {
        for (const char* header : headers) {
            Add(std::string(header));
        }
    }

    void AddNumbered(int count)
    {
        for (int i = 1; i <= count; ++i) {
            Add("[Topic " + std::to_string(i) + "]");
        }
    }
};

TEST_F(TopicListTest, fill_noTopics_isEmptyAndSelectsNothing)
{
    for (const bool alphabetic : {Alphabetic, Contents}) {
        const TopicListModel list = FillTopicList(book, alphabetic);
        EXPECT_TRUE(list.items.empty());
        EXPECT_EQ(list.selected, -1);
    }
}

TEST_F(TopicListTest, fill_contentsOrder_numbersInTheOrderOfTheBook)
{
    Add({"[Zebra]", "[apple]", "[Mango]"});
    EXPECT_EQ(FillTopicList(book, Contents).items,
              (Items{{"1. Zebra", 1}, {"2. apple", 2}, {"3. Mango", 3}}));
}

struct WidthCase
{
    const char* name;
    int topics;
    const char* first;
    const char* last;
};

struct TopicListWidthTest : TopicListTest, testing::WithParamInterface<WidthCase>
{
};

TEST_P(TopicListWidthTest, fill_contentsOrder_padsToTheDigitsOfTheCount)
{
    AddNumbered(GetParam().topics);
    const TopicListModel list = FillTopicList(book, Contents);
    ASSERT_EQ(list.items.size(), static_cast<std::size_t>(GetParam().topics));
    EXPECT_EQ(list.items.front().text, GetParam().first);
    EXPECT_EQ(list.items.back().text, GetParam().last);
}

INSTANTIATE_TEST_SUITE_P(Counts, TopicListWidthTest,
                         testing::Values(WidthCase{"one", 1, "1. Topic 1", "1. Topic 1"},
                                         WidthCase{"nine", 9, "1. Topic 1", "9. Topic 9"},
                                         WidthCase{"ten", 10, "01. Topic 1", "10. Topic 10"},
                                         WidthCase{"hundredTwenty", 120, "001. Topic 1", "120. Topic 120"},
                                         WidthCase{"all", 32767, "00001. Topic 1", "32767. Topic 32767"}),
                         test::RowName());

TEST_F(TopicListTest, fill_deletedTopic_leavesNoGapAndKeepsTableNumbers)
{
    Add({"[C]", "[B]", "[A]"});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(FillTopicList(book, Contents).items, (Items{{"1. C", 1}, {"2. A", 3}}));
    EXPECT_EQ(FillTopicList(book, Alphabetic).items, (Items{{"A", 3}, {"C", 1}}));
}

TEST_F(TopicListTest, fill_deletedTopics_stillCountForTheWidth)
{
    AddNumbered(10);
    book.TopicRecs(10).Deleted = true;
    EXPECT_EQ(FillTopicList(book, Contents).items.back(), (TopicListItem{"09. Topic 9", 9}));
}

TEST_F(TopicListTest, fill_alphabetic_sortsWithoutRegardToCase)
{
    Add({"[beta]", "[Gamma]", "[ALPHA]", "[Beta 2]"});
    EXPECT_EQ(FillTopicList(book, Alphabetic).items,
              (Items{{"ALPHA", 3}, {"beta", 1}, {"Beta 2", 4}, {"Gamma", 2}}));
}

TEST_F(TopicListTest, fill_alphabetic_accentsOfTheCodePageHaveNoCaseEither)
{
    // Small and capital "a" with two dots. The small one's byte is greater, but "b" decides the order.
    Add({"[\xE4"
         "c]",
         "[\xC4"
         "d]",
         "[\xE4"
         "b]"});
    const Items items = FillTopicList(book, Alphabetic).items;
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].itemData, 3);
    EXPECT_EQ(items[1].itemData, 1);
    EXPECT_EQ(items[2].itemData, 2);
}

TEST_F(TopicListTest, fill_namesEqualButForCase_sortsThemByBytes)
{
    Add({"[safety]", "[Safety]", "[SAFETY]"});
    EXPECT_EQ(FillTopicList(book, Alphabetic).items, (Items{{"SAFETY", 3}, {"Safety", 2}, {"safety", 1}}));
}

TEST_F(TopicListTest, fill_equalNames_sortsThemByNumber)
{
    Add({"[Same]", "[Other]", "[Same]", "[Same]"});
    EXPECT_EQ(FillTopicList(book, Alphabetic).items,
              (Items{{"Other", 2}, {"Same", 1}, {"Same", 3}, {"Same", 4}}));
}

TEST_F(TopicListTest, fill_headerWithoutClosingBracket_showsTheRest)
{
    Add({"[Open end"});
    EXPECT_EQ(FillTopicList(book, Alphabetic).items, (Items{{"Open end", 1}}));
}

struct SelectCase
{
    const char* name;
    const char* currentName;
    int currentNo;
    int contents;   ///< the selected index in contents order
    int alphabetic; ///< the selected index in alphabetic order
};

struct TopicListSelectTest : TopicListTest, testing::WithParamInterface<SelectCase>
{
};

TEST_P(TopicListSelectTest, fill_currentTopic_isSelected)
{
    Add({"[Same]", "[First]", "[Same]", "[Gone]"});
    book.TopicRecs(4).Deleted = true;
    book.CurrentTopicName = GetParam().currentName;
    book.CurrentTopicNo = GetParam().currentNo;
    EXPECT_EQ(FillTopicList(book, Contents).selected, GetParam().contents);
    EXPECT_EQ(FillTopicList(book, Alphabetic).selected, GetParam().alphabetic);
}

INSTANTIATE_TEST_SUITE_P(
    Names, TopicListSelectTest,
    testing::Values(SelectCase{"bareName", "First", 0, 1, 0}, SelectCase{"bracketedName", "[First]", 0, 1, 0},
                    SelectCase{"onlyOpeningBracket", "[First", 0, 1, 0},
                    SelectCase{"equalNamesCurrentIsTheSecond", "[Same]", 3, 2, 2},
                    SelectCase{"equalNamesCurrentIsTheFirst", "[Same]", 1, 0, 1},
                    SelectCase{"equalNamesNoNumber", "Same", 0, 0, 1},
                    SelectCase{"numberOfAnotherName", "Same", 2, 0, 1},
                    SelectCase{"otherCase", "FIRST", 2, -1, -1}, SelectCase{"unknown", "Nowhere", 1, -1, -1},
                    SelectCase{"deleted", "[Gone]", 4, -1, -1}, SelectCase{"none", "", 0, -1, -1}),
    test::RowName());

TEST_F(TopicListTest, fill_allTopicsOfOneName_selectsTheCurrentOne)
{
    for (int i = 0; i < Count16::Max; ++i) {
        Add(std::string("[Same]"));
    }
    book.CurrentTopicName = "Same";
    book.CurrentTopicNo = Count16::Max;
    const TopicListModel list = FillTopicList(book, Alphabetic);
    ASSERT_EQ(list.items.size(), static_cast<std::size_t>(Count16::Max));
    EXPECT_EQ(list.selected, Count16::Max - 1);
    EXPECT_EQ(list.items.back().itemData, Count16::Max);
}

struct TitleCase
{
    const char* name;
    const char* text;
    bool alphabetic;
    const char* title;
};

struct TitleOfItemTest : testing::TestWithParam<TitleCase>
{
};

TEST_P(TitleOfItemTest, titleOfItem_givesTheTopicsTitle)
{
    EXPECT_EQ(TitleOfItem(GetParam().text, GetParam().alphabetic), GetParam().title);
}

INSTANTIATE_TEST_SUITE_P(Items, TitleOfItemTest,
                         testing::Values(TitleCase{"contents", "007. Safety", Contents, "Safety"},
                                         TitleCase{"titleWithPoint", "1. See p. 4", Contents, "See p. 4"},
                                         TitleCase{"alphabetic", "See p. 4", Alphabetic, "See p. 4"},
                                         TitleCase{"noNumber", "Safety", Contents, "Safety"},
                                         TitleCase{"emptyTitle", "1. ", Contents, ""}),
                         test::RowName());

} // namespace
} // namespace ls
