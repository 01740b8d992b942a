#include "render/text/TopicText.h"

#include "render/text/DisplayLines.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

DisplayLines MakeLines(const std::vector<std::string>& texts)
{
    DisplayLines lines;
    for (const std::string& text : texts) {
        *lines.AddLine() = text;
    }
    return lines;
}

TopicText MakeTopic(const std::vector<std::string>& texts, float version = 5.0F)
{
    return {MakeLines(texts), version};
}

TEST(TopicText, text_markup_isRemovedAndResolved)
{
    EXPECT_EQ(MakeTopic({"<H1>Title</H1>", "", "a &LT;B&GT; &x; & <", "end"}).Text(),
              "Title\n\na <B> ? & <\nend");
}

TEST(TopicText, text_versionBelow5_isTheLines)
{
    EXPECT_EQ(MakeTopic({"<B>a", "&AMP;"}, 4.5F).Text(), "<B>a\n&AMP;");
}

TEST(TopicText, text_noLines_isOneEmptyRow)
{
    const TopicText topic = MakeTopic({});
    EXPECT_EQ(topic.Text(), "");
    EXPECT_EQ(topic.LineCount(), 0);
    EXPECT_EQ(topic.LineAt(0), 0);
    EXPECT_EQ(topic.RowCount(), 1);
    EXPECT_EQ(topic.Row(1), (TextRange{0, 0}));
    EXPECT_EQ(topic.StyleAt(0), (StyledPart{{0, 0}, {}}));
}

TEST(TopicText, text_lineThatLeavesItsRowOpen_sharesItWithTheNext)
{
    const TopicText topic = MakeTopic({"a", "<B>", "end</B></I>", "more"});
    EXPECT_EQ(topic.Text(), "a\nendmore");
    EXPECT_EQ(topic.RowCount(), 2);
    EXPECT_EQ(topic.LineCount(), 4);
    EXPECT_EQ(topic.LineStart(2), 2U);
    EXPECT_EQ(topic.LineStart(3), 2U);
    EXPECT_EQ(topic.LineStart(4), 5U);
    EXPECT_EQ(topic.LineAt(2), 3) << "the line that has text";
    EXPECT_EQ(topic.LineAt(5), 4);
}

TEST(TopicText, lineStart_numbersOutside_areHeldInside)
{
    const TopicText topic = MakeTopic({"ab", "cd"});
    EXPECT_EQ(topic.LineStart(0), 0U);
    EXPECT_EQ(topic.LineStart(1), 0U);
    EXPECT_EQ(topic.LineStart(2), 3U);
    EXPECT_EQ(topic.LineStart(3), 5U);
}

TEST(TopicText, lineAt_rowEnd_belongsToTheRowBefore)
{
    const TopicText topic = MakeTopic({"ab", "", "cd"});
    std::vector<int> lines;
    for (std::size_t offset = 0; offset <= topic.Length(); ++offset) {
        lines.push_back(topic.LineAt(offset));
    }
    EXPECT_EQ(lines, (std::vector<int>{1, 1, 1, 2, 3, 3, 3}));
}

TEST(TopicText, row_isWithoutItsEnd)
{
    const TopicText topic = MakeTopic({"ab", "", "cd"});
    EXPECT_EQ(topic.Row(1), (TextRange{0, 2}));
    EXPECT_EQ(topic.Row(2), (TextRange{3, 3}));
    EXPECT_EQ(topic.Row(3), (TextRange{4, 6}));
    EXPECT_EQ(topic.Row(0), topic.Row(1));
    EXPECT_EQ(topic.Row(4), topic.Row(3));
    EXPECT_EQ(topic.RowAt(3), 2);
}

TEST(TopicText, part_isHeldInTheText)
{
    const TopicText topic = MakeTopic({"ab", "cd"});
    EXPECT_EQ(topic.Part({1, 4}), "b\nc");
    EXPECT_EQ(topic.Part({4, 99}), "d");
    EXPECT_EQ(topic.Part({99, 100}), "");
    EXPECT_EQ(topic.Part({3, 2}), "");
}

TEST(TopicText, styleAt_givesTheWholePart)
{
    const TopicText topic = MakeTopic({"a <B>b&AMP;c</B> d", "<H1>T</H1>", "e"});
    ASSERT_EQ(topic.Text(), "a b&c d\nT\ne");
    TextStyle bold;
    bold.bold = true;
    const TextStyle heading{true, false, true, DarkRed};
    EXPECT_EQ(topic.StyleAt(0), (StyledPart{{0, 2}, {}}));
    EXPECT_EQ(topic.StyleAt(2), (StyledPart{{2, 5}, bold}));
    EXPECT_EQ(topic.StyleAt(4), (StyledPart{{2, 5}, bold}));
    EXPECT_EQ(topic.StyleAt(5), (StyledPart{{5, 8}, {}}));
    EXPECT_EQ(topic.StyleAt(8), (StyledPart{{8, 9}, heading}));
    EXPECT_EQ(topic.StyleAt(10), (StyledPart{{9, 11}, {}}));
    EXPECT_EQ(topic.StyleAt(11), (StyledPart{{11, 11}, {}}));
}

TEST(TopicText, headingLevel_isToldByTheColour)
{
    const TopicText topic = MakeTopic({"<H1>a</H1>", "<H2>b</H2>", "<H3>c</H3>", "<B><I><U>d</U></I></B>"});
    EXPECT_EQ(HeadingLevel(topic.StyleAt(0).style.colour), 1);
    EXPECT_EQ(HeadingLevel(topic.StyleAt(2).style.colour), 2);
    EXPECT_EQ(HeadingLevel(topic.StyleAt(4).style.colour), 3);
    EXPECT_EQ(HeadingLevel(topic.StyleAt(6).style.colour), 0);
}

} // namespace
} // namespace ls
