#include "base/ProgramEnd.h"
#include "reader/window/SaveCommandFixture.h"
#include "support/RowName.h"
#include "support/StepProgress.h"

#include <algorithm>

namespace ls {
namespace {

struct SaveCommandTest : SaveCommandFixture
{
};

constexpr const char* Saved = "information|Lodestar Advisor|File saved";
constexpr const char* AskShared =
    "warning|Lodestar Advisor|You did not have the input file locked for editing.  It is best to save only "
    "if "
    "you are sure that no other editing was started on this file since you opened it.  Continue to "
    "save?|OKCancel";
constexpr const char* AskType = "question|Lodestar Advisor|You did not specify a filetype as part of the "
                                "name. Would you like me to add a "
                                "type of .IDA?|YesNo";
constexpr const char* NameTaken =
    "warning|Lodestar Advisor|The output file already exists, so I cannot save your book with this filename.";

TEST_F(SaveCommandTest, save_noBook_saysThatThereIsNothing)
{
    save.SaveItem_Click();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|I have nothing to save."});
    EXPECT_EQ(view.fileForms, 0);
}

TEST_F(SaveCommandTest, save_plainText_saysThatThereIsNothing)
{
    world.messages.replies = {Reply::Ok};
    Open("plain words\r\n", "/work/Note.TXT");
    Boxes();
    save.SaveItem_Click();
    EXPECT_EQ(Boxes(), Strings{"exclamation|Lodestar Advisor|I have nothing to save."});
}

TEST_F(SaveCommandTest, save_openedShared_warnsAndCancelStops)
{
    OpenThree();
    world.messages.replies = {Reply::Cancel};
    SaveAs("Out.IDA");
    EXPECT_EQ(Boxes(), Strings{AskShared});
    EXPECT_EQ(view.fileForms, 1) << "the form was shown only to open the book";
}

TEST_F(SaveCommandTest, save_newBook_isNotWarnedAboutSharing)
{
    book.TopicCount = 1;
    GrowTopicTables(book, 1);
    book.TopicNames(1) = "[New]";
    book.TopicRecs(1).Text = "n\r\n";
    book.BookChanged = true;
    EXPECT_EQ(SaveAsProposed(), "Ideas (001).ida");
    EXPECT_EQ(Boxes(), Strings{Saved});
    EXPECT_EQ(world.files["/work/Ideas (001).ida"], "LODESTAR BOOK V5.3\r\n[New]\r\nn\r\n\r\n");
    EXPECT_EQ(book.BookPath, "/work/Ideas (001).ida");
    EXPECT_EQ(OnShow(), "[New]|n|");
}

TEST_F(SaveCommandTest, save_fileForm_isToldWhatToOffer)
{
    OpenEdited();
    AddRecentFile(global.settings, "/work/Last.IDA");
    global.fileDialog.OverwriteConfirmed = true;
    global.fileDialog.ChosenFullPath = "/old";
    global.fileDialog.ShowSharing = true;
    view.onFileForm = nullptr;
    save.SaveItem_Click();
    const FileDialog& dialog = global.fileDialog;
    EXPECT_EQ(dialog.FileMode, "W");
    EXPECT_EQ(dialog.FileFormTitle, "Save the book as:");
    EXPECT_EQ(dialog.FilePattern, "*.IDA");
    EXPECT_EQ(dialog.DefaultFolder, "/work");
    EXPECT_EQ(dialog.InitialFileName, "/work/Book (001).IDA");
    EXPECT_EQ(dialog.ChosenFullPath, "");
    EXPECT_FALSE(dialog.OverwriteConfirmed);
    EXPECT_FALSE(dialog.ShowSharing);
}

TEST_F(SaveCommandTest, save_workDir_isTheFolderOfTheForm)
{
    OpenEdited();
    world.files.AddFolder("/books");
    book.WorkDir = "/books";
    SaveAs("Out.IDA");
    EXPECT_EQ(form.defaultLabel, "Default folder: /books");
    EXPECT_EQ(world.files["/books/Out.IDA"], EditedBook);
    EXPECT_EQ(book.BookPath, "/books/Out.IDA");
}

TEST_F(SaveCommandTest, save_formCancelled_changesNothing)
{
    OpenEdited();
    view.onFileForm = [this] {
        global.fileDialog.ChosenFile = "Out.IDA";
        global.fileDialog.ChosenFullPath = "/work/Out.IDA";
    };
    save.SaveItem_Click();
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_FALSE(world.files.Has("/work/Out.IDA"));
    ExpectNothingLost();
}

TEST_F(SaveCommandTest, save_addressEnteredInTheFormThenCancelled_showsTheExplainButton)
{
    OpenEdited();
    view.onFileForm = [this] { book.BookUrl = "http://x"; };
    save.SaveItem_Click();
    EXPECT_TRUE(view.explainButton);
    EXPECT_EQ(Boxes(), Strings());
}

TEST_F(SaveCommandTest, save_formWithoutName_changesNothing)
{
    OpenEdited();
    SaveAs("");
    EXPECT_EQ(Boxes(), Strings{});
    ExpectNothingLost();
}

TEST_F(SaveCommandTest, save_programEndsInTheFileForm_writesNothing)
{
    OpenEdited();
    view.onFileForm = [this] {
        AcceptFileName(global.fileDialog, "Out.IDA", false, book.LockBook, world.Get());
        EndProgram(world.end, "unknown mode");
    };
    save.SaveItem_Click();
    EXPECT_FALSE(world.files.Has("/work/Out.IDA"));
}

TEST_F(SaveCommandTest, save_nameWithoutType_yesAddsIda)
{
    OpenEdited();
    world.messages.replies = {Reply::Yes};
    SaveAs("Out");
    EXPECT_EQ(Boxes(), (Strings{AskType, Saved}));
    EXPECT_EQ(world.files["/work/Out.IDA"], EditedBook);
    EXPECT_FALSE(world.files.Has("/work/Out"));
    EXPECT_EQ(book.BookPath, "/work/Out.IDA");
}

TEST_F(SaveCommandTest, save_nameWithoutType_noSavesWithoutOne)
{
    OpenEdited();
    world.messages.replies = {Reply::No};
    SaveAs("Out");
    EXPECT_EQ(Boxes(), (Strings{AskType, Saved}));
    EXPECT_EQ(world.files["/work/Out"], EditedBook);
    EXPECT_EQ(book.BookPath, "/work/Out");
}

TEST_F(SaveCommandTest, save_dotOfAFolder_isNoType)
{
    OpenEdited();
    world.files.AddFolder("/work/v1.2");
    world.messages.replies = {Reply::Yes};
    SaveAs("v1.2/Out");
    EXPECT_EQ(Boxes(), (Strings{AskType, Saved}));
    EXPECT_EQ(world.files["/work/v1.2/Out.IDA"], EditedBook);
}

TEST_F(SaveCommandTest, save_otherType_isTakenAsItIs)
{
    OpenEdited();
    SaveAs("Out.txt");
    EXPECT_EQ(Boxes(), Strings{Saved});
    EXPECT_EQ(world.files["/work/Out.txt"], EditedBook);
}

TEST_F(SaveCommandTest, save_existingName_refusesAndKeepsBoth)
{
    OpenEdited();
    world.files["/work/Out.IDA"] = "kept";
    world.files.opened.clear();
    SaveAs("Out.IDA");
    EXPECT_EQ(Boxes(), Strings{NameTaken});
    EXPECT_EQ(world.files["/work/Out.IDA"], "kept");
    EXPECT_EQ(world.files.opened, Strings{}) << "an existing file was opened, which locks it";
    ExpectNothingLost();
}

TEST_F(SaveCommandTest, save_ownName_isRefused)
{
    OpenEdited();
    const std::string before = world.files["/work/Book.IDA"];
    SaveAs("Book.IDA");
    EXPECT_EQ(Boxes(), Strings{NameTaken});
    EXPECT_EQ(world.files["/work/Book.IDA"], before);
    ExpectNothingLost();
}

TEST_F(SaveCommandTest, save_nameThatBecomesTakenByItsType_isRefused)
{
    OpenEdited();
    world.files["/work/Out.IDA"] = "kept";
    world.messages.replies = {Reply::Yes};
    SaveAs("Out");
    EXPECT_EQ(Boxes(), (Strings{AskType, NameTaken}));
    EXPECT_EQ(world.files["/work/Out.IDA"], "kept");
}

TEST_F(SaveCommandTest, save_overwriteConfirmedInTheSelector_isRefusedAllTheSame)
{
    OpenEdited();
    world.files["/work/Out.IDA"] = "kept";
    view.onFileForm = [this] {
        global.fileDialog.OverwriteConfirmed = true;
        AcceptFileName(global.fileDialog, "Out.IDA", false, book.LockBook, world.Get());
    };
    save.SaveItem_Click();
    EXPECT_EQ(Boxes(), Strings{NameTaken});
    EXPECT_EQ(world.files["/work/Out.IDA"], "kept");
}

struct TestFailure
{
    const char* name;
    const char* path;
    int planted; ///< the error when the file is opened; 0 for none
    const char* box;
};

struct TestFailureTable : SaveCommandTest, testing::WithParamInterface<TestFailure>
{
};

TEST_P(TestFailureTable, save_presenceCannotBeTested_saysSoAndStops)
{
    OpenEdited();
    world.files.AddFolder("/work/folder.d");
    world.files.fail = [](const std::string& operation) {
        return operation.starts_with("open /work/Out") ? GetParam().planted : 0;
    };
    SaveAs(GetParam().path);
    EXPECT_EQ(Boxes(), Strings{GetParam().box});
    world.files.fail = nullptr;
    ExpectNothingLost();
}

const TestFailure TestFailures[] = {
    {"missingFolder", "none/Out.IDA", 0,
     "warning|Lodestar Advisor|Can't test for presence of output file due to error #76: Path not found"},
    {"folder", "folder.d", 0,
     "warning|Lodestar Advisor|Can't test for presence of output file due to error #75: Path/File access "
     "error"},
    {"refused", "Out.IDA", error::PermissionDenied,
     "warning|Lodestar Advisor|Can't test for presence of output file due to error #70: Permission denied"},
    {"badName", "Out.IDA", error::BadFileNumber,
     "warning|Lodestar Advisor|Can't test for presence of output file due to error #52: Bad file name or "
     "number"},
};

INSTANTIATE_TEST_SUITE_P(Failures, TestFailureTable, testing::ValuesIn(TestFailures), test::RowName());

TEST_F(SaveCommandTest, save_cancelledWhileWriting_removesThePartAndKeepsAll)
{
    OpenEdited();
    book.TopicRecs(2).Text = std::string(1000000, 'x') + "\r\n";
    view.saveProgress = [] { return std::make_unique<test::StepProgress>(1); };
    SaveAs("Out.IDA");
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(view.saved, "/work/Out.IDA");
    EXPECT_FALSE(world.files.Has("/work/Out.IDA"));
    EXPECT_FALSE(world.files.Has("/work/Out.IDA.part"));
    book.TopicRecs(2).Text = "edited\r\n";
    view.saveProgress = nullptr;
    ExpectNothingLost();
}

TEST_F(SaveCommandTest, save_done_theNewFileIsTheOpenBook)
{
    OpenEdited();
    book.LockBook = true;
    book.StartTopic = "C";
    view.SelectItem(2);
    SaveAs("Out.IDA");
    EXPECT_EQ(Boxes(), Strings{Saved});
    EXPECT_EQ(book.BookPath, "/work/Out.IDA");
    EXPECT_EQ(book.OpenPath, "/work/Out.IDA");
    EXPECT_TRUE(book.LockBook);
    EXPECT_EQ(world.files.opened.back(), "/work/Out.IDA locked");
    EXPECT_FALSE(book.BookChanged);
    EXPECT_EQ(book.TopicRecs(2).Text, "");
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. B", "3. C"}));
    EXPECT_EQ(view.selected, 0);
    EXPECT_EQ(OnShow(), "[A]|a");
    navigation.NextItem_Click();
    EXPECT_EQ(OnShow(), "[B]|edited|");
}

TEST_F(SaveCommandTest, save_openedShared_isOpenLockedAfterwards)
{
    OpenThree();
    ASSERT_FALSE(book.LockBook);
    world.messages.replies = {Reply::Ok};
    SaveAs("Out.IDA");
    EXPECT_EQ(Boxes(), (Strings{AskShared, Saved}));
    EXPECT_TRUE(book.LockBook);
    EXPECT_EQ(world.files.opened.back(), "/work/Out.IDA locked");
    SaveAs("Out 2.IDA");
    EXPECT_EQ(Boxes(), Strings{Saved}) << "there is nothing left to warn about";
}

TEST_F(SaveCommandTest, save_done_entersTheRecentFilesAndSavesTheSettingsOnce)
{
    OpenEdited();
    world.files.log.clear();
    SaveAs("Out.IDA");
    EXPECT_EQ(world.files["/work/LSAdvisor.INI"],
              test::CrLf({"LSADVISOR V5.3 INI", "[TOP10FILES]", "*1; NAME=/work/Out.IDA",
                          "*2; NAME=/work/Book.IDA"}));
    EXPECT_EQ(std::count(world.files.log.begin(), world.files.log.end(), "create LSAdvisor.INI.new"), 1);
}

TEST_F(SaveCommandTest, save_explainButton_followsTheSavedHeader)
{
    OpenEdited();
    EXPECT_FALSE(view.explainButton);
    book.BookUrl = "http://a.example";
    SaveAs("Out.IDA");
    EXPECT_TRUE(view.explainButton);
    EXPECT_EQ(book.BookUrl, "http://a.example");
}

struct ProposalCase
{
    const char* name;
    const char* bookPath;
    const char* file; ///< the path of the book's file
    const char* workDir;
    const char* proposal;
    const char* saved;
};

struct ProposalTable : SaveCommandTest, testing::WithParamInterface<ProposalCase>
{
};

TEST_P(ProposalTable, save_proposedName_liesBesideTheBook)
{
    world.files[GetParam().file] = "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n";
    world.files.AddFolder("/books");
    book.WorkDir = GetParam().workDir;
    Choose(GetParam().bookPath);
    commands.OpenItem_Click();
    ASSERT_EQ(OnShow(), "[A]|a");
    book.LockBook = true;
    EXPECT_EQ(SaveAsProposed(), GetParam().proposal);
    EXPECT_EQ(Boxes(), Strings{Saved});
    EXPECT_EQ(book.BookPath, GetParam().saved);
    EXPECT_TRUE(world.files.Has(GetParam().saved));
}

const ProposalCase Proposals[] = {
    {"noNumber", "/work/Guide.IDA", "/work/Guide.IDA", "", "/work/Guide (001).IDA", "/work/Guide (001).IDA"},
    {"numbered", "/work/Guide (001).IDA", "/work/Guide (001).IDA", "", "/work/Guide (002).IDA",
     "/work/Guide (002).IDA"},
    {"beyond999", "/work/Book (999).IDA", "/work/Book (999).IDA", "", "/work/Book (1000).IDA",
     "/work/Book (1000).IDA"},
    {"bareName", "Guide.IDA", "/work/Guide.IDA", "", "Guide (001).IDA", "/work/Guide (001).IDA"},
    {"bareNameInWorkDir", "Guide.IDA", "/books/Guide.IDA", "/books", "Guide (001).IDA",
     "/books/Guide (001).IDA"},
    {"belowTheCurrentFolder", "sub/Guide.IDA", "/work/sub/Guide.IDA", "", "sub/Guide (001).IDA",
     "/work/sub/Guide (001).IDA"},
    {"belowTheCurrentFolderWithAWorkDir", "sub/Guide.IDA", "/work/sub/Guide.IDA", "/books",
     "/work/sub/Guide (001).IDA", "/work/sub/Guide (001).IDA"},
    {"programFolder", "LS:Guide.IDA", "/program/Guide.IDA", "", "/program/Guide (001).IDA",
     "/program/Guide (001).IDA"},
    {"folderInAnotherCase", "/WORK/guide.ida", "/work/Guide.IDA", "", "/work/Guide (001).IDA",
     "/work/Guide (001).IDA"},
    {"noType", "/work/v1.2/Guide", "/work/v1.2/Guide", "", "/work/v1.2/Guide (001).IDA",
     "/work/v1.2/Guide (001).IDA"},
};

INSTANTIATE_TEST_SUITE_P(Proposals, ProposalTable, testing::ValuesIn(Proposals), test::RowName());

} // namespace
} // namespace ls
