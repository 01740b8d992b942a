#include "reader/window/TopicCommands.h"

#include "authoring/TopicTable.h"
#include "base/ProgramEnd.h"
#include "book/SaveBook.h"
#include "reader/window/MainFixture.h"

#include <algorithm>

namespace ls {
namespace {

constexpr const char* RearrangedBox =
    "question|Lodestar Advisor|The topics have been rearranged.  Do you want to display the book in "
    "table-of-contents order now?  If not, click No to show the topics in alphabetical order.|YesNo";

struct TopicCommandsTest : MainFixture
{
    TopicCommands topics{book, global.topicFlags, world.Get(), view, navigation};

    void Add(const std::string& typed)
    {
        world.messages.inputs.push_back(typed);
        topics.AddTopicItem_Click();
    }

    // The author checks only the boxes of those topics and presses O.K.
    void Remove(const std::vector<int>& numbers)
    {
        view.onDelTopicForm = [this, numbers] {
            std::vector<RemovalChoice> choices;
            for (int number = 1; number <= book.TopicCount; ++number) {
                choices.push_back(
                    {number, std::find(numbers.begin(), numbers.end(), number) != numbers.end()});
            }
            SetRemoved(book, choices);
            global.topicFlags.TopicListStale = true;
        };
        topics.DelTopicItem_Click();
    }

