#include "reader/window/EditCommands.h"

#include "reader/window/MainFixture.h"

namespace ls {
namespace {

// The command that edits the logic of the topic on show. Each test sets the author's actions in the editor.
struct AdviceEdItemTest : MainFixture
{
    EditCommands edit{book, world.Get(), view, navigation};
    std::string seen; ///< the block in memory when the editor opened

    void EditAnd(bool done, const std::string& block = {})
    {
        view.onLgEdForm = [this, done, block] {
            seen = Rec().Logic;
            if (done) {
                Rec().Logic = block;
                book.BookChanged = true;
            }
            return done;
        };
        edit.AdviceEdItem_Click();
    }

    [[nodiscard]] TopicRec& Rec() { return book.TopicRecs(book.CurrentTopicNo); }

    void OpenWithLogic()
    {
        Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>", "R(1)=A(B)", "</IXML>"}));
    }

    const std::string Block = test::CrLf({"<IXML>", "<LOGIC>", "R(1)=A(B)", "</IXML>"});
};

TEST_F(AdviceEdItemTest, plainTextFile_isRefused)
{
    world.messages.replies = {Reply::Ok};
    Open("just text\r\n", "/work/x.txt");
    Boxes();
    EditAnd(false);
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|To edit advice, you must be editing an idea "
                               "file rather than a plain text file."});
    EXPECT_EQ(view.logicForms, 0);
}

TEST_F(AdviceEdItemTest, noBook_hasNoTopicToEdit)
{
    EditAnd(false);
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|There is no topic to edit."});
    EXPECT_EQ(view.logicForms, 0);
}

TEST_F(AdviceEdItemTest, bookWithoutTopics_hasNoTopicToEdit)
{
    Open("LODESTAR BOOK V5.3\r\n");
    Boxes();
    EditAnd(false);
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|There is no topic to edit."});
    EXPECT_EQ(view.logicForms, 0);
}

TEST_F(AdviceEdItemTest, noTopicOnShow_asksToDisplayOneFirst)
{
    OpenThree();
    navigation.TopicList_Change();
    EditAnd(false);
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|Please display the topic first by choosing it "
                               "from the list and clicking Go."});
    EXPECT_EQ(view.logicForms, 0);
}

TEST_F(AdviceEdItemTest, uneditedTopic_comesIntoMemoryWithItsText)
{
    OpenWithLogic();
    EditAnd(true, "new block");
    EXPECT_EQ(seen, Block);
    EXPECT_EQ(Rec().Text, "a\r\n") << "saving writes the topic from memory, so its text must be there";
    EXPECT_EQ(Rec().Logic, "new block");
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_TRUE(view.advisorButton) << "the saved block runs until the book is saved";
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(AdviceEdItemTest, cancel_leavesAnUneditedTopicUnedited)
{
    OpenWithLogic();
    EditAnd(false);
    EXPECT_EQ(seen, Block);
    EXPECT_EQ(Rec().Text, "");
    EXPECT_EQ(Rec().Logic, "");
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(AdviceEdItemTest, secondEdit_goesOnFromTheBlockInMemory)
{
    OpenWithLogic();
    EditAnd(true, "once");
    EditAnd(false);
    EXPECT_EQ(seen, "once");
    EXPECT_EQ(Rec().Logic, "once");
}

TEST_F(AdviceEdItemTest, editedText_isKeptBesideTheLogic)
{
    OpenWithLogic();
    view.onTxEdForm = [this] {
        Rec().Text = "new text\r\n";
        return true;
    };
    edit.EdTextItem_Click();
    EditAnd(true, "new block");
    EXPECT_EQ(seen, Block);
    EXPECT_EQ(Rec().Text, "new text\r\n");
    EXPECT_EQ(OnShow(), "[A]|new text");
}

TEST_F(AdviceEdItemTest, topicWithoutLogic_comesUpEmpty)
{
    OpenThree();
    navigation.NextItem_Click();
    EditAnd(true, "first block");
    EXPECT_EQ(seen, "");
    EXPECT_EQ(book.TopicRecs(2).Text, "b\r\n");
    EXPECT_EQ(book.TopicRecs(2).Logic, "first block");
    EXPECT_FALSE(view.advisorButton) << "the file holds no block yet";
}

TEST_F(AdviceEdItemTest, topicThatCannotBeRead_opensNoEditor)
{
    OpenWithLogic();
    world.files["/work/Book.IDA"] = test::CrLf({"LODESTAR BOOK V5.3", "[X]", "x"});
    EditAnd(false);
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
    EXPECT_EQ(view.logicForms, 0);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(AdviceEdItemTest, endedInTheEditor_showsNothingMore)
{
    OpenWithLogic();
    const int before = view.showings;
    view.onLgEdForm = [this] {
        EndProgram(world.end, "test");
        return false;
    };
    edit.AdviceEdItem_Click();
    EXPECT_EQ(view.showings, before);
}

} // namespace
} // namespace ls
