#include "reader/window/StartUp.h"

#include "reader/settings/CommandLine.h"
#include "reader/window/MainFixture.h"

namespace ls {
namespace {

struct StartUpTest : MainFixture
{
    void Start(const std::string& line) { StartUp(global, world.Get(), ParseCommandLine(line), commands); }
    void Start(const std::string& path, const std::string& startTopic)
    {
        CommandLine commandLine;
        commandLine.bookPath = path;
        commandLine.startTopic = startTopic;
        StartUp(global, world.Get(), commandLine, commands);
    }
    void MakeBook(const std::string& path)
    {
        world.files[path] = test::CrLf({"LODESTAR BOOK V5.3 /URL=\"u\"", "[A]", "a", "[B b]", "b"});
    }
};

TEST_F(StartUpTest, start_noBook_showsNothing)
{
    Start("");
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(book.BookPath, "");
    EXPECT_EQ(view.showings, 0);
    EXPECT_EQ(view.fileForms, 0);
    EXPECT_EQ(book.BookVersion, 5.0F);
    EXPECT_EQ(book.BookFileNo, 2);
    EXPECT_EQ(book.TopicNames.UpperBound(), 100);
    EXPECT_EQ(book.TopicPos.UpperBound(), 100);
    EXPECT_EQ(book.TopicRecs.UpperBound(), 100);
    EXPECT_EQ(book.Xrefs.UpperBound(), 100);
}

TEST_F(StartUpTest, start_book_showsItsFirstTopicSharedAndRemembersIt)
{
    MakeBook("/work/Book.IDA");
    Start("/work/Book.IDA", "");
    EXPECT_EQ(Boxes(), Strings{});
    EXPECT_EQ(OnShow(), "[A]|a");
    EXPECT_TRUE(view.explainButton);
    EXPECT_EQ(view.defaultButton, DefaultButton::Done);
    EXPECT_EQ(global.settings.RecentFiles[0], "/work/Book.IDA");
    EXPECT_TRUE(world.files.Has("/work/LSAdvisor.INI"));
    EXPECT_EQ(world.files.opened.back(), "/work/Book.IDA shared");
}

TEST_F(StartUpTest, start_commandLineWithTopic_showsThatTopic)
{
    MakeBook("/work/Guide.IDA");
    Start("Guide.IDA /TOPIC=\"B b\"");
    EXPECT_EQ(OnShow(), "[B b]|b");
    EXPECT_EQ(view.selected, 1);
    EXPECT_EQ(book.CurrentTopicNo, 2);
    EXPECT_EQ(book.StartTopic, "B b");
}

TEST_F(StartUpTest, start_topicNotInTheBook_isReportedByTheLookUpOnce)
{
    MakeBook("/work/Guide.IDA");
    Start("Guide.IDA", "Nowhere");
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Topic [Nowhere] was not found."});
    EXPECT_EQ(OnShow(), "");
    EXPECT_EQ(view.ItemTexts(), (Strings{"1. A", "2. B b"}));
    EXPECT_TRUE(book.IsOpen());
}

TEST_F(StartUpTest, start_missingBook_leavesTheWayOpenForTheFileForm)
{
    Start("/work/None.IDA", "A");
    EXPECT_EQ(
        Boxes(),
        Strings{"critical|Lodestar Advisor|Error opening <</work/None.IDA>> with code 53: File not found"});
    EXPECT_EQ(book.BookPath, "");
    EXPECT_EQ(book.StartTopic, "");
    EXPECT_EQ(global.settings.RecentFileCount, 0);
}

TEST_F(StartUpTest, start_workDirOfTheEnvironment_isTheDefaultFolder)
{
    world.processes.environment["LSADVISOR_WORKDIR"] = "/books";
    MakeBook("/books/Guide.IDA");
    Start("Guide.IDA", "");
    EXPECT_EQ(book.WorkDir, "/books");
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(StartUpTest, start_settingsOfIniDir_areLoaded)
{
    world.files["/ini/LSAdvisor.INI"] =
        test::CrLf({"LSADVISOR V5.3 INI", "[TOP10FILES]", "*1; NAME=/work/Old.IDA"});
    CommandLine commandLine;
    commandLine.iniDir = "/ini";
    StartUp(global, world.Get(), commandLine, commands);
    EXPECT_EQ(global.settings.RecentFileCount, 1);
    EXPECT_EQ(global.settings.RecentFiles[0], "/work/Old.IDA");
}

TEST_F(StartUpTest, start_invalidParameter_warnsFirstAndOpensTheBook)
{
    MakeBook("/work/Guide.IDA");
    Start("Guide.IDA /X=1 /TOPIC=A");
    EXPECT_EQ(Boxes(), Strings{"warning|Lodestar Advisor|Invalid command line parameters are ignored.  "
                               "Command line: <<Guide.IDA /X=1 /TOPIC=A>>"});
    EXPECT_EQ(OnShow(), "[A]|a");
}

TEST_F(StartUpTest, start_settingsFaultEndsTheProgram_opensNothing)
{
    world.files["/work/LSAdvisor.INI"] =
        test::CrLf({"LSADVISOR V5.3 INI", "[TOP10FILES]", "*40000; NAME=/work/Old.IDA"});
    MakeBook("/work/Guide.IDA");
    Start("Guide.IDA", "");
    EXPECT_EQ(Boxes(),
              Strings{"critical|Lodestar Advisor|The input file contains too many records to load."});
    EXPECT_TRUE(world.end.Ended());
    EXPECT_EQ(view.showings, 0);
    EXPECT_EQ(world.files.opened, Strings{"LSAdvisor.INI shared"});
    EXPECT_FALSE(book.File);
}

TEST_F(StartUpTest, recoveredEdits_areShownInPlaceOfTheCommandLinesBook)
{
    MakeBook("/work/Other.IDA");
    CommandLine commandLine;
    commandLine.bookPath = "/work/Other.IDA";
    StartUp(global, world.Get(), commandLine, commands, [this] {
        book.TopicCount = 2;
        book.TopicNames(1) = "[Gone]";
        book.TopicRecs(1) = TopicRec{"g\r\n", {}, true};
        book.TopicNames(2) = "[New]";
        book.TopicRecs(2).Text = "n\r\n";
        book.BookChanged = true;
        return true;
    });
    EXPECT_EQ(OnShow(), "[New]|n");
    EXPECT_EQ(book.BookPath, "");
    EXPECT_TRUE(book.BookChanged);
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(StartUpTest, recoveredWithoutTopics_showsNoTopic)
{
    StartUp(global, world.Get(), CommandLine{}, commands, [this] {
        book.BookAuthor = "Ben";
        book.BookChanged = true;
        return true;
    });
    EXPECT_EQ(view.showings, 0);
    EXPECT_EQ(Boxes(), Strings{});
}

TEST_F(StartUpTest, nothingRecovered_opensTheCommandLinesBook)
{
    MakeBook("/work/Other.IDA");
    CommandLine commandLine;
    commandLine.bookPath = "/work/Other.IDA";
    StartUp(global, world.Get(), commandLine, commands, [] { return false; });
    EXPECT_EQ(OnShow(), "[A]|a");
}

} // namespace
} // namespace ls
