#include "render/text/WrapSegment.h"

#include "render/text/PlainWrap.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>
#include <vector>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

// All segments of a line. Only the first one has no indent.
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
    test::RowName());

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
    test::RowName());

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
    test::RowName());

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
    test::RowName());

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
    test::RowName());

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

// Compares every segment of random lines with the plain rule.
class RandomLines
{
public:
    explicit RandomLines(unsigned seed) : m_random(seed) {}

    int Pick(int low, int high) { return std::uniform_int_distribution<int>(low, high)(m_random); }

    std::string Line(const Strings& pieces, int longest)
    {
        std::string line;
        for (int left = Pick(0, longest); left > 0; --left) {
            line += pieces[static_cast<std::size_t>(Pick(0, static_cast<int>(pieces.size()) - 1))];
        }
        return line;
    }

    // Each segment may have another width. No caller does this, but the rule allows it.
    void Compare(const std::string& line, int leastWidth, int mostWidth, int indent)
    {
        std::string expectedRest = line;
        LineRemainder rest(line);
        std::string segment;
        for (int n = 0; !expectedRest.empty(); ++n) {
            const int hang = n == 0 ? 0 : indent;
            const int width = Pick(leastWidth, mostWidth);
            const std::string expected = test::PlainWrapSegment(expectedRest, width, hang);
            WrapSegment(rest, width, hang, segment);
            ASSERT_EQ(segment, expected) << "line <<" << line << ">> width " << width << " segment " << n;
            ASSERT_EQ(rest.Size(), expectedRest.size()) << "line <<" << line << ">> segment " << n;
            ASSERT_EQ(rest.Blank(), expectedRest.find_first_not_of(' ') == std::string::npos)
                << "line <<" << line << ">> segment " << n;
        }
    }

private:
    std::mt19937 m_random;
};

TEST(WrapSegment, wrap_randomLines_asTheRuleWrittenStepByStep)
{
    // Only characters with a meaning for the rules, so that the rules often apply together.
    const Strings pieces = {"a", "a", "a", " ", " ", "<", ">", "&", ";", "\t"};
    RandomLines random(20240501);
    for (int round = 0; round < 40000 && !testing::Test::HasFatalFailure(); ++round) {
        const int width = random.Pick(1, 14);
        const std::string line = random.Line(pieces, 60);
        random.Compare(line, width, width, random.Pick(0, std::min(width - 1, 10)));
    }
}

// Text with little markup, so most rows are plain. Some words are longer than the eight characters that are
// searched first for the last blank.
TEST(WrapSegment, wrap_randomLongLinesOfWords_asTheRuleWrittenStepByStep)
{
    Strings pieces = {"<B>", "&AMP; ", "</B> ", "  ", "\t"};
    for (std::size_t length = 1; length <= 40; ++length) {
        const std::string word = std::string(length, 'w') + " ";
        pieces.insert(pieces.end(), length < 12 ? 12 : 1, word);
    }
    RandomLines random(11);
    for (int round = 0; round < 400 && !testing::Test::HasFatalFailure(); ++round) {
        const int width = random.Pick(11, 110);
        const std::string line = random.Line(pieces, 500);
        random.Compare(line, width, round % 3 == 0 ? 110 : width, random.Pick(0, 10));
    }
}

// Hidden text of hundreds of characters. Many segments end inside it.
class HiddenText : public testing::TestWithParam<std::pair<const char*, Strings>>
{
};

TEST_P(HiddenText, wrap_randomLines_asTheRuleWrittenStepByStep)
{
    const std::string a(300, 'a');
    RandomLines random(7);
    for (int round = 0; round < 200 && !testing::Test::HasFatalFailure(); ++round) {
        const int width = random.Pick(11, 40);
        std::string line = random.Line(GetParam().second, 80);
        line += round % 2 == 0 ? "&" : ">;" + a;
        random.Compare(line, width, round % 3 == 0 ? 40 : width, random.Pick(0, 10));
    }
}

const std::string ManyTags = [] {
    std::string tags;
    for (int i = 0; i < 120; ++i) {
        tags += "<B>";
    }
    return tags;
}();

INSTANTIATE_TEST_SUITE_P(
    Kinds, HiddenText,
    testing::Values(std::pair("tags", Strings{"<B>", "</H1>", "<B>", "<I>", "x"}),
                    std::pair("tagRuns", Strings{ManyTags, ManyTags, "x", "xyz ", "&AMP;"}),
                    std::pair("longTags", Strings{"<" + std::string(700, 'q') + ">", "x", "y z"}),
                    std::pair("openTags", Strings{"<", "ab", "cdefghij", "klmnopqrstuvwxyz", "-"}),
                    std::pair("openTagsAndBlanks", Strings{"<", "ab", "cd ", "klmnopqrstuvwxyz", "-"}),
                    std::pair("longEntities", Strings{"&" + ManyTags + ";", "<B>", "x", "y"}),
                    std::pair("entitiesInTags", Strings{"<&", ">", ";", ManyTags, "x", "y "}),
                    std::pair("ends", Strings{">", ";", "x", "<", ManyTags, "<B>", "<B>"}),
                    std::pair("entitiesAtTheEdge",
                              Strings{ManyTags, ManyTags, "x", "xxxxx", "&" + std::string(400, 'q') + "; x"}),
                    std::pair("everything", Strings{"<", ">", "&", ";", "a", "a", " ", ManyTags, "bcd"})),
    [](const auto& row) { return row.param.first; });

// Rows full of tags and entities. Half of the lines have only simple ones. The others also have tags with
// attributes, names of digits or signs, long names, and markup without an end.
TEST(WrapSegment, wrap_randomLongLinesOfMarkup_asTheRuleWrittenStepByStep)
{
    const Strings simple = {"<B>",  "</B>", "<H1>",       "</H3>",      "<>",     "&AMP;", "&LT;", "&;",
                            "&H2;", "</>",  "<ABCDEFG7>", "&ABCDEFGH;", "<\xE9>", "word ", "a",    " "};
    Strings mixed = simple;
    for (const char* piece :
         {"<A B>", "<A=\"x;y\">", "&#39;", "<12>", "<//>", "<ABCDEFGHIJKL>", "a<b ", "R&D ", "<\x80>"}) {
        mixed.push_back(piece);
    }
    RandomLines random(5);
    for (int round = 0; round < 1500 && !testing::Test::HasFatalFailure(); ++round) {
        const int width = random.Pick(1, 100);
        const std::string line = random.Line(round % 2 == 0 ? simple : mixed, 600);
        random.Compare(line, width, round % 3 == 0 ? 100 : width, random.Pick(0, std::min(width - 1, 10)));
    }
}

} // namespace
} // namespace ls
