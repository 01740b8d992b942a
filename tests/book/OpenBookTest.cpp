#include "base/LineCursor.h"
#include "book/BookFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

constexpr const char* Header = "LODESTAR BOOK V5.3\r\n";
constexpr const char* NotABook = "question|Lodestar Advisor|The file you opened is not a Lodestar Book or "
                                 "Advice file. Do you want to view it as a "
                                 "single topic text file?|OKCancel";

struct OpenBookTest : BookFixture
{
    bool OpenPath(const std::string& path)
    {
        book.BookPath = path;
        return OpenBook(book, world.Get());
    }
};

TEST_F(OpenBookTest, open_book_readsHeaderAndStandsBehindIt)
{
    EXPECT_TRUE(Open("LODESTAR BOOK V5.3 /AUTHOR=\"A\"\r\n[T]\r\n"));
    EXPECT_EQ(book.BookAuthor, "A");
    EXPECT_EQ(book.BookStartPos, 33);
    EXPECT_EQ(book.OpenPath, "/work/Book.IDA");
    EXPECT_TRUE(world.messages.boxes.empty());
}

TEST_F(OpenBookTest, cursorOf_openBook_beginsAtTheFilesStart)
{
    ASSERT_TRUE(Open(Header));
    LineCursor cursor = CursorOf(book);
    std::string line;
    EXPECT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "LODESTAR BOOK V5.3");
}

TEST_F(OpenBookTest, cursorOf_bookWithoutFile_readsNothing)
{
    LineCursor cursor = CursorOf(book);
    EXPECT_TRUE(cursor.AtEnd());
    std::string line;
    EXPECT_EQ(cursor.ReadLine(line).number, error::InputPastEnd);
}

TEST_F(OpenBookTest, open_lsPrefix_namesTheProgramsFolder)
{
    world.files["/program/Help.IDA"] = Header;
    EXPECT_TRUE(OpenPath("LS:Help.IDA"));
    EXPECT_EQ(book.OpenPath, "/program/Help.IDA");
    EXPECT_EQ(book.BookPath, "LS:Help.IDA") << "the path stays as it was given";
}

TEST_F(OpenBookTest, open_lsPrefixAndFolderWithSeparator_addsNone)
{
    world.processes.programFolder = "/program/";
    world.files["/program/Help.IDA"] = Header;
    EXPECT_TRUE(OpenPath("LS:Help.IDA"));
    EXPECT_EQ(book.OpenPath, "/program/Help.IDA");
}

TEST_F(OpenBookTest, open_lsInLowerCase_isNotRecognised)
{
    world.files["/program/Help.IDA"] = Header;
    EXPECT_FALSE(OpenPath("ls:Help.IDA"));
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{"critical|Lodestar Advisor|Error opening <<ls:Help.IDA>> with code 53: File not found"}));
}

TEST_F(OpenBookTest, open_plainNameWithWorkDir_isTakenThere)
{
    world.files["/books/Guide.IDA"] = Header;
    book.WorkDir = "/books";
    EXPECT_TRUE(OpenPath("Guide.IDA"));
    EXPECT_EQ(book.OpenPath, "/books/Guide.IDA");
    CloseBook(book);
    book.WorkDir = "/books/";
    EXPECT_TRUE(OpenPath("Guide.IDA"));
    EXPECT_EQ(book.OpenPath, "/books/Guide.IDA");
}

TEST_F(OpenBookTest, open_pathWithSeparator_ignoresWorkDir)
{
    world.files["/work/sub/Guide.IDA"] = Header;
    book.WorkDir = "/books";
    EXPECT_TRUE(OpenPath("sub/Guide.IDA"));
    EXPECT_EQ(book.OpenPath, "sub/Guide.IDA");
}

TEST_F(OpenBookTest, open_windowsRules_lookForBackslashes)
{
    world.paths = WindowsPaths;
    book.WorkDir = "C:\\Books";
    EXPECT_FALSE(OpenPath("Guide.IDA"));
    EXPECT_FALSE(OpenPath("D:\\x\\Guide.IDA"));
    world.processes.programFolder = "C:\\Program";
    EXPECT_FALSE(OpenPath("LS:Help.ida"));
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{
            "critical|Lodestar Advisor|Error opening <<C:\\Books\\Guide.IDA>> with code 53: File not found",
            "critical|Lodestar Advisor|Error opening <<D:\\x\\Guide.IDA>> with code 53: File not found",
            "critical|Lodestar Advisor|Error opening <<C:\\Program\\Help.ida>> with code 53: File not "
            "found"}));
}

