#include "render/WrapSegment.h"

#include "render/PlainWrap.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

// All segments of a line: the first one without indent, later ones with it.
Strings Wrap(const std::string& line, int width, int indent)
{
    Strings segments;
    LineRemainder rest(line);
    do {
        std::string segment;
        WrapSegment(rest, width, segments.empty() ? 0 : indent, segment);
        segments.push_back(segment);
    } while (!rest.Blank());
    return segments;
}

struct Row
{
    const char* name;
    const char* line;
    int width;
    int indent;
    Strings segments;
};

class WrapTable : public testing::TestWithParam<Row>
{
};

TEST_P(WrapTable, wrap_line_givesSegments)
{
    const Row& row = GetParam();
    EXPECT_EQ(Wrap(row.line, row.width, row.indent), row.segments);
}

INSTANTIATE_TEST_SUITE_P(
    Words, WrapTable,
    testing::Values(
        Row{"empty", "", 10, 0, {""}}, Row{"exactWidth", "1234567890", 10, 0, {"1234567890"}},
        Row{"blankRightBehindTheWidth", "12345 7890 x", 10, 0, {"12345 7890", "x"}},
        Row{"wordOverTheEdge", "12345 78901 x", 10, 0, {"12345", "78901 x"}},
        Row{"blankIsDroppedOthersStay", "12345678   9x", 10, 0, {"12345678  ", "9x"}},
        Row{"furtherBlanksStay", "1234567890   abc", 10, 0, {"1234567890", "  abc"}},
        Row{"longWord", "abcdefghijklm", 10, 0, {"abcdefghij", "klm"}},
        Row{"longWordBehindShortOne", "ab cdefghijklmnop", 10, 0, {"ab", "cdefghijkl", "mnop"}},
        Row{"remainderOfBlanks", "1234567890    ", 10, 0, {"1234567890"}},
        Row{"onlyBlankIsFirst", " abcdefghijklmnop", 10, 0, {"abcdefghijklmnop"}},
        Row{"blankFirstAndLater", " abc defghijklmnop q", 10, 0, {" abc", "defghijklm", "nop q"}},
        Row{"twoBlanksFirst", "  abcdefghijklmnop", 10, 0, {" ", "abcdefghij", "klmnop"}},
        Row{"blankFirstInRemainder", "1234567890  bcdefghijklm", 10, 0, {"1234567890", "bcdefghijklm"}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Indents, WrapTable,
    testing::Values(Row{"hangingIndent", "- one two three four", 10, 2, {"- one two", "  three", "  four"}},
                    Row{"exactWidthWithIndent", "- 34567890 12345678", 10, 2, {"- 34567890", "  12345678"}},
                    Row{"hardBreakCountsNoIndent",
                        "abcdefghij0123456789xyz",
                        10,
                        2,
                        {"abcdefghij", "  0123456789", "  xyz"}},
                    Row{"indentedEmptySegmentStays",
                        "1234567890  bcdefghijklm",
                        10,
                        2,
                        {"1234567890", "  ", "  bcdefghijk", "  lm"}},
                    Row{"widthOfOne", "ab c", 1, 0, {"a", "b", "c"}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Tabs, WrapTable,
    testing::Values(Row{"leadingTab", "\tabc", 10, 0, {"     abc"}},
                    Row{"leadingTabOnly", "\t", 10, 0, {"     "}},
                    Row{"tabCountsFive", "\tabcde f", 10, 0, {"     abcde", "f"}},
                    Row{"secondTabIsOneCharacter", "\t\tabc", 10, 0, {"     \tabc"}},
                    Row{"innerTabIsOneCharacter", "a\tb cdefghi", 10, 0, {"a\tb", "cdefghi"}},
                    Row{"tabOfARemainder", "1234567890 \tab", 10, 0, {"1234567890", "     ab"}},
                    Row{"wordBehindTabTooLong", "\tabcdefghij", 10, 0, {"    ", "abcdefghij"}},
                    Row{"tabWiderThanTheWidth", "\tab", 3, 0, {"   ", " ab"}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Tags, WrapTable,
    testing::Values(
        Row{"tagCountsNothing", "<B>12345</B> 7890 abc", 10, 0, {"<B>12345</B> 7890", "abc"}},
        Row{"visibleTextFits", "<B>12345</B> 7890", 10, 0, {"<B>12345</B> 7890"}},
        Row{"blankInTagIsNoBreak", "123456<A B>7890 x", 10, 0, {"123456<A B>7890", "x"}},
        Row{"hardBreakCountsRaw", "<B>abcdefghijkl</B>", 10, 0, {"<B>abcdefg", "hijkl</B>"}},
        Row{"openingWithoutEnd", "one < two three four five six", 10, 0, {"one < two three four five six"}},
        Row{"closingOutsideIsText", "1234567>> abc", 10, 0, {"1234567>>", "abc"}},
        Row{"openingInTag", "<A<B>1234567890 x", 10, 0, {"<A<B>1234567890", "x"}},
        Row{"tagBehindTheWidthStays", "1234567890</B> x", 10, 0, {"1234567890</B>", "x"}},
        Row{"openingAtTheEdgeThenAmpersand", "12 4567890<B &c", 10, 0, {"12", "4567890<B &c"}}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Entities, WrapTable,
    testing::Values(
        Row{"entityIsOneColumn", "&LT;23456&GT;890 x", 10, 0, {"&LT;23456&GT;890", "x"}},
        Row{"ampersandWithoutEnd", "Hello&there one two three", 10, 0, {"Hello&there one two three"}},
        Row{"ampersandInFullRow", "12345 7890&AMP; x", 10, 0, {"12345", "7890&AMP; x"}},
        Row{"ampersandInFullRowWithoutBlank", "1234567890&AMP;x", 10, 0, {"1234567890", "&AMP;x"}},
        Row{"entityEndsAtTheEdge", "123456789&AMP; x", 10, 0, {"123456789&AMP;", "x"}},
        Row{"semicolonOutsideIsText", "1234567;; abc", 10, 0, {"1234567;;", "abc"}},
        Row{"blankInEntityIsNoBreak", "123456&a b;890 x", 10, 0, {"123456&a b;890", "x"}},
        Row{"tagInEntity", "&<B>LT;234567890 x", 10, 0, {"&<B>LT;234567890", "x"}},
        Row{"entityInTag", "<A&LT;>234567890 x", 10, 0, {"<A&LT;>234567890", "x"}},
        Row{"entityNotEndedInTag", "<A&LT>12345678901234 x", 10, 0, {"<A&LT>12345678901234 x"}}),
    [](const auto& row) { return row.param.name; });

TEST(WrapSegment, wrap_secondAmpersandInFullRow_breaksThere)
{
    EXPECT_EQ(Wrap("ab &GT;fghijk<C &x", 9, 0), (Strings{"ab", "&GT;fghijk<C &x"}));
}

TEST(WrapSegment, wrap_onlyBlanks_oneSegment)
{
    EXPECT_EQ(Wrap(std::string(30, ' '), 10, 0), (Strings{std::string(10, ' ')}));
}

#if defined(NDEBUG)
TEST(WrapSegment, wrap_indentNotBelowWidth_givesTheWholeRest)
{
    LineRemainder rest("one two three");
    std::string segment;
    WrapSegment(rest, 5, 5, segment);
    EXPECT_EQ(segment, "     one two three");
    EXPECT_TRUE(rest.Empty());
}
#else
TEST(WrapSegmentDeathTest, wrap_indentNotBelowWidth_stopsADebugBuild)
{
    LineRemainder rest("one two three");
    std::string segment;
    EXPECT_DEATH(WrapSegment(rest, 5, 5, segment), "indent < width");
}
#endif

TEST(WrapSegment, remainder_whileWrapped_tellsItsSize)
{
    LineRemainder rest("\tab cd  ");
    EXPECT_EQ(rest.Size(), 8U);
    std::string segment;
    WrapSegment(rest, 8, 0, segment);
    EXPECT_EQ(segment, "     ab");
    EXPECT_EQ(rest.Size(), 4U);
    EXPECT_FALSE(rest.Blank());
    WrapSegment(rest, 3, 0, segment);
    EXPECT_EQ(segment, "cd ");
    EXPECT_EQ(rest.Size(), 0U);
    EXPECT_TRUE(rest.Blank());
}

TEST(WrapSegment, remainder_ofBlanks_isBlankAndNotEmpty)
{
    const LineRemainder rest("   ");
    EXPECT_TRUE(rest.Blank());
    EXPECT_FALSE(rest.Empty());
}

// Lines of a few characters that matter, so that every rule meets every other one.
TEST(WrapSegment, wrap_randomLines_asTheRuleWrittenStepByStep)
{
    constexpr std::string_view Characters = "aaab   <>&;\t";
    std::mt19937 random(20240501);
    const auto pick = [&random](int low, int high) {
        return std::uniform_int_distribution<int>(low, high)(random);
    };
    for (int round = 0; round < 60000; ++round) {
        std::string line;
        const int length = pick(0, 60);
        for (int i = 0; i < length; ++i) {
            line += Characters[static_cast<std::size_t>(pick(0, static_cast<int>(Characters.size()) - 1))];
        }
        const int width = pick(1, 14);
        const int indent = pick(0, std::min(width - 1, 10));
        std::string expectedRest = line;
        LineRemainder rest(line);
        std::string segment;
        for (int n = 0; !expectedRest.empty(); ++n) {
            const int hang = n == 0 ? 0 : indent;
            const std::string expected = test::PlainWrapSegment(expectedRest, width, hang);
            WrapSegment(rest, width, hang, segment);
            ASSERT_EQ(segment, expected) << "line <<" << line << ">> width " << width << " segment " << n;
            ASSERT_EQ(rest.Size(), expectedRest.size()) << "line <<" << line << ">> segment " << n;
            ASSERT_EQ(rest.Blank(), expectedRest.find_first_not_of(' ') == std::string::npos)
                << "line <<" << line << ">> segment " << n;
        }
    }
}

} // namespace
} // namespace ls
