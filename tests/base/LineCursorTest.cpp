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

} // namespace
} // namespace ls