TEST_F(OpenBookTest, open_missingFileFolderOrFolderItself_namesTheError)
{
    world.files.AddFolder("/work/sub");
    EXPECT_FALSE(OpenPath("/work/No.IDA"));
    EXPECT_FALSE(OpenPath("/none/No.IDA"));
    EXPECT_FALSE(OpenPath("/work/sub"));
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{
            "critical|Lodestar Advisor|Error opening <</work/No.IDA>> with code 53: File not found",
            "critical|Lodestar Advisor|Error opening <</none/No.IDA>> with code 76: Path not found",
            "critical|Lodestar Advisor|Error opening <</work/sub>> with code 75: Path/File access error"}));
    EXPECT_EQ(book.File, nullptr);
}

TEST_F(OpenBookTest, open_lockBook_asksForALock)
{
    EXPECT_TRUE(Open(Header));
    CloseBook(book);
    book.LockBook = true;
    EXPECT_TRUE(Open(Header));
    EXPECT_EQ(world.files.opened, (Strings{"/work/Book.IDA shared", "/work/Book.IDA locked"}));
}

TEST_F(OpenBookTest, open_otherCase_findsTheFile)
{
    world.files["/work/Sub/Guide.IDA"] = Header;
    EXPECT_TRUE(OpenPath("/work/sub/GUIDE.ida"));
    EXPECT_EQ(book.OpenPath, "/work/Sub/Guide.IDA");
    EXPECT_EQ(book.BookPath, "/work/sub/GUIDE.ida");
}

struct PlainCase
{
    const char* name;
    std::string bytes;
};

struct OpenPlainText : OpenBookTest, testing::WithParamInterface<PlainCase>
{
};

TEST_P(OpenPlainText, open_noBook_cancelCloses)
{
    world.messages.replies = {Reply::Cancel};
    EXPECT_FALSE(Open(GetParam().bytes));
    EXPECT_EQ(world.messages.Take(), (Strings{NotABook}));
    EXPECT_EQ(book.File, nullptr);
    EXPECT_EQ(book.OpenPath, "");
}

TEST_P(OpenPlainText, open_noBook_okShowsItAsText)
{
    world.messages.replies = {Reply::Ok};
    EXPECT_TRUE(Open(GetParam().bytes));
    EXPECT_EQ(book.BookVersion, 0.0F);
    EXPECT_TRUE(book.IsPlainText());
    EXPECT_NE(book.File, nullptr);
    world.messages.Take();
}

const PlainCase PlainCases[] = {
    {"text", "Some text\r\nmore\r\n"},
    {"emptyFile", ""},
    {"oneByte", "x"},
    {"oneCr", "\r"},
    {"nulBytes", std::string(3, '\0')},
    {"versionBelow4", "LODESTAR BOOK V3.9\r\n"},
    {"lowerCaseV", "lodestar book v5.3\r\n"},
    {"noVersion", "LODESTAR BOOK\r\n"},
};

INSTANTIATE_TEST_SUITE_P(Files, OpenPlainText, testing::ValuesIn(PlainCases), test::RowName());

TEST_F(OpenBookTest, open_badHeader_warnsAndKeepsWhatWasRead)
{
    EXPECT_TRUE(Open("LODESTAR BOOK V5.3 /URL=\"u\" /TITLE=\"\xE9\"\r\n"));
    EXPECT_EQ(
        world.messages.Take(),
        (Strings{"warning|Lodestar Advisor|Invalid Lodestar Book header: <<LODESTAR BOOK V5.3 /URL=\"u\" "
                 "/TITLE=\"\xC3\xA9\">>.  Some information may not be loaded."}));
    EXPECT_EQ(book.BookUrl, "u");
}

TEST_F(OpenBookTest, open_startPosInsideTheFile_isKept)
{
    book.BookStartPos = 5;
    EXPECT_TRUE(Open(Header));
    EXPECT_EQ(book.BookStartPos, 5);
}

TEST_F(OpenBookTest, open_startPosBehindTheEnd_isSetBehindTheHeader)
{
    book.BookStartPos = 500;
    EXPECT_TRUE(Open(Header));
    EXPECT_EQ(book.BookStartPos, 21);
}

TEST_F(OpenBookTest, open_onlyAHeader_has0Topics)
{
    EXPECT_TRUE(Scan(Header));
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_TRUE(Scan("LODESTAR BOOK V5.3"));
    EXPECT_EQ(book.TopicCount, 0);
}

TEST_F(OpenBookTest, open_clearsTheCounts)
{
    book.TopicCount = 3;
    book.XrefCount = 4;
    EXPECT_TRUE(Open(Header));
    EXPECT_EQ(book.TopicCount, 0);
    EXPECT_EQ(book.XrefCount, 0);
}

} // namespace
} // namespace ls
