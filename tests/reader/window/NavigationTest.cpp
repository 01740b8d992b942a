#include "reader/window/MainFixture.h"

namespace ls {
namespace {

struct NavigationTest : MainFixture
{
};

constexpr const char* LastTopic = "information|Lodestar Advisor|There are no more topics in the list.";
constexpr const char* FirstTopic = "information|Lodestar Advisor|You are at the first topic in the list.";
constexpr const char* NoTopics = "information|Lodestar Advisor|There are no topics in this file.";
constexpr const char* NothingSelected = "warning|Lodestar Advisor|Select a topic before clicking Go.";

TEST_F(NavigationTest, goTo_noBookOpen_doesNothing)
{
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(view.showings, 0);
}

TEST_F(NavigationTest, goTo_newBookInMemoryWithoutPath_showsItsTopic)
{
    book.TopicCount = 1;
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "written today\r\n";
    navigation.FillTopicList();
    view.selected = 0;
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(OnShow(), "[New]|written today");
}

TEST_F(NavigationTest, goTo_bookWithoutTopics_saysSo)
{
    Open("LODESTAR BOOK V5.3\r\n");
    EXPECT_EQ(Boxes(), Strings{NoTopics});
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{NoTopics});
    EXPECT_EQ(view.showings, 0);
}

TEST_F(NavigationTest, goTo_nothingSelected_asksToSelect)
{
    OpenThree();
    view.selected = -1;
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{NothingSelected});
    EXPECT_EQ(view.showings, 1);
}

TEST_F(NavigationTest, goTo_selectedItem_showsItAndEnterCloses)
{
    OpenThree();
    view.selected = 1;
    navigation.TopicList_Change();
    EXPECT_EQ(view.defaultButton, DefaultButton::GoTo);
    navigation.GoToButton_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    EXPECT_EQ(book.CurrentTopicName, "[B]");
    EXPECT_EQ(book.CurrentTopicNo, 2);
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
}

TEST_F(NavigationTest, goTo_topicMovedInTheFile_clearsTheDisplayAndKeepsGoToTheDefault)
{
    OpenThree();
    view.selected = 1;
    navigation.TopicList_Change();
    world.files["/work/Book.IDA"] = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "aaaaaa", "[B]", "b"});
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Error looking up topic: [B]"});
    EXPECT_EQ(OnShow(), "");
    EXPECT_FALSE(view.scrollBar);
    EXPECT_EQ(book.CurrentTopicName, "");
    EXPECT_EQ(view.defaultButton, DefaultButton::GoTo);
}

TEST_F(NavigationTest, goTo_logicBlock_remembersWhereItBegins)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>"}));
    EXPECT_TRUE(view.advisorButton);
    EXPECT_EQ(book.LogicPos, 37);
}

TEST_F(NavigationTest, goTo_twoTopicsOfOneName_followsTheItemsNumber)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[Same]", "first", "[Same]", "second"}));
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(OnShow(), "[Same]|first");
    view.selected = 1;
    navigation.GoToButton_Click();
    EXPECT_EQ(OnShow(), "[Same]|second");
    EXPECT_EQ(book.CurrentTopicNo, 2);
}

TEST_F(NavigationTest, next_inTheMiddle_showsTheNextOfTheList)
{
    OpenThree();
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
    EXPECT_EQ(view.selected, 1);
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
}

TEST_F(NavigationTest, next_lastItem_saysSoAndChangesNothing)
{
    OpenThree();
    navigation.NextItem_Click();
    navigation.NextItem_Click();
    navigation.NextItem_Click();
    EXPECT_EQ(Boxes(), Strings{LastTopic});
    EXPECT_EQ(OnShow(), "[C]|c");
    EXPECT_EQ(view.selected, 2);
    EXPECT_EQ(book.CurrentTopicName, "[C]");
}

TEST_F(NavigationTest, next_nothingSelected_showsTheFirst)
{
    OpenThree();
    view.selected = -1;
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.selected, 0);
}

TEST_F(NavigationTest, next_emptyList_saysSo)
{
    navigation.NextItem_Click();
    EXPECT_EQ(Boxes(), Strings{LastTopic});
}

TEST_F(NavigationTest, next_alphabeticOrder_followsTheListAsShown)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[Pear]", "p", "[Apple]", "a", "[Zebra]", "z"}));
    navigation.AlphaItem_Click();
    EXPECT_EQ(view.ItemTexts(), (Strings{"Apple", "Pear", "Zebra"}));
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[Zebra]|z");
    navigation.PrevTopic_Click();
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[Apple]|a");
}

TEST_F(NavigationTest, previous_inTheMiddle_showsTheOneBefore)
{
    OpenThree();
    navigation.NextItem_Click();
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.selected, 0);
}

TEST_F(NavigationTest, previous_firstItem_saysSoAndChangesNothing)
{
    OpenThree();
    navigation.PrevTopic_Click();
    EXPECT_EQ(Boxes(), Strings{FirstTopic});
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.selected, 0);
}

TEST_F(NavigationTest, previous_nothingSelected_givesTheFirstTopicMessage)
{
    OpenThree();
    view.selected = -1;
    navigation.PrevTopic_Click();
    EXPECT_EQ(Boxes(), Strings{FirstTopic});
    EXPECT_EQ(view.selected, -1);
}

