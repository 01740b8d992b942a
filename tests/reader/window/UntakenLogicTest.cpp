#include "authoring/LogicEditor.h"
#include "authoring/RecordingLogicView.h"
#include "book/SavedBytes.h"
#include "reader/window/EditCommands.h"
#include "reader/window/MainFixture.h"

namespace ls {
namespace {

// Blocks that the text editor leaves in the file, because "<LOGIC>" does not directly follow "<IXML>".
struct UntakenLogicTest : MainFixture
{
    EditCommands edit{book, world.Get(), view, navigation};
    test::RecordingLogicView logicView;
    int editors = 0;

    /// Runs `work` in the editor; it returns true for Done.
    void EditAnd(const std::function<bool(LogicEditor&)>& work)
    {
        view.onLgEdForm = [this, work] {
            ++editors;
            LogicEditor editor(book, world.Get(), logicView);
            return editor.Form_Load() && work(editor);
        };
        edit.AdviceEdItem_Click();
    }

    void OpenWith(const std::string& block)
    {
        Open("LODESTAR BOOK V5.3\r\n[A]\r\na\r\n" + block + "[B]\r\nb\r\n");
    }

    const std::string BlankBetween =
        test::CrLf({"<IXML>", "", "<LOGIC>", "TARGET R", "<DEFINITIONS>", "<Q ID=A>a?</Q>"});
};

TEST_F(UntakenLogicTest, blankLineInFront_comesUpWithItsLogic)
{
    OpenWith(BlankBetween);
    EditAnd([this](LogicEditor& editor) {
        EXPECT_EQ(logicView[LogicBox::Logic], "TARGET R\r\n");
        EXPECT_EQ(logicView.variables, Strings{"A"});
        return editor.SaveButton_Click();
    });
    Boxes();
    EXPECT_EQ(
        test::SavedBytes(book, world),
        test::CrLf({"LODESTAR BOOK V5.3", "[A]", "a", "", "<IXML>", "<LOGIC>", "TARGET R", "</LOGIC>",
                    "<DEFINITIONS>", "", "<Q ID=A>a?</Q>", "", "</DEFINITIONS>", "</IXML>", "", "[B]", "b"}));
}

TEST_F(UntakenLogicTest, cancel_leavesItInTheFile)
{
    OpenWith(BlankBetween);
    EditAnd([](LogicEditor&) { return false; });
    EXPECT_EQ(editors, 1);
    EXPECT_EQ(book.TopicRecs(1).Text, "");
    EXPECT_EQ(book.TopicRecs(1).Logic, "");
    EXPECT_EQ(test::SavedBytes(book, world),
              "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n" + BlankBetween + "[B]\r\nb\r\n");
}

TEST_F(UntakenLogicTest, editedText_isKeptBesideIt)
{
    OpenWith(BlankBetween);
    view.onTxEdForm = [this] {
        book.TopicRecs(1).Text = "new\r\n";
        return true;
    };
    edit.EdTextItem_Click();
    EXPECT_EQ(book.TopicRecs(1).Logic, "");
    EditAnd([](LogicEditor& editor) { return editor.SaveButton_Click(); });
    Boxes();
    EXPECT_EQ(book.TopicRecs(1).Text, "new\r\n");
    EXPECT_NE(book.TopicRecs(1).Logic.find("<Q ID=A>a?</Q>"), std::string::npos);
}

TEST_F(UntakenLogicTest, blockOfAnotherKind_isNamedBeforeItIsReplaced)
{
    OpenWith("<IXML>\r\n<OTHER>\r\n");
    world.messages.replies = {Reply::Cancel};
    EditAnd([this](LogicEditor& editor) {
        logicView[LogicBox::Logic] = "AV(1)=A(B)";
        return editor.SaveButton_Click();
    });
    EXPECT_EQ(Boxes(),
              Strings{"question|Lodestar Advisor|Not everything in this topic's logic can be kept as it was "
                      "read:\n\nLine 2 of the block: The text \"<OTHER>\" would be dropped.\nLine 2 of the "
                      "block: There is no \"<LOGIC>\" line; one would be added.\n\nGo on all the "
                      "same?|OKCancel"});
    EXPECT_EQ(book.TopicRecs(1).Logic, "");
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(UntakenLogicTest, fileChangedMeanwhile_opensNoEditor)
{
    OpenWith(BlankBetween);
    book.TopicRecs(1).Text = "edited before\r\n";
    world.files["/work/Book.IDA"] = test::CrLf({"LODESTAR BOOK V5.3", "[X]", "x"});
    EditAnd([](LogicEditor&) { return false; });
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Error looking up topic: [A]"});
    EXPECT_EQ(editors, 0);
    EXPECT_EQ(book.TopicRecs(1).Text, "edited before\r\n");
}

TEST_F(UntakenLogicTest, newTopicInMemory_needsNoFile)
{
    ASSERT_TRUE(book.TopicCount.Add());
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "Insert text here.";
    book.CurrentTopicNo = 1;
    book.CurrentTopicName = "[New]";
    EditAnd([this](LogicEditor& editor) {
        EXPECT_EQ(logicView[LogicBox::Logic], "");
        logicView[LogicBox::Logic] = "AV(1)=A(B)\n";
        return editor.SaveButton_Click();
    });
    EXPECT_EQ(Boxes(), Strings{"information|Lodestar Advisor|The changes will not take effect until you save "
                               "the file."});
    EXPECT_EQ(book.TopicRecs(1).Text, "Insert text here.");
    EXPECT_TRUE(book.TopicRecs(1).Logic.starts_with("<IXML>\r\n<LOGIC>\r\nAV(1)=A(B)\r\n"));
}

} // namespace
} // namespace ls
