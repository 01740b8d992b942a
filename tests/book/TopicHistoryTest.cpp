#include "book/TopicHistory.h"

#include "authoring/TopicTable.h"
#include "book/Book.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct TopicHistoryTest : testing::Test
{
    TopicHistoryTest()
    {
        for (const char* name : {"[A]", "[B]", "[C]", "[D]"}) {
            static_cast<void>(book.TopicCount.Add());
            book.TopicNames(book.TopicCount) = name;
        }
    }

    // What the main window does after it shows a topic.
    void Show(int number)
    {
        book.CurrentTopicNo = number;
        book.CurrentTopicName = number == 0 ? std::string() : book.TopicNames(number);
        history.Visit(book);
    }

    void ShowAll(std::initializer_list<int> numbers)
    {
        for (const int number : numbers) {
            Show(number);
        }
    }

    // The titles of the topics that Go Back leads to, in order.
    std::string WayBack()
    {
        std::string way;
        while (const int number = history.GoBack(book)) {
            Show(number);
            way += book.TopicNames(number)[1];
        }
        return way;
    }

    std::string WayForward()
    {
        std::string way;
        while (const int number = history.GoForward(book)) {
            Show(number);
            way += book.TopicNames(number)[1];
        }
        return way;
    }

    Book book;
    TopicHistory history;
};

TEST_F(TopicHistoryTest, nothingShown_leadsNowhere)
{
    EXPECT_EQ(history.TopicBefore(book), 0);
    EXPECT_EQ(history.TopicAhead(book), 0);
    EXPECT_EQ(history.GoBack(book), 0);
    EXPECT_EQ(history.GoForward(book), 0);
    history.DropCurrent();
    EXPECT_EQ(history.Count(), 0U);
}

TEST_F(TopicHistoryTest, oneTopic_leadsNowhere)
{
    Show(2);
    EXPECT_EQ(history.TopicBefore(book), 0);
    EXPECT_EQ(history.TopicAhead(book), 0);
}

TEST_F(TopicHistoryTest, severalTopics_backAndForwardInTheirOrder)
{
    ShowAll({3, 1, 4, 1});
    EXPECT_EQ(WayBack(), "DAC");
    EXPECT_EQ(WayForward(), "ADA");
}

TEST_F(TopicHistoryTest, whatIsAsked_isWhatIsTaken)
{
    ShowAll({1, 2, 3});
    EXPECT_EQ(history.TopicBefore(book), 2);
    EXPECT_EQ(history.TopicAhead(book), 0);
    Show(history.GoBack(book));
    EXPECT_EQ(history.TopicBefore(book), 1);
    EXPECT_EQ(history.TopicAhead(book), 3);
}

TEST_F(TopicHistoryTest, sameTopicShownAgain_countsOnce)
{
    ShowAll({1, 2, 2, 2});
    EXPECT_EQ(history.Count(), 2U);
    EXPECT_EQ(WayBack(), "A");
}

TEST_F(TopicHistoryTest, sameTopicShownAgainInTheMiddle_keepsWhatLiesAhead)
{
    ShowAll({1, 2, 3});
    Show(history.GoBack(book));
    Show(2);
    EXPECT_EQ(history.TopicAhead(book), 3);
}

TEST_F(TopicHistoryTest, anotherTopicInTheMiddle_endsWhatLayAhead)
{
    ShowAll({1, 2, 3});
    Show(history.GoBack(book));
    Show(4);
    EXPECT_EQ(history.TopicAhead(book), 0);
    EXPECT_EQ(WayBack(), "BA");
}

TEST_F(TopicHistoryTest, nothingOnShow_backIsTheLastOneShown)
{
    ShowAll({1, 2});
    book.CurrentTopicName.clear(); // the user is looking through the list
    EXPECT_EQ(history.TopicBefore(book), 2);
    Show(history.GoBack(book));
    EXPECT_EQ(WayBack(), "A");
}

TEST_F(TopicHistoryTest, nothingOnShowInTheMiddle_forwardGoesOn)
{
    ShowAll({1, 2, 3});
    Show(history.GoBack(book));
    book.CurrentTopicName.clear();
    EXPECT_EQ(history.TopicAhead(book), 3);
}

TEST_F(TopicHistoryTest, removedTopic_isPassedOverUntilItIsBack)
{
    ShowAll({1, 2, 3});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(history.TopicBefore(book), 1);
    book.TopicRecs(2).Deleted = false;
    EXPECT_EQ(history.TopicBefore(book), 2);
}