TEST_F(NavigationTest, listChange_clearsTheDisplayAndMakesGoToTheDefault)
{
    OpenThree();
    view.selected = 2;
    navigation.TopicList_Change();
    EXPECT_EQ(OnShow(), "");
    EXPECT_FALSE(view.scrollBar);
    EXPECT_EQ(book.CurrentTopicName, "");
    EXPECT_EQ(view.defaultButton, DefaultButton::GoTo);
}

TEST_F(NavigationTest, order_toAlphabeticAndBack_refillsAndKeepsTheSelection)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[b]", "b", "[A]", "a"}));
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. b", "2. A"}));
    navigation.AlphaItem_Click();
    EXPECT_TRUE(view.alphabetic);
    EXPECT_EQ(view.ItemTexts(), (Strings{"A", "b"}));
    EXPECT_EQ(view.selected, 1);
    navigation.ContentsItem_Click();
    EXPECT_FALSE(view.alphabetic);
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. b", "2. A"}));
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(OnShow(), "[b]|b");
}

TEST_F(NavigationTest, list_deletedTopic_leavesNoGapAndKeepsItemData)
{
    OpenThree();
    book.TopicRecs(2).Deleted = true;
    navigation.FillTopicList();
    EXPECT_EQ(view.items, (std::vector<TopicListItem>{{"1. A", 1}, {"2. C", 3}}));
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
    EXPECT_EQ(book.CurrentTopicNo, 3);
}

TEST_F(NavigationTest, showAgain_newWidth_wrapsTheTopicOnShow)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "one two three"}));
    view.width = 8;
    navigation.ShowAgain();
    EXPECT_EQ(OnShow(), "[A]|one two|three");
    EXPECT_EQ(book.CurrentTopicName, "[A]");
}

TEST_F(NavigationTest, showAgain_logicMovedInTheFile_remembersItsNewPlace)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>"}));
    world.files["/work/Book.IDA"] = test::CrLf({"LODESTAR BOOK V5.3", "[A]", "longer", "<IXML>", "<LOGIC>"});
    navigation.ShowAgain();
    EXPECT_EQ(OnShow(), "[A]|longer");
    EXPECT_EQ(book.LogicPos, 42);
}

TEST_F(NavigationTest, showAgain_plainText_wrapsIt)
{
    world.messages.replies = {Reply::Ok};
    Open("one two three\r\n", "/work/Note.TXT");
    view.width = 8;
    navigation.ShowAgain();
    EXPECT_EQ(OnShow(), "|one two|three");
}

TEST_F(NavigationTest, showAgain_nothingOnShow_doesNothing)
{
    navigation.ShowAgain();
    OpenThree();
    view.selected = 1;
    navigation.TopicList_Change();
    navigation.ShowAgain();
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(view.showings, 1);
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(NavigationTest, showAgain_fileChanged_keepsWhatIsOnShowWithoutMessage)
{
    OpenThree();
    world.files["/work/Book.IDA"] = "gone";
    navigation.ShowAgain();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(book.CurrentTopicName, "[A]");
}

TEST_F(NavigationTest, advisor_topicWithABlock_runsIt)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>"}));
    navigation.AdvisorButton_Click();
    EXPECT_EQ(view.advForms, 1);
}

TEST_F(NavigationTest, advisor_topicWithoutABlockOrNothingOnShow_doesNothing)
{
    navigation.AdvisorButton_Click();
    OpenThree();
    navigation.AdvisorButton_Click();
    EXPECT_EQ(view.advForms, 0);
}

TEST_F(NavigationTest, xref_closedWithoutGo_changesNothing)
{
    OpenThree();
    const int fills = view.fills;
    navigation.XRButton_Click();
    EXPECT_EQ(view.fills, fills);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(NavigationTest, xref_go_selectsAndShowsThatTopic)
{
    OpenThree();
    view.onXrefForm = [this] { book.CurrentTopicName = "C"; };
    navigation.XRButton_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
    EXPECT_EQ(view.selected, 2);
    EXPECT_EQ(book.CurrentTopicNo, 3);
}

TEST_F(NavigationTest, xref_goToItself_showsItAgain)
{
    OpenThree();
    const int showings = view.showings;
    view.onXrefForm = [this] { book.CurrentTopicName = "A"; };
    navigation.XRButton_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.showings, showings + 1);
}

TEST_F(NavigationTest, xref_goToAMissingTopic_saysOnceThatItWasNotFound)
{
    OpenThree();
    view.onXrefForm = [this] { book.CurrentTopicName = "Gone"; };
    navigation.XRButton_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Topic [Gone] was not found."});
    EXPECT_EQ(OnShow(), "");
}

TEST_F(NavigationTest, xref_goToARemovedTopic_doesNotShowIt)
{
    OpenThree();
    book.TopicRecs(2).Deleted = true;
    navigation.FillTopicList();
    view.onXrefForm = [this] { book.CurrentTopicName = "B"; };
    navigation.XRButton_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Topic [B] was not found."});
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(book.CurrentTopicName, "");
    book.TopicRecs(2).Deleted = false;
    navigation.XRButton_Click();
    EXPECT_EQ(OnShow(), "[B]|b") << "a restored topic is shown";
}

TEST_F(NavigationTest, xref_goToTheOneOfTwoThatIsNotRemoved_showsThatOne)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "[B]", "b", "[B]", "second"}));
    book.TopicRecs(2).Deleted = true;
    navigation.FillTopicList();
    view.onXrefForm = [this] { book.CurrentTopicName = "B"; };
    navigation.XRButton_Click();
    EXPECT_EQ(OnShow(), "[B]|second");
}

} // namespace
} // namespace ls