    void Move(const std::vector<int>& selected, int after)
    {
        view.onMoveTopicsForm = [this, selected, after] {
            MoveTopics(book, selected, after);
            global.topicFlags.TopicsRearranged = true;
        };
        topics.ReorderItem_Click();
    }
};

TEST_F(TopicCommandsTest, add_asksForTheNameInAnInputBox)
{
    OpenThree();
    Add("D");
    EXPECT_EQ(Boxes(), Strings{"input|Lodestar Advisor|Topic Name:|"});
}

TEST_F(TopicCommandsTest, add_isListedSelectedShownEditedAndShownAgain)
{
    OpenThree();
    std::string onShow;
    view.onTxEdForm = [&] {
        onShow = OnShow();
        book.TopicRecs(4).Text = "written\r\n";
        return true;
    };
    const int showings = view.showings;
    Add("  D ");
    EXPECT_EQ(onShow, "[D]|Insert text here.") << "before the editor opens";
    EXPECT_EQ(OnShow(), "[D]|written");
    EXPECT_EQ(view.showings, showings + 2);
    EXPECT_EQ(view.textForms, 1);
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. B", "3. C", "4. D"}));
    EXPECT_EQ(view.selected, 3);
    EXPECT_EQ(book.CurrentTopicNo, 4);
    EXPECT_EQ(book.TopicNames(4), "[D]");
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
}

TEST_F(TopicCommandsTest, add_editorCancelled_keepsTheTopicWithItsFirstText)
{
    OpenThree();
    Add("D");
    EXPECT_EQ(OnShow(), "[D]|Insert text here.");
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(TopicCommandsTest, add_alphabeticOrder_isListedInItsPlace)
{
    OpenThree();
    navigation.AlphaItem_Click();
    Add("Ab. Cd");
    EXPECT_EQ(view.ItemTexts(), (Strings{"A", "Ab. Cd", "B", "C"}));
    EXPECT_EQ(view.selected, 1);
    EXPECT_EQ(OnShow(), "[Ab. Cd]|Insert text here.");
}

TEST_F(TopicCommandsTest, add_emptyAnswerOrCancel_doesNothing)
{
    OpenThree();
    Add("");
    Add("   ");
    world.messages.inputs.emplace_back(std::nullopt);
    topics.AddTopicItem_Click();
    EXPECT_EQ(book.TopicCount, 3);
    EXPECT_EQ(view.textForms, 0);
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(Boxes().size(), 3U) << "only input boxes were shown";
}

TEST_F(TopicCommandsTest, add_refusedNames_saySoAndAddNothing)
{
    OpenThree();
    book.TopicRecs(2).Deleted = true;
    struct Row
    {
        const char* typed;
        const char* box;
    };
    for (const Row& row :
         {Row{" [D] ", "exclamation|Lodestar Advisor|You may not use brackets in the topic name."},
          Row{" A", "exclamation|Lodestar Advisor|Sorry, you already have a chapter with this name."},
          Row{"B", "exclamation|Lodestar Advisor|Sorry, you already have a chapter with this name."},
          Row{"EOF", "exclamation|Lodestar Advisor|You may not use EOF as a topic name, because it marks "
                     "the end of a book."},
          Row{"\xCE\xA9mega",
              "exclamation|Lodestar Advisor|A book cannot hold the character \"\xCE\xA9\"."}}) {
        Add(row.typed);
        const Strings boxes = Boxes();
        ASSERT_EQ(boxes.size(), 2U) << row.typed;
        EXPECT_EQ(boxes[1], row.box);
    }
    EXPECT_EQ(book.TopicCount, 3);
    EXPECT_EQ(view.textForms, 0);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicCommandsTest, add_letterWithAccent_isOneByteOfTheBook)
{
    Add("Caf\xC3\xA9");
    EXPECT_EQ(book.TopicNames(1), "[Caf\xE9]");
    EXPECT_EQ(OnShow(), "[Caf\xE9]|Insert text here.");
}

TEST_F(TopicCommandsTest, add_plainTextFile_isRefusedWithoutAskingForAName)
{
    world.messages.replies = {Reply::Ok};
    Open("just text\r\n", "/work/Note.TXT");
    Boxes();
    topics.AddTopicItem_Click();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|You may not add a topic to a plain text file."});
    EXPECT_EQ(book.TopicCount, 0);
}

TEST_F(TopicCommandsTest, add_oneTooMany_overflowsOnceAndKeepsEverything)
{
    OpenThree();
    GrowTopicTables(book, Count16::Max);
    book.TopicCount = Count16::Max;
    Add("D");
    EXPECT_EQ(Boxes().back(), "critical|Lodestar Advisor|Overflow");
    EXPECT_EQ(book.TopicCount, 32767);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.textForms, 0);
}

TEST_F(TopicCommandsTest, add_programEndedMeanwhile_showsNothingMore)
{
    OpenThree();
    view.onTxEdForm = [this] {
        EndProgram(world.end, "test");
        return false;
    };
    const int showings = view.showings;
    Add("D");
    EXPECT_EQ(view.showings, showings + 1);
}

TEST_F(TopicCommandsTest, add_afterNew_makesABookFromNothing)
{
    OpenThree();
    world.messages.replies = {Reply::Ok};
    commands.NewItem_Click();
    Add("First");
    Add("Second");
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. First", "2. Second"}));
    EXPECT_EQ(OnShow(), "[Second]|Insert text here.");
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[First]|Insert text here.");
    ASSERT_EQ(SaveBook(book, world.Get(), "/work/New.IDA"), WriteOutcome::Written);
    EXPECT_EQ(world.files["/work/New.IDA"], test::CrLf({"LODESTAR BOOK V5.3", "[First]", "Insert text here.",
                                                        "[Second]", "Insert text here."}));
}

TEST_F(TopicCommandsTest, add_noBookAtAll_makesANewOne)
{
    Add("First");
    EXPECT_EQ(OnShow(), "[First]|Insert text here.");
    EXPECT_TRUE(book.IsOpen());
}

TEST_F(TopicCommandsTest, remove_cancelled_changesNothing)
{
    OpenThree();
    const int fills = view.fills;
    topics.DelTopicItem_Click();
    EXPECT_EQ(view.delForms, 1);
    EXPECT_EQ(view.fills, fills);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicCommandsTest, remove_otherTopic_refillsTheListAndKeepsTheOneOnShow)
{
    OpenThree();
    Remove({2});
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. C"}));
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_FALSE(global.topicFlags.TopicListStale);
    EXPECT_TRUE(book.BookChanged);
}

TEST_F(TopicCommandsTest, remove_alphabeticOrder_refillsTheListToo)
{
    OpenThree();
    navigation.AlphaItem_Click();
    Remove({1});
    EXPECT_EQ(view.ItemTexts(), (Strings{"B", "C"}));
}

TEST_F(TopicCommandsTest, remove_topicOnShow_leavesTheDisplay)
{
    OpenThree();
    Remove({1});
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(view.selected, -1);
    EXPECT_EQ(book.CurrentTopicName, "");
    EXPECT_EQ(book.CurrentTopicNo, 0);
    EXPECT_EQ(view.defaultButton, DefaultButton::GoTo);
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
}

TEST_F(TopicCommandsTest, remove_oneOfTwoWithOneName_doesNotSelectTheOther)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[Same]", "first", "[Same]", "second"}));
    Remove({1});
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(view.selected, -1);
}

TEST_F(TopicCommandsTest, remove_all_leavesAnEmptyList)
{
    OpenThree();
    Remove({1, 2, 3});
    EXPECT_EQ(view.ItemCount(), 0);
    EXPECT_EQ(OnShow(), "");
    navigation.GoToButton_Click();
    EXPECT_EQ(Boxes(), Strings{"information|Lodestar Advisor|There are no topics in this file."});
}

TEST_F(TopicCommandsTest, restore_isListedAndShownAgain)
{
    OpenThree();
    Remove({1});
    Remove({});
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(TopicCommandsTest, remove_noTopics_saysThatThereIsNothing)
{
    topics.DelTopicItem_Click();
    world.messages.replies = {Reply::Ok};
    Open("just text\r\n", "/work/Note.TXT");
    Boxes();
    topics.DelTopicItem_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|There is nothing to edit."});
    EXPECT_EQ(view.delForms, 0);
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(TopicCommandsTest, move_cancelled_changesNothing)
{
    OpenThree();
    const int fills = view.fills;
    global.topicFlags.TopicsRearranged = true; // left by an earlier move
    topics.ReorderItem_Click();
    EXPECT_EQ(view.fills, fills);
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(TopicCommandsTest, move_contentsOrder_refillsTheListAndFollowsTheTopicOnShow)
{
    OpenThree();
    Move({1}, 3);
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. B", "2. C", "3. A"}));
    EXPECT_EQ(view.selected, 2);
    EXPECT_EQ(book.CurrentTopicNo, 3);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(Boxes(), Strings{});
    navigation.PrevTopic_Click();
    EXPECT_EQ(OnShow(), "[C]|c");
}

TEST_F(TopicCommandsTest, move_alphabeticOrderAnsweredYes_goesToContentsOrder)
{
    OpenThree();
    navigation.AlphaItem_Click();
    world.messages.replies = {Reply::Yes};
    Move({3}, 0);
    EXPECT_EQ(Boxes(), Strings{RearrangedBox});
    EXPECT_FALSE(view.alphabetic);
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. C", "2. A", "3. B"}));
    EXPECT_EQ(view.selected, 1);
}

TEST_F(TopicCommandsTest, move_alphabeticOrderAnsweredNo_listsTheNewNumbers)
{
    OpenThree();
    navigation.AlphaItem_Click();
    world.messages.replies = {Reply::No};
    Move({3}, 0);
    EXPECT_EQ(Boxes(), Strings{RearrangedBox});
    EXPECT_TRUE(view.alphabetic);
    EXPECT_EQ(view.items, (std::vector<TopicListItem>{{"A", 2}, {"B", 3}, {"C", 1}}));
    EXPECT_EQ(view.selected, 0);
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[B]|b");
}

TEST_F(TopicCommandsTest, move_oneOfTwoWithOneName_keepsThatOneSelected)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[Same]", "first", "[Same]", "second", "[C]"}));
    Move({1}, 3);
    EXPECT_EQ(view.selected, 2);
    navigation.GoToButton_Click();
    EXPECT_EQ(OnShow(), "[Same]|first");
}

TEST_F(TopicCommandsTest, move_nothingOnShow_selectsNothing)
{
    OpenThree();
    view.selected = 1;
    navigation.TopicList_Change();
    Move({1}, 3);
    EXPECT_EQ(view.selected, -1);
    EXPECT_EQ(OnShow(), "");
}

} // namespace
} // namespace ls
