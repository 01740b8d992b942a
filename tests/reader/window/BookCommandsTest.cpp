#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "reader/window/MainFixture.h"

namespace ls {
namespace {

struct BookCommandsTest : MainFixture
{
    void OpenPlain()
    {
        world.messages.replies = {Reply::Ok};
        Open("plain words\r\n", "/work/Note.TXT");
        Boxes();
    }

    [[nodiscard]] std::string RecentFile(int number) const
    {
        return global.settings.RecentFiles.at(static_cast<std::size_t>(number - 1));
    }
};

constexpr const char* AskOpen =
    "question|Lodestar Advisor|Open another book without saving changes?|OKCancel";
constexpr const char* AskExit = "question|Lodestar Advisor|Exit without saving changes?|OKCancel";
constexpr const char* AskNew = "question|Lodestar Advisor|Start over?|OKCancel";
constexpr const char* AskConvert =
    "question|Lodestar Advisor|<</work/Book.IDA>> has Unix line ends.  Do you want to open a converted "
    "copy?|YesNo";
constexpr const char* AskPlain = "question|Lodestar Advisor|The file you opened is not a Lodestar Book or "
                                 "Advice file. Do you want to view "
                                 "it as a single topic text file?|OKCancel";

TEST_F(BookCommandsTest, open_fileForm_isToldWhatToOffer)
{
    commands.OpenItem_Click();
    const FileDialog& dialog = global.fileDialog;
    EXPECT_EQ(view.fileForms, 1);
    EXPECT_EQ(dialog.FileMode, "R");
    EXPECT_EQ(dialog.FilePattern, "*.IDA");
    EXPECT_EQ(dialog.DefaultFolder, "/work");
    EXPECT_EQ(dialog.InitialFileName, "");
    EXPECT_TRUE(dialog.ShowSharing);
}

TEST_F(BookCommandsTest, open_workDirAndRecentFile_areOffered)
{
    book.WorkDir = "/books";
    AddRecentFile(global.settings, "/work/Last.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(global.fileDialog.DefaultFolder, "/books");
    EXPECT_EQ(global.fileDialog.InitialFileName, "/work/Last.IDA");
}

TEST_F(BookCommandsTest, open_cancelled_changesNothing)
{
    OpenThree();
    view.onFileForm = [this] { global.fileDialog.ChosenFile = "/work/Other.IDA"; };
    commands.OpenItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(book.BookPath, "/work/Book.IDA");
    EXPECT_TRUE(book.File);
}

TEST_F(BookCommandsTest, open_acceptedWithoutName_changesNothing)
{
    OpenThree();
    Choose("");
    commands.OpenItem_Click();
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(BookCommandsTest, open_oldAnswersOfTheForm_areForgotten)
{
    OpenThree();
    view.onFileForm = nullptr;
    global.fileDialog.ChosenFile = "/work/Book.IDA";
    global.fileDialog.FileFormOK = true;
    commands.OpenItem_Click();
    EXPECT_EQ(view.showings, 1);
}

TEST_F(BookCommandsTest, open_book_showsItsFirstTopic)
{
    OpenThree();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
    EXPECT_EQ(book.BookFileNo, 2);
    EXPECT_EQ(view.scans, 1);
}

TEST_F(BookCommandsTest, open_book_entersTheRecentFilesAndSavesTheSettings)
{
    OpenThree();
    EXPECT_EQ(RecentFile(1), "/work/Book.IDA");
    EXPECT_EQ(world.files["/work/LSAdvisor.INI"],
              test::CrLf({"LSADVISOR V5.3 INI", "[TOP10FILES]", "*1; NAME=/work/Book.IDA"}));
}

TEST_F(BookCommandsTest, open_failed_doesNotEnterTheRecentFiles)
{
    Choose("/work/None.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(global.settings.RecentFileCount, 0);
    EXPECT_FALSE(world.files.Has("/work/LSAdvisor.INI"));
}

TEST_F(BookCommandsTest, open_bookWithUrl_showsExplain)
{
    Open("LODESTAR BOOK V5.3 /URL=\"http://a.example\"\r\n[A]\r\n");
    EXPECT_TRUE(view.explainButton);
}

TEST_F(BookCommandsTest, open_bookWithoutUrlAfterOneWith_hidesExplain)
{
    Open("LODESTAR BOOK V5.3 /URL=\"http://a.example\"\r\n[A]\r\n");
    OpenThree();
    EXPECT_FALSE(view.explainButton);
}

TEST_F(BookCommandsTest, open_anotherBook_closesTheFirstAndForgetsIt)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3 /AUTHOR=\"me\"", "[Old]", "o", "<XREF TOPIC=Old>", "x</XREF>"}));
    book.StartTopic = "Old";
    OpenThree();
    EXPECT_EQ(book.TopicCount, 3);
    EXPECT_EQ(book.XrefCount, 0);
    EXPECT_EQ(book.BookAuthor, "");
    EXPECT_EQ(book.StartTopic, "");
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(BookCommandsTest, open_missingFile_saysSoAndClearsTheView)
{
    OpenThree();
    Choose("/work/None.IDA");
    commands.OpenItem_Click();
    EXPECT_EQ(
        Boxes(),
        Strings{"critical|Lodestar Advisor|Error opening <</work/None.IDA>> with code 53: File not found"});
    EXPECT_EQ(book.BookPath, "");
    EXPECT_FALSE(book.IsOpen());
    EXPECT_EQ(view.ItemTexts(), Strings{});
    EXPECT_EQ(OnShow(), "");
    EXPECT_FALSE(view.scrollBar);
    EXPECT_FALSE(view.explainButton);
}

TEST_F(BookCommandsTest, open_plainText_isShownAsOneTopicWithoutTheListsControls)
{
    OpenThree();
    world.messages.replies = {Reply::Ok};
    Open("plain words\r\n[not a topic]\r\n<IXML>\r\n", "/work/Note.TXT");
    EXPECT_EQ(Boxes(), Strings{AskPlain});
    EXPECT_FALSE(view.topicControls);
    EXPECT_EQ(OnShow(), "|plain words|[not a topic]|<IXML>");
    EXPECT_EQ(view.ItemTexts(), Strings{});
    EXPECT_EQ(book.CurrentTopicNo, 0);
    EXPECT_EQ(RecentFile(1), "/work/Note.TXT");
    EXPECT_EQ(view.scans, 1);
}

TEST_F(BookCommandsTest, open_bookAfterPlainText_bringsTheControlsBack)
{
    OpenPlain();
    OpenThree();
    EXPECT_TRUE(view.topicControls);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(BookCommandsTest, open_plainTextDeclined_leavesNothingOpen)
{
    OpenThree();
    world.messages.replies = {Reply::Cancel};
    Open("plain words\r\n", "/work/Note.TXT");
    EXPECT_EQ(Boxes(), Strings{AskPlain});
    EXPECT_FALSE(book.IsOpen());
    EXPECT_FALSE(book.IsPlainText());
    EXPECT_TRUE(view.topicControls);
    EXPECT_EQ(view.ItemTexts(), Strings{});
    EXPECT_EQ(RecentFile(1), "/work/Book.IDA");
}

TEST_F(BookCommandsTest, open_unixLineEnds_opensTheConvertedCopy)
{
    world.messages.replies = {Reply::Yes};
    Open("LODESTAR BOOK V5.3\n[A]\na\n");
    EXPECT_EQ(Boxes(), Strings{AskConvert});
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_EQ(book.BookPath, "/work/Book (001).IDA");
    EXPECT_EQ(RecentFile(1), "/work/Book (001).IDA");
}

TEST_F(BookCommandsTest, open_unsavedChanges_asksFirstAndCancelKeepsThem)
{
    OpenThree();
    book.BookChanged = true;
    world.messages.replies = {Reply::Cancel};
    commands.OpenItem_Click();
    EXPECT_EQ(Boxes(), Strings{AskOpen});
    EXPECT_EQ(view.fileForms, 1) << "the form was shown only for the first book";
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(BookCommandsTest, open_unsavedChangesDropped_successClearsTheMark)
{
    OpenThree();
    book.BookChanged = true;
    world.messages.replies = {Reply::Ok};
    OpenThree();
    EXPECT_EQ(Boxes(), Strings{AskOpen});
    EXPECT_FALSE(book.BookChanged);
}

TEST_F(BookCommandsTest, open_unsavedChangesThenCancelledForm_keepsThem)
{
    OpenThree();
    book.BookChanged = true;
    world.messages.replies = {Reply::Ok};
    view.onFileForm = nullptr;
    commands.OpenItem_Click();
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(OnShow(), "[A]|a");
    Boxes();
}

TEST_F(BookCommandsTest, open_failureAfterUnsavedChanges_clearsTheMark)
{
    OpenThree();
    book.BookChanged = true;
    world.messages.replies = {Reply::Ok};
    Choose("/work/None.IDA");
    commands.OpenItem_Click();
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(Boxes().size(), 2U);
}

TEST_F(BookCommandsTest, open_programEndsInTheFileForm_opensNothing)
{
    world.files["/work/Book.IDA"] = "LODESTAR BOOK V5.3\r\n";
    view.onFileForm = [this] {
        global.fileDialog.ChosenFile = "/work/Book.IDA";
        global.fileDialog.FileFormOK = true;
        EndProgram(world.end, "unknown mode");
    };
    commands.OpenItem_Click();
    EXPECT_EQ(world.files.opened, Strings{});
}

TEST_F(BookCommandsTest, open_lockChosen_locksTheFile)
{
    world.files["/work/Book.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    view.onFileForm = [this] {
        global.fileDialog.ChosenFile = "/work/Book.IDA";
        global.fileDialog.FileFormOK = true;
        book.LockBook = true;
    };
    commands.OpenItem_Click();
    EXPECT_EQ(world.files.opened.back(), "/work/Book.IDA locked");
}

TEST_F(BookCommandsTest, leave_noChanges_asksNothing)
{
    OpenThree();
    EXPECT_TRUE(commands.MayLeave());
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(BookCommandsTest, leave_changes_asksAndFollowsTheAnswer)
{
    OpenThree();
    book.BookChanged = true;
    world.messages.replies = {Reply::Cancel, Reply::Ok};
    EXPECT_FALSE(commands.MayLeave());
    EXPECT_TRUE(commands.MayLeave());
    EXPECT_EQ(Boxes(), (Strings{AskExit, AskExit}));
}

TEST_F(BookCommandsTest, leave_programEndedByAFault_asksNothing)
{
    book.BookChanged = true;
    EndProgram(world.end, "a fault");
    EXPECT_TRUE(commands.MayLeave());
}

TEST_F(BookCommandsTest, new_cancelled_changesNothing)
{
    OpenThree();
    world.messages.replies = {Reply::Cancel};
    commands.NewItem_Click();
    EXPECT_EQ(Boxes(), Strings{AskNew});
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_TRUE(book.IsOpen());
}

TEST_F(BookCommandsTest, new_accepted_forgetsTheBookAndClearsTheWindow)
{
    Open(test::CrLf({"LODESTAR BOOK V5.3 /URL=\"u\"", "[A]", "a", "<XREF TOPIC=A>", "x</XREF>", "[B]"}));
    book.StartTopic = "A";
    book.BookChanged = true;
    EXPECT_TRUE(view.xrefButton);
    world.messages.replies = {Reply::Ok};
    commands.NewItem_Click();
    EXPECT_EQ(Boxes(), Strings{AskNew});
    EXPECT_FALSE(view.xrefButton);
    EXPECT_FALSE(view.advisorButton);
    EXPECT_FALSE(view.explainButton);
    EXPECT_FALSE(view.scrollBar);
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(view.ItemTexts(), Strings{});
    EXPECT_EQ(view.selected, -1);
    EXPECT_EQ(view.defaultButton, DefaultButton::GoTo);
    EXPECT_FALSE(book.File);
    EXPECT_EQ(book.BookPath, "");
    EXPECT_EQ(book.StartTopic, "");
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_FALSE(book.BookChanged);
    EXPECT_FALSE(book.IsOpen());
}

TEST_F(BookCommandsTest, new_afterPlainText_bringsTheControlsBack)
{
    OpenPlain();
    world.messages.replies = {Reply::Ok};
    commands.NewItem_Click();
    EXPECT_TRUE(view.topicControls);
    EXPECT_FALSE(book.IsPlainText());
    Boxes();
}

} // namespace
} // namespace ls
