#include "base/LineCursor.h"

#include "support/MemoryFileSystem.h"

#include <gtest/gtest.h>

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

// The lines as views, read to the end of the file.
TEST_F(LineCursorTest, readLineView_anyPlaceOfALineEnd_readsTheSameLines)
{
    // Line ends of both kinds before, at and behind the place where the first block ends.
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

} // namespace
} // namespace ls