TEST_F(TopicHistoryTest, removedTopicOfADoubleTitle_doesNotLeadToItsNamesake)
{
    book.TopicNames(4) = "[B]";
    ShowAll({1, 2, 3});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(history.TopicBefore(book), 1);
}

TEST_F(TopicHistoryTest, everythingBetweenRemoved_doesNotLeadToTheTopicOnShow)
{
    ShowAll({1, 3, 2, 3});
    book.TopicRecs(2).Deleted = true;
    EXPECT_EQ(history.TopicBefore(book), 1);
}

TEST_F(TopicHistoryTest, movedTopics_areFoundByTheirTitles)
{
    ShowAll({1, 2, 3});
    MoveTopics(book, {1}, 4); // B C D A
    EXPECT_EQ(book.TopicNames(4), "[A]");
    EXPECT_EQ(history.TopicBefore(book), 1);
    EXPECT_EQ(WayBack(), "BA");
    EXPECT_EQ(book.CurrentTopicNo, 4);
}

TEST_F(TopicHistoryTest, renamedTopic_isPassedOver)
{
    ShowAll({1, 2, 3});
    book.TopicNames(2) = "[Two]";
    EXPECT_EQ(history.TopicBefore(book), 1);
}

TEST_F(TopicHistoryTest, bookSavedWithoutARemovedTopic_keepsTheOthersByTheirTitles)
{
    ShowAll({1, 2, 3, 4});
    ResetBook(book); // the saved book is read again: A C D
    for (const char* name : {"[A]", "[C]", "[D]"}) {
        static_cast<void>(book.TopicCount.Add());
        book.TopicNames(book.TopicCount) = name;
    }
    Show(1);
    EXPECT_EQ(WayBack(), "DCA");
}

TEST_F(TopicHistoryTest, doubleTitle_isTheOneThatWasShown)
{
    book.TopicNames(3) = "[A]";
    ShowAll({3, 1, 2});
    EXPECT_EQ(history.GoBack(book), 1);
    Show(1);
    EXPECT_EQ(history.GoBack(book), 3);
}

TEST_F(TopicHistoryTest, titleWithBracketsOfItsOwn_isFound)
{
    book.TopicNames(2) = "[[odd]]";
    ShowAll({2, 1});
    MoveTopics(book, {1}, 4);
    EXPECT_EQ(history.TopicBefore(book), 1);
}

TEST_F(TopicHistoryTest, topicOutsideOfTheTable_isNotRemembered)
{
    Show(1);
    book.CurrentTopicNo = 0; // the title was found in the file, not in the table
    book.CurrentTopicName = "[hidden]";
    history.Visit(book);
    book.CurrentTopicNo = 5;
    history.Visit(book);
    EXPECT_EQ(history.Count(), 1U);
}

TEST_F(TopicHistoryTest, topicThatCannotBeShown_doesNotStopTheWay)
{
    ShowAll({1, 2, 3});
    EXPECT_EQ(history.GoBack(book), 2);
    book.CurrentTopicName.clear(); // the topic's text could not be read
    history.DropCurrent();
    EXPECT_EQ(history.TopicBefore(book), 1);
    EXPECT_EQ(history.TopicAhead(book), 3);
}

TEST_F(TopicHistoryTest, oldestTopicThatCannotBeShown_leavesTheOthers)
{
    ShowAll({1, 2});
    EXPECT_EQ(history.GoBack(book), 1);
    book.CurrentTopicName.clear();
    history.DropCurrent();
    EXPECT_EQ(history.TopicBefore(book), 2);
}

TEST_F(TopicHistoryTest, cleared_leadsNowhere)
{
    ShowAll({1, 2, 3});
    history.Clear();
    EXPECT_EQ(history.TopicBefore(book), 0);
    Show(4);
    EXPECT_EQ(history.Count(), 1U);
}

TEST_F(TopicHistoryTest, moreThanItKeeps_forgetsTheOldest)
{
    for (std::size_t i = 0; i < TopicHistory::MostPlaces; ++i) {
        Show(1 + static_cast<int>(i % 2));
    }
    EXPECT_EQ(history.Count(), TopicHistory::MostPlaces);
    ShowAll({3, 4});
    EXPECT_EQ(history.Count(), TopicHistory::MostPlaces);
    const std::string way = WayBack();
    EXPECT_EQ(way.size(), TopicHistory::MostPlaces - 1);
    EXPECT_EQ(way.substr(0, 3), "CBA");
}

} // namespace
} // namespace ls
