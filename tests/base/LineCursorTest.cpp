#include "base/LineCursor.h"

#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

#include <random>

namespace ls {
namespace {

using test::MemoryFileSystem;

struct LineCursorTest : testing::Test
{
    MemoryFileSystem files;
    std::unique_ptr<BookFile> file;

    void Open(const std::string& bytes)
    {
        files["/f"] = bytes;
        ASSERT_TRUE(files.OpenForReading("/f", Sharing::Shared, file).Ok());
    }

    std::vector<std::string> Lines()
    {
        LineCursor cursor(*file);
        std::vector<std::string> lines;
        std::string line;
        while (!cursor.AtEnd() && cursor.ReadLine(line).Ok()) {
            lines.push_back(line);
        }
        return lines;
    }
};

using Strings = std::vector<std::string>;

TEST_F(LineCursorTest, readLine_crAndCrLf_bothEndALine)
{
    Open("a\rb\r\nc");
    EXPECT_EQ(Lines(), (Strings{"a", "b", "c"}));
}

TEST_F(LineCursorTest, readLine_loneLf_isAnOrdinaryCharacter)
{
    Open("a\nb\r\nc\n\r\n");
    EXPECT_EQ(Lines(), (Strings{"a\nb", "c\n"}));
}

// Reads all lines as views, to the end of the file.
TEST_F(LineCursorTest, readLineView_anyPlaceOfALineEnd_readsTheSameLines)
{
    // Line ends of both kinds before, at and after the end of the first block.
    constexpr std::size_t FirstBlock = 16 * 1024;
    for (const char* lineEnd : {"\r\n", "\r"}) {
        for (std::size_t length = FirstBlock - 4; length < FirstBlock + 4; ++length) {
            Open(std::string(length, 'x') + lineEnd + "second" + lineEnd + lineEnd + "last");
            LineCursor cursor(*file);
            std::vector<std::string> lines;
            std::string_view line;
            while (!cursor.AtEnd() && cursor.ReadLine(line).Ok()) {
                lines.emplace_back(line);
            }
            EXPECT_EQ(lines, (Strings{std::string(length, 'x'), "second", "", "last"})) << length;
            EXPECT_EQ(lines, Lines()) << length;
        }
    }
}

TEST_F(LineCursorTest, appendLine_keepsWhatTheTextHas)
{
    Open("a\rb");
    LineCursor cursor(*file);
    std::string text = "before ";
    ASSERT_TRUE(cursor.AppendLine(text).Ok());
    EXPECT_EQ(text, "before a");
    ASSERT_TRUE(cursor.AppendLine(text).Ok());
    EXPECT_EQ(text, "before ab");
    EXPECT_EQ(cursor.AppendLine(text).number, error::InputPastEnd);
}

TEST_F(LineCursorTest, readLine_veryLong_isWholeAndTakesNoMoreRoomThanItNeeds)
{
    // At these lengths, growth by doubling would leave room for millions of characters more.
    for (const std::size_t length : {3'000'000U, 20'000'000U}) {
        SCOPED_TRACE(length);
        std::string bytes(length + 6, 'x');
        bytes.replace(length, 6, "\r\nlast");
        Open(bytes);
        LineCursor cursor(*file);
        std::string line;
        ASSERT_TRUE(cursor.ReadLine(line).Ok());
        EXPECT_EQ(line.size(), length);
        EXPECT_EQ(line.find_first_not_of('x'), std::string::npos);
        EXPECT_LT(line.capacity(), length + 1'000'000);
        ASSERT_TRUE(cursor.ReadLine(line).Ok());
        EXPECT_EQ(line, "last");
    }
}

TEST_F(LineCursorTest, readPiece_anyPlaceOfALineEnd_piecesAreTheLines)
{
    constexpr std::size_t FirstBlock = 16 * 1024;
    for (const char* lineEnd : {"\r\n", "\r"}) {
        for (std::size_t length = FirstBlock - 4; length < FirstBlock + 4; ++length) {
            Open(std::string(length, 'x') + lineEnd + "second" + lineEnd + lineEnd +
                 std::string(3 * FirstBlock, 'l'));
            LineCursor cursor(*file);
            std::vector<std::string> lines;
            while (!cursor.AtEnd()) {
                std::string_view piece;
                bool more = false;
                lines.emplace_back();
                do {
                    ASSERT_TRUE(cursor.ReadPiece(piece, more).Ok());
                    lines.back() += piece;
                } while (more);
            }
            EXPECT_EQ(lines, Lines()) << length;
        }
    }
}

TEST_F(LineCursorTest, readPiece_atTheEnd_isError62)
{
    Open("");
    LineCursor cursor(*file);
    std::string_view piece;
    bool more = false;
    EXPECT_EQ(cursor.ReadPiece(piece, more).number, error::InputPastEnd);
    EXPECT_FALSE(more);
}

TEST_F(LineCursorTest, readPiece_errorWithinALine_isGivenAndEndsIt)
{
    Open(std::string(20000, 'x'));
    LineCursor cursor(*file);
    std::string_view piece;
    bool more = false;
    ASSERT_TRUE(cursor.ReadPiece(piece, more).Ok());
    ASSERT_TRUE(more);
    files.fail = [](const std::string&) { return error::DeviceIo; };
    EXPECT_EQ(cursor.ReadPiece(piece, more).number, error::DeviceIo);
    EXPECT_FALSE(more);
}

TEST_F(LineCursorTest, readLineView_atTheEnd_isError62)
{
    Open("a\r\n");
    LineCursor cursor(*file);
    std::string_view line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "a");
    EXPECT_EQ(cursor.Position(), 4);
    EXPECT_EQ(cursor.ReadLine(line).number, error::InputPastEnd);
}

constexpr std::size_t Block = 16 * 1024; ///< size of a cursor's first read

// Line ends at every offset around the end of the first block, such as a CR as its last byte, or a CR LF
// across the border.
TEST_F(LineCursorTest, readLine_lineEndsAroundABlockBorder_readTheSame)
{
    for (const char* lineEnd : {"\r\n", "\r"}) {
        for (std::size_t length = Block - 3; length <= Block + 1; ++length) {
            const std::string bytes = std::string(length, 'x') + lineEnd + "next" + lineEnd;
            Open(bytes);
            LineCursor cursor(*file);
            std::string line;
            ASSERT_TRUE(cursor.ReadLine(line).Ok());
            EXPECT_EQ(line, std::string(length, 'x'));
            EXPECT_EQ(cursor.Position(), static_cast<FilePos>(bytes.find("next") + 1)) << length;
            ASSERT_TRUE(cursor.ReadLine(line).Ok());
            EXPECT_EQ(line, "next") << length;
            EXPECT_TRUE(cursor.AtEnd());
        }
    }
}

TEST_F(LineCursorTest, readLine_crLastInTheBlockAndLfAlone_areTwoThings)
{
    // "CR x LF": the later LF belongs to its line.
    Open(std::string(Block - 1, 'x') + "\ry\nz\r");
    EXPECT_EQ(Lines(), (Strings{std::string(Block - 1, 'x'), "y\nz"}));
}

TEST_F(LineCursorTest, readLine_severalBlocks_areOneLine)
{
    const std::string longLine(40 * Block + 7, 'y');
    Open("a\r\n" + longLine + "\r\nb");
    EXPECT_EQ(Lines(), (Strings{"a", longLine, "b"}));
}

TEST_F(LineCursorTest, readLine_loneCrAtTheEnd_endsTheLastLine)
{
    Open("a\rb\r");
    EXPECT_EQ(Lines(), (Strings{"a", "b"}));
}

TEST_F(LineCursorTest, readLine_emptyLines_areRead)
{
    Open("\r\r\n\r");
    EXPECT_EQ(Lines(), (Strings{"", "", ""}));
}

TEST_F(LineCursorTest, readLine_nulAndHighBytes_passThrough)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r') {
            bytes += static_cast<char>(byte);
        }
    }
    Open(bytes + "\r\n" + std::string(2, '\0'));
    EXPECT_EQ(Lines(), (Strings{bytes, std::string(2, '\0')}));
}

