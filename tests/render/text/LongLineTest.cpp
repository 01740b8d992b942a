// Lines that are wrapped while they are read give the same rows as lines in memory.

#include "base/LineCursor.h"
#include "base/Text.h"
#include "render/text/ShowTopicFixture.h"
#include "render/text/TopicBody.h"
#include "render/text/WrapSegment.h"
#include "support/DrippingFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace ls {
namespace {

using test::DrippingFile;

Strings Wrapped(LineRemainder rest, int width, int indent)
{
    Strings rows;
    do {
        std::string row;
        WrapSegment(rest, width, rows.empty() ? 0 : indent, row);
        rows.push_back(row);
    } while (!rest.Blank());
    return rows;
}

std::string RandomLine(std::mt19937& random, const Strings& pieces)
{
    std::string line;
    for (auto left = random() % 80; left > 0; --left) {
        line += pieces[random() % pieces.size()];
    }
    return line;
}

TEST(LongLine, wrap_whileItIsRead_asInMemory)
{
    const Strings pieces = {"word ", "a", "  ", "<B>", "</B> ",      "<A B>",
                            "&AMP;", "&", "<",  "\t",  "longerword", "          "};
    std::mt19937 random(3);
    for (int round = 0; round < 4000; ++round) {
        const std::string line = RandomLine(random, pieces);
        const int width = 1 + static_cast<int>(random() % 30);
        const int indent = static_cast<int>(random() % static_cast<unsigned>(std::min(width, 11)));
        DrippingFile file(line + "\r\nnext", 1 + random() % 60);
        LineCursor cursor(file);
        std::string_view part;
        bool whole = true;
        ASSERT_TRUE(cursor.BeginLine(part, whole).Ok());
        const std::string_view trimmed = whole ? std::string_view(line) : TrimRight(line);
        ASSERT_EQ(Wrapped(LineRemainder(part, whole ? nullptr : &cursor), width, indent),
                  Wrapped(LineRemainder(trimmed), width, indent))
            << "line <<" << line << ">> width " << width;
        ASSERT_TRUE(cursor.EndLine().Ok());
        std::string next;
        ASSERT_TRUE(cursor.ReadLine(next).Ok());
        ASSERT_EQ(next, "next") << "line <<" << line << ">>";
    }
}

TEST(LongLine, wrap_leftInTheMiddle_endLinePassesTheRest)
{
    DrippingFile file(std::string(1000, 'a') + "\rb", 10);
    LineCursor cursor(file);
    std::string_view part;
    bool whole = true;
    ASSERT_TRUE(cursor.BeginLine(part, whole).Ok());
    ASSERT_FALSE(whole);
    ASSERT_TRUE(cursor.EndLine().Ok());
    ASSERT_TRUE(cursor.BeginLine(part, whole).Ok());
    EXPECT_EQ(part, "b");
    EXPECT_TRUE(whole);
    EXPECT_EQ(cursor.BeginLine(part, whole).number, error::InputPastEnd);
}

TEST(LongLine, wrap_readError_endsTheLineAndIsToldNext)
{
    DrippingFile file("one two three four five six seven", 10);
    file.failsAt = 20;
    LineCursor cursor(file);
    FileBody body(cursor);
    std::string_view line;
    LineCursor* more = nullptr;
    ASSERT_TRUE(body.NextPart(line, more));
    ASSERT_NE(more, nullptr);
    EXPECT_EQ(Wrapped(LineRemainder(line, more), 9, 0), (Strings{"one two", "three", "four f"}));
    EXPECT_FALSE(body.NextPart(line, more));
    EXPECT_EQ(body.Error().number, error::DeviceIo);
}

// A line that begins with blanks is read on until it can be classified.
TEST(LongLine, nextPart_beginningOfBlanks_isReadOnUntilItTells)
{
    DrippingFile file(std::string(100, ' ') + "<IXML>" + std::string(100, ' ') + "\r\n" +
                          std::string(100, ' ') + "<IXML>" + std::string(100, ' ') + "and no logic",
                      10);
    LineCursor cursor(file);
    FileBody body(cursor);
    std::string_view line;
    LineCursor* more = nullptr;
    ASSERT_TRUE(body.NextPart(line, more));
    EXPECT_EQ(more, nullptr);
    EXPECT_EQ(Trim(line), "<IXML>");
    ASSERT_TRUE(body.NextPart(line, more));
    EXPECT_NE(Trim(line), "<IXML>");
    EXPECT_EQ(more, &cursor);
    EXPECT_FALSE(body.NextPart(line, more));
    EXPECT_TRUE(body.Error().Ok());
}

class ShowLongLineTest : public ShowTopicTest
{
};

std::string ManyWords(std::size_t size)
{
    std::string words = "1. ";
    while (words.size() < size) {
        words += "word <B>" + std::to_string(words.size()) + "</B> ";
    }
    return words;
}

TEST_F(ShowLongLineTest, show_lineOfManyBlocks_asInMemory)
{
    const std::string words = ManyWords(900000);
    const Strings expected = Wrapped(LineRemainder(TrimRight(words)), 60, 3);
    Strings lines = ShowBody(words + "\r\nlast\r\n[B]\r\n", 60);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "last");
    lines.pop_back();
    EXPECT_EQ(lines, expected);
}

TEST_F(ShowLongLineTest, show_longReferenceAndLogic_areFoundBehindALongLine)
{
    const std::string words = ManyWords(900000);
    ShowBody(words + "\r\n<XREF TOPIC=B>" + words + "\r\n" + std::string(400000, ' ') +
                 "<ixml>\r\n<LOGIC>\r\n",
             60);
    EXPECT_TRUE(shown.xrefButton);
    EXPECT_TRUE(shown.advisorButton);
    EXPECT_EQ(shown.logicPos, PosBehind("<ixml>\r\n"));
}

TEST_F(ShowLongLineTest, show_longLineThatBeginsATopic_endsTheBody)
{
    EXPECT_EQ(ShowBody("text\r\n[" + ManyWords(400000) + "\r\nmore\r\n", 60), (Strings{"text"}));
}

} // namespace
} // namespace ls
