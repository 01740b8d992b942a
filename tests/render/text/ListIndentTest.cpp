#include "render/text/ListIndent.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct Row
{
    const char* name;
    const char* line;
    int indent;
};

class ListIndentTable : public testing::TestWithParam<Row>
{
};

TEST_P(ListIndentTable, listIndent_line_givesHangingIndent)
{
    EXPECT_EQ(ListIndent(GetParam().line), GetParam().indent) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    Bullets, ListIndentTable,
    testing::Values(Row{"ordinaryText", "Some text", 0}, Row{"emptyLine", "", 0}, Row{"dash", "- x", 2},
                    Row{"dashWithoutText", "- ", 2}, Row{"dashWithoutBlank", "-x", 0},
                    Row{"indentedDash", " - x", 3}, Row{"dashBehindTwoBlanks", "  - x", 0},
                    Row{"dashBehindTag", "<H1>- x", 2}, Row{"indentedDashBehindTag", "<B> - x", 3},
                    Row{"dashBehindLongTag", "<BOLD>- x", 0}, Row{"dashBehindSecondTag", "<B><I>- x", 0},
                    Row{"asterisk", "* x", 0}),
    test::RowName());

INSTANTIATE_TEST_SUITE_P(
    Numbers, ListIndentTable,
    testing::Values(Row{"oneDigit", "1. x", 3}, Row{"twoDigits", "12. x", 4},
                    Row{"letterAndDigit", "A1. item", 4}, Row{"letterOnly", "A. item", 0},
                    Row{"wordsBeforeTheDigit", "No 7. x", 6}, Row{"numberBehindTag", "<B>1. First item", 3},
                    Row{"numberBehindHeading", "<H1>12. x", 4}, Row{"noBlankBehindThePoint", "1.x", 0},
                    Row{"pointFirst", ". x", 0}, Row{"pointAtNinthCharacter", "12345678. x", 10},
                    Row{"pointAtTenthCharacter", "123456789. x", 0},
                    Row{"pointAtNinthBehindTag", "<H1>1234. x", 6},
                    Row{"pointAtTenthBehindTag", "<H1>12345. x", 0}, Row{"firstPointDecides", "a. 1. x", 0},
                    Row{"abbreviation", "e.g. 1. x", 0}),
    test::RowName());

INSTANTIATE_TEST_SUITE_P(Brackets, ListIndentTable,
                         testing::Values(Row{"letter", "a) item", 3}, Row{"digit", "1) item", 3},
                                         Row{"twoDigits", "10) item", 0}, Row{"anyCharacter", "*) item", 3},
                                         Row{"blank", " ) item", 3}, Row{"accentedLetter", "\xE9) item", 3},
                                         Row{"bracketFirst", ") item", 0},
                                         Row{"secondBracketDoesNotCount", ") ) x", 0},
                                         Row{"noBlankBehind", "a)item", 0}, Row{"behindTag", "<B>a) x", 3},
                                         Row{"behindShortHeading", "<H1>a) x", 3},
                                         Row{"pointWithoutDigitBehind", "a) x. y", 3},
                                         Row{"numberBehindBracketWins", "a) 1. y", 6}),
                         test::RowName());

INSTANTIATE_TEST_SUITE_P(LeadingTags, ListIndentTable,
                         testing::Values(Row{"tagOfFourCharacters", "<H1>1. x", 3},
                                         Row{"tagOfFiveIsText", "</H1>- x", 0},
                                         Row{"numberBehindTagOfFive", "</H1>1. x", 8},
                                         Row{"tagWithoutEnd", "<- x", 0},
                                         Row{"numberInTagWithoutEnd", "<1. x", 4},
                                         Row{"emptyTag", "<>- x", 2}, Row{"tagOnly", "<B>", 0}),
                         test::RowName());

} // namespace
} // namespace ls