TEST_F(LineCursorTest, readLine_emptyFile_isError62)
{
    Open("");
    LineCursor cursor(*file);
    std::string line = "old";
    EXPECT_TRUE(cursor.AtEnd());
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::InputPastEnd));
    EXPECT_EQ(line, "");
}

TEST_F(LineCursorTest, position_afterEachLine_isTheNextLinesFirstByte)
{
    Open("ab\rc\r\n\r\nde\nf\r\ng");
    LineCursor cursor(*file);
    std::vector<FilePos> positions{cursor.Position()};
    std::string line;
    while (!cursor.AtEnd() && cursor.ReadLine(line).Ok()) {
        positions.push_back(cursor.Position());
    }
    EXPECT_EQ(positions, (std::vector<FilePos>{1, 4, 7, 9, 15, 16}));
}

TEST_F(LineCursorTest, seek_toAnyByte_readsFromThere)
{
    Open("abc\r\ndef");
    LineCursor cursor(*file);
    std::string line;
    for (const auto& [pos, expected] : std::vector<std::pair<FilePos, std::string>>{
             {6, "def"}, {2, "bc"}, {5, "\ndef"}, {0, "abc"}, {-7, "abc"}}) {
        cursor.Seek(pos);
        ASSERT_TRUE(cursor.ReadLine(line).Ok());
        EXPECT_EQ(line, expected) << pos;
    }
}

