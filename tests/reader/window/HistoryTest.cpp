// Going back and forward among the topics that were shown.

#include "reader/window/MainFixture.h"

#include "authoring/TopicTable.h"

namespace ls {
namespace {

struct HistoryTest : MainFixture
{
    void Pick(int index)
    {
        view.selected = index;
        navigation.TopicList_Change();
        navigation.GoToButton_Click();
    }

    // The possible ways: "<" for back, ">" for forward.
    [[nodiscard]] std::string Ways() const
    {
        return std::string(navigation.CanGoBack() ? "<" : "") + (navigation.CanGoForward() ? ">" : "");
    }
};

TEST_F(HistoryTest, noBook_doesNothing)
{
    EXPECT_EQ(Ways(), "");
    navigation.GoBackItem_Click();
    navigation.GoForwardItem_Click();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(view.showings, 0);
}

TEST_F(HistoryTest, backAndForward_showTheTopicsAndSelectThem)
{
    OpenThree();
    EXPECT_EQ(Ways(), "");
    Pick(2);
    EXPECT_EQ(Ways(), "<");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
    EXPECT_EQ(Ways(), ">");
    navigation.GoForwardItem_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
    EXPECT_EQ(view.selected, 2);
    EXPECT_EQ(Ways(), "<");
    EXPECT_EQ(Boxes(), Strings{});
}

// Next and Previous follow the list, not the history, but the history remembers what they show.
TEST_F(HistoryTest, nextAndPrevious_followTheListAndAreRemembered)
{
    OpenThree();
    Pick(2);
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(HistoryTest, listTouchedWithoutGo_backBringsTheTopicBack)
{
    OpenThree();
    Pick(1);
    view.selected = 2;
    navigation.TopicList_Change();
    EXPECT_EQ(OnShow(), "");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    EXPECT_EQ(view.selected, 1);
}

TEST_F(HistoryTest, alphabeticOrder_selectsTheTopicThere)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[Z]", "z", "[A]", "a"}));
    Pick(1);
    navigation.AlphaItem_Click();
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[Z]|z");
    EXPECT_EQ(view.selected, 1);
}

TEST_F(HistoryTest, crossReference_isAStep)
{
    OpenThree();
    view.onXrefForm = [this] { book.CurrentTopicName = "C"; };
    navigation.XRButton_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(HistoryTest, anotherBook_beginsAnew)
{
    OpenThree();
    Pick(1);
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "other", "[B]", "book"}), "/work/Other.IDA");
    EXPECT_EQ(OnShow(), "[A]|other");
    EXPECT_EQ(Ways(), "");
}

TEST_F(HistoryTest, sameBookOpenedAgain_beginsAnew)
{
    OpenThree();
    Pick(1);
    OpenThree();
    EXPECT_EQ(Ways(), "");
}

TEST_F(HistoryTest, startedOver_beginsAnew)
{
    OpenThree();
    Pick(1);
    world.messages.replies = {Reply::Ok};
    commands.NewItem_Click();
    EXPECT_EQ(Ways(), "");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "");
}

TEST_F(HistoryTest, bookSaved_goesOnInTheNewFile)
{
    OpenThree();
    Pick(1);
    world.files["/work/Book (001).IDA"] = world.files["/work/Book.IDA"];
    book.BookPath = "/work/Book (001).IDA";
    commands.OpenSaved();
    EXPECT_EQ(OnShow(), "[A]|a");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(HistoryTest, plainTextFile_hasNoHistory)
{
    OpenThree();
    Pick(1);
    world.messages.replies = {Reply::Ok}; // shows the file as a single topic
    Open("plain\r\n", "/work/Plain.TXT");
    EXPECT_TRUE(book.IsPlainText());
    EXPECT_EQ(Ways(), "");
}

TEST_F(HistoryTest, topicThatIsGoneFromTheFile_isToldOfAndDropped)
{
    OpenThree();
    Pick(1);
    Pick(2);
    book.TopicPos(2) = 1; // no header line is there
    navigation.GoBackItem_Click();
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(OnShow(), "");
    navigation.GoBackItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    navigation.GoForwardItem_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
}

} // namespace
} // namespace ls
