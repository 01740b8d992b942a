#include "reader/window/EditCommands.h"

#include "authoring/TextEditing.h"
#include "book/SavedBytes.h"
#include "reader/window/MainFixture.h"

namespace ls {
namespace {

struct EditCommandsTest : MainFixture
{
    EditCommands edit{book, world.Get(), view, navigation};
    std::string seen; ///< the text in the editor when it opened
    int editors = 0;

    /// The author replaces the text in the editor and presses Done.
    void TypeAndDone(const std::string& text)
    {
        view.onTxEdForm = [this, text] {
            ++editors;
            seen = TextToEdit(book);
            return SaveTopicText(book, world.Get(), text).stored;
        };
        edit.EdTextItem_Click();
    }

    /// The author presses Cancel.
    void CancelEditor()
    {
        view.onTxEdForm = [this] {
            ++editors;
            seen = TextToEdit(book);
            return false;
        };
        edit.EdTextItem_Click();
    }

    [[nodiscard]] const TopicRec& Rec(int number) const { return book.TopicRecs(number); }
};

TEST_F(EditCommandsTest, noBook_hasNothingToEdit)
{
    edit.EdTextItem_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|There is nothing to edit."});
    EXPECT_EQ(editors, 0);
}

TEST_F(EditCommandsTest, plainTextFile_hasNothingToEdit)
{
    world.messages.replies = {Reply::Ok};
    Open("just text\r\n", "/work/x.txt");
    Boxes();
    CancelEditor();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|There is nothing to edit."});
    EXPECT_EQ(editors, 0);
}

TEST_F(EditCommandsTest, noTopicOnShow_asksToDisplayOneFirst)
{
    OpenThree();
    navigation.TopicList_Change();
    CancelEditor();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Please display the topic first by choosing it from "
                               "the list and clicking Go."});
    EXPECT_EQ(editors, 0);
}

TEST_F(EditCommandsTest, done_showsTheTopicFromItsEditedText)
{
    OpenThree();
    navigation.NextItem_Click();
    TypeAndDone("new\nlines\n");
    EXPECT_EQ(seen, "b\r\n");
    EXPECT_EQ(OnShow(), "[B]|new|lines");
    EXPECT_EQ(book.CurrentTopicName, "[B]");
    EXPECT_EQ(book.CurrentTopicNo, 2);
    EXPECT_EQ(Rec(2).Text, "new\r\nlines\r\n");
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(EditCommandsTest, secondEdit_goesOnFromTheTextInMemory)
{
    OpenThree();
    TypeAndDone("once");
    TypeAndDone("twice");
    EXPECT_EQ(seen, "once");
    EXPECT_EQ(Rec(1).Text, "twice");
    EXPECT_EQ(OnShow(), "[A]|twice");
}

TEST_F(EditCommandsTest, cancel_leavesAnUneditedTopicUnedited)
{
    OpenThree();
    CancelEditor();
    EXPECT_EQ(seen, "a\r\n");
    EXPECT_EQ(Rec(1).Text, "");
    EXPECT_EQ(Rec(1).Logic, "");
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(EditCommandsTest, cancel_leavesTheEditedTextAsItWas)
{
    OpenThree();
    TypeAndDone("once");
    book.BookChanged = false;
    CancelEditor();
    EXPECT_EQ(Rec(1).Text, "once");
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(OnShow(), "[A]|once");
}

TEST_F(EditCommandsTest, emptied_staysEmpty)
{
    OpenThree();
    TypeAndDone("");
    EXPECT_EQ(Rec(1).Text, "\r\n");
    EXPECT_EQ(OnShow(), "[A]|");
    EXPECT_EQ(test::SavedBytes(book, world),
              test::CrLf({"LODESTAR BOOK V5.3", "[A]", "", "", "[B]", "b", "[C]", "c"}));
}

TEST_F(EditCommandsTest, logicBlock_isKeptBesideTheEditedText)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<LOGIC>", "x", "</IXML>", "[B]", "b"}));
    TypeAndDone("new\n");
    EXPECT_EQ(seen, "a\r\n");
    EXPECT_EQ(Rec(1).Logic, test::CrLf({"<IXML>", "<LOGIC>", "x", "</IXML>"}));
    EXPECT_TRUE(view.advisorButton) << "the saved block runs until the book is saved";
    EXPECT_NE(book.LogicPos, 0);
    EXPECT_EQ(test::SavedBytes(book, world), test::CrLf({"LODESTAR BOOK V5.3", "[A]", "new", "", "<IXML>",
                                                         "<LOGIC>", "x", "</IXML>", "", "[B]", "b"}));
}

TEST_F(EditCommandsTest, blockThatTheEditorsDoNotTake_isKept)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "<IXML>", "<OTHER>", "x", "[B]", "b"}));
    TypeAndDone("new");
    EXPECT_EQ(Rec(1).Logic, "");
    EXPECT_TRUE(view.advisorButton);
    EXPECT_EQ(test::SavedBytes(book, world),
              test::CrLf({"LODESTAR BOOK V5.3", "[A]", "new", "<IXML>", "<OTHER>", "x", "[B]", "b"}));
}