TEST_F(LineCursorTest, seek_behindTheEnd_readingIsError62)
{
    Open("abc");
    LineCursor cursor(*file);
    std::string line;
    for (const FilePos pos : {4, 5, 4000000}) {
        cursor.Seek(pos);
        EXPECT_EQ(cursor.Position(), pos);
        EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::InputPastEnd)) << pos;
        EXPECT_TRUE(cursor.AtEnd());
    }
}

TEST_F(LineCursorTest, seek_changedFile_readsWhatItHoldsNow)
{
    Open("old line\r\nsecond\r\n");
    LineCursor cursor(*file);
    std::string line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    files["/f"] = "new line, and longer\r\nmore";
    cursor.Seek(1);
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "new line, and longer");
    files["/f"] = "cut";
    cursor.Seek(11);
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::InputPastEnd));
}

TEST_F(LineCursorTest, atEnd_fileThatGrows_isReadOn)
{
    Open("a\r\n");
    LineCursor cursor(*file);
    std::string line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_TRUE(cursor.AtEnd());
    files["/f"] += "b\r\n";
    EXPECT_FALSE(cursor.AtEnd());
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "b");
}

TEST_F(LineCursorTest, readLine_failingRead_isReportedAndIsNotTheEnd)
{
    Open("a\r\n");
    LineCursor cursor(*file);
    files.fail = [](const std::string& operation) {
        return operation.starts_with("read") ? error::DeviceIo : 0;
    };
    std::string line;
    EXPECT_FALSE(cursor.AtEnd());
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::DeviceIo));
    std::string_view view;
    EXPECT_EQ(cursor.ReadLine(view), MakeFileError(error::DeviceIo));
    EXPECT_EQ(cursor.SkipToLineBeginning('[', '<'), MakeFileError(error::DeviceIo));
    files.fail = nullptr;
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::DeviceIo))
        << "the missed bytes must not be skipped";
    cursor.Seek(1);
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "a");
}

TEST_F(LineCursorTest, atEnd_readThatFailedOnce_isReportedByTheNextLine)
{
    Open("a\r\n");
    LineCursor cursor(*file);
    int reads = 0;
    files.fail = [&reads](const std::string& operation) {
        return operation.starts_with("read") && ++reads == 1 ? error::DeviceIo : 0;
    };
    std::string line;
    EXPECT_FALSE(cursor.AtEnd());
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::DeviceIo));
}

TEST_F(LineCursorTest, readLine_failureInTheMiddleOfALine_isReported)
{
    Open(std::string(Block, 'x') + "y\r\n");
    files.fail = [](const std::string& operation) { return operation == "read /f 1" ? 0 : error::DeviceIo; };
    LineCursor cursor(*file);
    std::string line;
    EXPECT_EQ(cursor.ReadLine(line), MakeFileError(error::DeviceIo));
    cursor.Seek(1);
    EXPECT_EQ(cursor.SkipToLineBeginning('[', '<'), MakeFileError(error::DeviceIo));
}

TEST_F(LineCursorTest, skipToLineBeginning_passesOverLinesAndEndsAtTheMark)
{
    Open("a[\r\n [b\r<x\r\n[y");
    LineCursor cursor(*file);
    ASSERT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
    EXPECT_EQ(cursor.Position(), 9);
    ASSERT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
    EXPECT_EQ(cursor.Position(), 9); // already at such a line
    std::string line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "<x");
    ASSERT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
    EXPECT_EQ(cursor.Position(), 13);
}

TEST_F(LineCursorTest, skipToLineBeginning_loneLfBeforeAMark_isNoLineEnd)
{
    Open("a\n[b\r\n[c");
    LineCursor cursor(*file);
    ASSERT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
    EXPECT_EQ(cursor.Position(), 7);
}

TEST_F(LineCursorTest, skipToLineBeginning_aroundABlockBorder_findsTheMark)
{
    for (const char* lineEnd : {"\r\n", "\r"}) {
        for (std::size_t length = Block - 4; length <= Block + 2; ++length) {
            const std::string before = std::string(length, 'x') + lineEnd;
            Open(before + "[Topic]\r\n");
            LineCursor cursor(*file);
            ASSERT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
            EXPECT_EQ(cursor.Position(), static_cast<FilePos>(before.size() + 1)) << length;
        }
    }
}

