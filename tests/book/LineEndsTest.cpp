#include "book/LineEnds.h"

#include "book/BookFixture.h"
#include "support/RowName.h"

namespace ls {
namespace {

constexpr std::size_t Head = 64 * 1024;
const std::string Question =
    "question|Lodestar Advisor|<</work/Book.IDA>> has Unix line ends.  Do you want to "
    "open a converted copy?|YesNo";
constexpr const char* Copy = "/work/Book (001).IDA";
constexpr const char* Part = "/work/Book (001).IDA.part";

struct LineEndsTest : BookFixture
{
    void Put(const std::string& bytes)
    {
        world.files["/work/Book.IDA"] = bytes;
        book.BookPath = "/work/Book.IDA";
    }

    std::string Offer() { return OfferConvertedCopy(book, world.Get()); }
};

struct DetectCase
{
    const char* name;
    std::string bytes;
    bool isUnix;
};

struct LineEndsDetectTest : LineEndsTest, testing::WithParamInterface<DetectCase>
{
};

TEST_P(LineEndsDetectTest, hasUnixLineEnds_looksAtTheFirst64KiB)
{
    Put(GetParam().bytes);
    std::unique_ptr<BookFile> file;
    ASSERT_TRUE(world.files.OpenForReading("/work/Book.IDA", Sharing::Shared, file).Ok());
    EXPECT_EQ(HasUnixLineEnds(*file), GetParam().isUnix);
}

const DetectCase DetectCases[] = {
    {"empty", "", false},
    {"noLineEnd", "a", false},
    {"lf", "a\nb", true},
    {"crLf", "a\r\nb", false},
    {"cr", "a\rb", false},
    {"mixed", "a\nb\r\nc", false},
    {"lfAtTheLastByte", std::string(Head - 1, 'a') + "\n", true},
    {"lfBehindThem", std::string(Head, 'a') + "\n", false},
    {"crAtTheLastByte", "\n" + std::string(Head - 2, 'a') + "\r", false},
    {"crBehindThem", "\n" + std::string(Head - 1, 'a') + "\r", true},
};

INSTANTIATE_TEST_SUITE_P(Files, LineEndsDetectTest, testing::ValuesIn(DetectCases), test::RowName());

TEST_F(LineEndsTest, offer_crLfFile_asksNothing)
{
    Put("LODESTAR BOOK V5.3\r\n");
    EXPECT_EQ(Offer(), "/work/Book.IDA");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(LineEndsTest, offer_missingFile_isLeftToOpening)
{
    book.BookPath = "/work/None.IDA";
    EXPECT_EQ(Offer(), "/work/None.IDA");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(LineEndsTest, offer_unreadableFile_isLeftToOpening)
{
    Put("a\nb");
    world.files.fail = [](const std::string& operation) {
        return operation.starts_with("read") ? error::DeviceIo : 0;
    };
    EXPECT_EQ(Offer(), "/work/Book.IDA");
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST_F(LineEndsTest, offer_declined_opensTheFileItself)
{
    Put("a\nb");
    world.messages.replies = {Reply::No};
    EXPECT_EQ(Offer(), "/work/Book.IDA");
    EXPECT_EQ(world.messages.Take(), Strings{Question});
    EXPECT_FALSE(world.files.Has(Copy));
}

TEST_F(LineEndsTest, offer_accepted_writesTheCopyAndKeepsTheFile)
{
    Put("LODESTAR BOOK V5.3\n[A]\n\nText \xE4\n");
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), Copy);
    EXPECT_EQ(world.messages.Take(), Strings{Question});
    EXPECT_EQ(world.files[Copy], "LODESTAR BOOK V5.3\r\n[A]\r\n\r\nText \xE4\r\n");
    EXPECT_EQ(world.files["/work/Book.IDA"], "LODESTAR BOOK V5.3\n[A]\n\nText \xE4\n");
    EXPECT_FALSE(world.files.Has(Part));
    book.BookPath = Copy;
    ASSERT_TRUE(OpenBook(book, world.Get()) && ScanBook(book, world.Get()));
    EXPECT_EQ(Names(), Strings{"[A]"});
}

TEST_F(LineEndsTest, copy_laterCrLfAndCr_areKept)
{
    const std::string head = "\n" + std::string(Head, 'a');
    Put(head + "\r\n\n\r\r\n" + std::string("\0\xFF", 2));
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), Copy);
    EXPECT_EQ(world.files[Copy], "\r" + head + "\r\n\r\n\r\r\n" + std::string("\0\xFF", 2));
    world.messages.Take();
}

TEST_F(LineEndsTest, copy_crLfOverABlockBorder_staysOneLineEnd)
{
    const std::string twoBlocks = "\n" + std::string(2 * Head - 2, 'a') + "\r";
    Put(twoBlocks + "\nb\n");
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), Copy);
    EXPECT_EQ(world.files[Copy], "\r" + twoBlocks + "\nb\r\n");
}

TEST_F(LineEndsTest, copy_lfFirstInABlock_getsItsCr)
{
    Put("\n" + std::string(Head - 1, 'a') + "\nb");
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), Copy);
    EXPECT_EQ(world.files[Copy], "\r\n" + std::string(Head - 1, 'a') + "\r\nb");
}

TEST_F(LineEndsTest, copy_takenNames_arePassedOver)
{
    Put("a\n");
    world.files[Copy] = "taken";
    world.files["/work/Book (002).IDA.part"] = "somebody writes it";
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), "/work/Book (003).IDA");
    EXPECT_EQ(world.files[Copy], "taken");
    EXPECT_EQ(world.files["/work/Book (002).IDA.part"], "somebody writes it");
}

TEST_F(LineEndsTest, copy_fileInWorkDir_liesBesideIt)
{
    Put("a\n");
    book.BookPath = "book.ida"; // the case differs from the name on the disk
    book.WorkDir = "/work";
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), Copy);
    EXPECT_EQ(
        world.messages.Take(),
        Strings{"question|Lodestar Advisor|<</work/book.ida>> has Unix line ends.  Do you want to open a "
                "converted copy?|YesNo"});
}

TEST_F(LineEndsTest, copy_fileOfTheProgramFolder_liesBesideIt)
{
    world.files["/program/Help.IDA"] = "a\n";
    book.BookPath = "LS:Help.IDA";
    world.messages.replies = {Reply::Yes};
    EXPECT_EQ(Offer(), "/program/Help (001).IDA");
}

TEST_F(LineEndsTest, offer_programEnded_asksNothing)
{
    Put("a\n");
    EndProgram(world.end, "test");
    EXPECT_EQ(Offer(), "/work/Book.IDA");
    EXPECT_FALSE(world.files.Has(Copy));
}

} // namespace
} // namespace ls