TEST_F(EditCommandsTest, onlyLogicInMemory_isNotReadAgain)
{
    OpenThree();
    book.TopicRecs(1).Logic = "<IXML>\r\n";
    CancelEditor();
    EXPECT_EQ(seen, "");
    EXPECT_EQ(Rec(1).Logic, "<IXML>\r\n");
}

TEST_F(EditCommandsTest, newTopicInMemory_isEditedWithoutAFile)
{
    ASSERT_TRUE(book.TopicCount.Add());
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "Insert text here.";
    book.CurrentTopicNo = 1;
    book.CurrentTopicName = "New";
    TypeAndDone("");
    EXPECT_EQ(seen, "Insert text here.");
    EXPECT_EQ(OnShow(), "[New]|");
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(EditCommandsTest, secondOfTwoTopicsOfOneName_isTheOneEdited)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3", "[A]", "first", "[A]", "second"}));
    navigation.NextItem_Click();
    TypeAndDone("new");
    EXPECT_EQ(seen, "second\r\n");
    EXPECT_EQ(Rec(1).Text, "");
    EXPECT_EQ(Rec(2).Text, "new");
}

TEST_F(EditCommandsTest, topicThatCannotBeRead_staysUneditedAndOnShow)
{
    OpenThree();
    world.files["/work/Book.IDA"] = test::CrLf({"LODESTAR BOOK V5.3", "[X]", "x", "[B]", "b"});
    CancelEditor();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
    EXPECT_EQ(editors, 0);
    EXPECT_EQ(book.CurrentTopicName, "[A]");
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(Rec(1).Text, "");
}

TEST_F(EditCommandsTest, endedInTheEditor_showsNothingMore)
{
    OpenThree();
    const int before = view.showings;
    view.onTxEdForm = [this] {
        EndProgram(world.end, "test");
        return false;
    };
    edit.EdTextItem_Click();
    EXPECT_EQ(view.showings, before);
}

TEST_F(EditCommandsTest, properties_explainButtonFollowsTheAddress)
{
    OpenThree();
    EXPECT_FALSE(view.explainButton);
    view.onInfoForm = [this] { book.BookUrl = "http://x"; };
    edit.EditPropertiesOption_Click();
    EXPECT_TRUE(view.explainButton);
    view.onInfoForm = [this] { book.BookUrl.clear(); };
    edit.EditPropertiesOption_Click();
    EXPECT_FALSE(view.explainButton);
}

TEST_F(EditCommandsTest, properties_plainTextFile_hasNothingToEdit)
{
    world.messages.replies = {Reply::Ok};
    Open("just text\r\n", "/work/x.txt");
    Boxes();
    bool shown = false;
    view.onInfoForm = [&shown] { shown = true; };
    edit.EditPropertiesOption_Click();
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|There is nothing to edit."});
    EXPECT_FALSE(shown);
}

TEST_F(EditCommandsTest, properties_noBook_areThoseOfANewOne)
{
    bool shown = false;
    view.onInfoForm = [&shown] { shown = true; };
    edit.EditPropertiesOption_Click();
    EXPECT_TRUE(shown);
    EXPECT_EQ(Boxes(), Strings{});
}

} // namespace
} // namespace ls