TEST_F(LineCursorTest, skipToLineBeginning_noMark_endsAtTheEnd)
{
    for (const char* bytes : {"", "a", "a\r", "a\r\nb\r\n", "\r\n\r\n"}) {
        Open(bytes);
        LineCursor cursor(*file);
        EXPECT_TRUE(cursor.SkipToLineBeginning('[', '<').Ok());
        EXPECT_TRUE(cursor.AtEnd());
    }
}

// A file of five billion bytes with two lines at positions that 32 bits cannot hold.
class HugeFile : public BookFile
{
public:
    static constexpr FilePos Start = 5'000'000'000;

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        const std::string_view lines = "[Far]\r\ntext";
        got = 0;
        while (got < size && pos + static_cast<FilePos>(got) - Start < static_cast<FilePos>(lines.size())) {
            const FilePos at = pos + static_cast<FilePos>(got) - Start;
            buffer[got++] = at < 0 ? 'x' : lines[static_cast<std::size_t>(at)];
        }
        return {};
    }

    FileError Size(FilePos& size) override
    {
        size = Start + 10;
        return {};
    }
};

TEST(LineCursor, position_past2GiB_isExact)
{
    HugeFile huge;
    LineCursor cursor(huge);
    cursor.Seek(HugeFile::Start);
    std::string line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "[Far]");
    EXPECT_EQ(cursor.Position(), 5'000'000'007);
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "text");
    EXPECT_EQ(cursor.Position(), 5'000'000'011);
    EXPECT_TRUE(cursor.AtEnd());
}

TEST_F(LineCursorTest, readCrLfLines_severalLines_givesThemAsTheyStand)
{
    Open("a\r\n\r\nb\nc\r\nrest");
    LineCursor cursor(*file);
    EXPECT_EQ(cursor.ReadCrLfLines(100), "a\r\n\r\nb\nc\r\n");
    EXPECT_EQ(cursor.Position(), 11);
    EXPECT_EQ(cursor.ReadCrLfLines(100), "") << "a line without its end";
    EXPECT_EQ(cursor.Position(), 11);
}

TEST_F(LineCursorTest, readCrLfLines_end_isNotPassed)
{
    Open("a\r\nb\r\nc\r\n");
    LineCursor cursor(*file);
    EXPECT_EQ(cursor.ReadCrLfLines(7), "a\r\nb\r\n");
    EXPECT_EQ(cursor.ReadCrLfLines(7), "");
    EXPECT_EQ(cursor.ReadCrLfLines(9), "") << "the line ends after it";
    EXPECT_EQ(cursor.Position(), 7);
}

TEST_F(LineCursorTest, readCrLfLines_crAlone_isLeftToReadLine)
{
    Open("a\rb\r\nc\r\n");
    LineCursor cursor(*file);
    EXPECT_EQ(cursor.ReadCrLfLines(100), "");
    std::string line;
    ASSERT_TRUE(cursor.ReadLine(line).Ok());
    EXPECT_EQ(line, "a");
    EXPECT_EQ(cursor.ReadCrLfLines(100), "b\r\nc\r\n");
}

TEST_F(LineCursorTest, readCrLfLines_readError_isLeftToReadLine)
{
    Open("a\r\n");
    LineCursor cursor(*file);
    files.fail = [](const std::string&) { return error::DeviceIo; };
    EXPECT_EQ(cursor.ReadCrLfLines(100), "");
    std::string line;
    EXPECT_EQ(cursor.ReadLine(line).number, error::DeviceIo);
}

// Both ways of reading give the same lines, for random line ends and blocks.
TEST_F(LineCursorTest, readCrLfLines_anyBytes_givesTheLinesOfReadLine)
{
    std::minstd_rand random(7);
    for (int round = 0; round < 60; ++round) {
        const int bareIn = round % 3 == 0 ? 3 : 4000; // one of this many CRs has no LF
        std::string bytes;
        while (bytes.size() < 60000) {
            bytes.append(random() % 200, 'x').append(random() % 9 == 0 ? "\n" : "").append("\r");
            bytes += random() % static_cast<unsigned>(bareIn) == 0 ? "" : "\n";
        }
        Open(bytes);
        std::string expected;
        for (const std::string& line : Lines()) {
            expected += line + "\r\n";
        }
        LineCursor cursor(*file);
        std::string got;
        std::string line;
        while (!cursor.AtEnd()) {
            const std::string_view lines = cursor.ReadCrLfLines(static_cast<FilePos>(bytes.size()) + 1);
            if (lines.empty()) {
                ASSERT_TRUE(cursor.ReadLine(line).Ok());
                got += line + "\r\n";
            }
            got += lines;
        }
        ASSERT_TRUE(got == expected) << round;
    }
}

} // namespace
} // namespace ls
