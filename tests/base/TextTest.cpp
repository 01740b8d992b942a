#include "base/Text.h"

#include <gtest/gtest.h>

#include <string>

namespace ls {
namespace {

TEST(Text, trim_takesBlanksOnly)
{
    EXPECT_EQ(Trim("  a b  "), "a b");
    EXPECT_EQ(TrimLeft("  a  "), "a  ");
    EXPECT_EQ(TrimRight("  a  "), "  a");
    EXPECT_EQ(Trim(" \ta\xA0 "), "\ta\xA0");
    EXPECT_EQ(Trim(" \n "), "\n");
}

TEST(Text, trim_nothingButBlanks_isEmpty)
{
    for (const char* text : {"", " ", "    "}) {
        EXPECT_EQ(Trim(text), "");
        EXPECT_EQ(TrimLeft(text), "");
        EXPECT_EQ(TrimRight(text), "");
    }
}

TEST(Text, upperCase_plainLetters)
{
    EXPECT_EQ(UpperCase("abc xyz ABC @[`{ 019"), "ABC XYZ ABC @[`{ 019");
}

TEST(Text, upperCase_lettersOfTheCodePage)
{
    EXPECT_EQ(UpperCase("\x9A\x9C\x9E\xFF\xE0\xF6\xF8\xFE"), "\x8A\x8C\x8E\x9F\xC0\xD6\xD8\xDE");
}

TEST(Text, upperCase_otherHighBytes_stay)
{
    // Characters without an upper or lower case: quotes, signs, the sharp s, multiplication and division.
    const std::string others = "\x80\x91\x99\x9B\x9D\xA0\xAA\xB5\xBF\xD7\xDF\xF7";
    EXPECT_EQ(UpperCase(others), others);
}

TEST(Text, upperCase_anyByte_isStableAndKeepsTheLength)
{
    for (int byte = 0; byte < 256; ++byte) {
        const std::string text(1, static_cast<char>(byte));
        const std::string upper = UpperCase(text);
        EXPECT_EQ(upper.size(), 1U) << byte;
        EXPECT_EQ(UpperCase(upper), upper) << byte;
    }
}

TEST(Text, equalsUpper_comparesWithoutCase)
{
    EXPECT_TRUE(EqualsUpper("<ixml>", "<IXML>"));
    EXPECT_TRUE(EqualsUpper("\xE4", "\xC4"));
    EXPECT_TRUE(EqualsUpper("", ""));
    EXPECT_FALSE(EqualsUpper("<ixml> ", "<IXML>"));
    EXPECT_FALSE(EqualsUpper("<ixml", "<IXML>"));
}

TEST(Text, beginsUpper_comparesTheBeginning)
{
    EXPECT_TRUE(BeginsUpper("lodestar book v5", "LODESTAR BOOK"));
    EXPECT_TRUE(BeginsUpper("x", ""));
    EXPECT_FALSE(BeginsUpper("lode", "LODESTAR"));
    EXPECT_FALSE(BeginsUpper("a lodestar", "LODESTAR"));
}

struct NumberCase
{
    const char* name;
    const char* text;
    double number;
};

struct LeadingNumberTest : testing::TestWithParam<NumberCase>
{
};

TEST_P(LeadingNumberTest, leadingNumber_readsAsFarAsItParses)
{
    EXPECT_EQ(LeadingNumber(GetParam().text), GetParam().number);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LeadingNumberTest,
    testing::Values(NumberCase{"empty", "", 0}, NumberCase{"blanks", "   ", 0}, NumberCase{"whole", "17", 17},
                    NumberCase{"leadingBlanks", "  17", 17}, NumberCase{"textBehind", "5.3 INI", 5.3},
                    NumberCase{"letterBehind", "4a", 4}, NumberCase{"text", "x5", 0},
                    NumberCase{"point", ".5", 0.5}, NumberCase{"pointAlone", ".", 0},
                    NumberCase{"pointBehind", "5.", 5}, NumberCase{"twoPoints", "1.2.3", 1.2},
                    NumberCase{"minus", "-2.5", -2.5}, NumberCase{"minusAlone", "-", 0},
                    NumberCase{"plus", "+7", 7}, NumberCase{"plusAndMinus", "+-5", 0},
                    NumberCase{"twoPluses", "++5", 0}, NumberCase{"noExponent", "1e3", 1},
                    NumberCase{"infinity", "inf", 0}, NumberCase{"minusInfinity", "-inf", 0},
                    NumberCase{"minusNan", "-nan", 0}, NumberCase{"noHexadecimal", "0x10", 0}),
    [](const auto& row) { return row.param.name; });

TEST(Text, leadingNumber_tooManyDigits_isNone)
{
    EXPECT_EQ(LeadingNumber(std::string(400, '9')), 0);
}

TEST(Text, contains_part_isFoundAnywhere)
{
    EXPECT_TRUE(Contains("A=B", "="));
    EXPECT_TRUE(Contains("A", ""));
    EXPECT_FALSE(Contains("A=B", "b"));
    EXPECT_FALSE(Contains("", "A"));
}

TEST(Text, brackets_areAddedWhereTheyLack)
{
    EXPECT_EQ(WithBrackets("A"), "[A]");
    EXPECT_EQ(WithBrackets("[A]"), "[A]");
    EXPECT_EQ(WithBrackets("[A"), "[A]");
    EXPECT_EQ(WithBrackets("A]"), "[A]");
    EXPECT_EQ(WithBrackets(""), "[]");
}

TEST(Text, brackets_areTakenAwayOnce)
{
    EXPECT_EQ(WithoutBrackets("[A]"), "A");
    EXPECT_EQ(WithoutBrackets("[[A]]"), "[A]");
    EXPECT_EQ(WithoutBrackets("[A"), "A");
    EXPECT_EQ(WithoutBrackets("A]"), "A");
    EXPECT_EQ(WithoutBrackets("A"), "A");
    EXPECT_EQ(WithoutBrackets("["), "");
    EXPECT_EQ(WithoutBrackets(""), "");
}

} // namespace
} // namespace ls
