#include "book/BookHeader.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

// The result of parsing a header line as one text: "magic|version|author|copyright|url|post|good".
std::string Parsed(const std::string& line)
{
    BookHeader header;
    const bool good = ParseBookHeader(line, header);
    char version[16];
    std::snprintf(version, sizeof version, "%g", static_cast<double>(header.BookVersion));
    return header.BookMagic + "|" + version + "|" + header.BookAuthor + "|" + header.BookCopyright + "|" +
           header.BookUrl + "|" + header.BookPost + "|" + (good ? "good" : "bad");
}

struct HeaderCase
{
    const char* name;
    const char* line;
    const char* expected;
};

struct HeaderTable : testing::TestWithParam<HeaderCase>
{
};

TEST_P(HeaderTable, parse_line_givesFields)
{
    EXPECT_EQ(Parsed(GetParam().line), GetParam().expected);
}

const HeaderCase HeaderCases[] = {
    {"allFields", "LODESTAR BOOK V5.3 /AUTHOR=\"A\" /COPYRIGHT=\"C\" /URL=\"http://u\" /POST=\"yes\"",
     "LODESTAR BOOK|5.3|A|C|http://u|YES|good"},
    {"noFields", "LODESTAR BOOK V5.3", "LODESTAR BOOK|5.3|||||good"},
    {"slashInsideQuotes_doesNotSplit", "LODESTAR BOOK V5.3 /AUTHOR=\"A/B\" /POST=\"x\"",
     "LODESTAR BOOK|5.3|A/B|||X|good"},
    {"lowerCaseV_isNoVersion", "lodestar book v5.3", "lodestar book v5.3|0|||||good"},
    {"lowerCaseMagicUpperV", "lodestar book V5.3", "LODESTAR BOOK|5.3|||||good"},
    {"version3_9_parses", "LODESTAR BOOK V3.9", "LODESTAR BOOK|3.9|||||good"},
    {"unknownKey_goesOn", "LODESTAR BOOK V5.3 /TITLE=\"x\" /URL=\"u\"", "LODESTAR BOOK|5.3|||u||bad"},
    {"noEquals_isBad", "LODESTAR BOOK V5.3 /AUTHOR", "LODESTAR BOOK|5.3|||||bad"},
    {"fieldsBeforeTheFault_areKept", "LODESTAR BOOK V5.3 /URL=\"u\" /AUTHOR", "LODESTAR BOOK|5.3|||u||bad"},
    {"equalsBeforeSlash_isNoKey", "LODESTAR BOOK V5.3 /AUTHOR=\"a\" x /=", "LODESTAR BOOK|5.3|a\" x||||bad"},
    {"noMagic", "Just a text / with = signs", "|0|||||good"},
    {"emptyLine", "", "|0|||||good"},
    {"blanksAroundTheMagic", "  LODESTAR BOOK V5.3  /POST=no", "LODESTAR BOOK|5.3||||NO|good"},
    {"magicWithoutVersion", "LODESTAR BOOK /URL=u", "LODESTAR BOOK|0|||u||good"},
    {"vWithoutNumber_15characters", "LODESTAR BOOK V", "LODESTAR BOOK V|0|||||good"},
    {"versionWithTail", "LODESTAR BOOK V5.25beta", "LODESTAR BOOK|5.25|||||good"},
    {"versionNotANumber", "LODESTAR BOOK Vx", "LODESTAR BOOK|0|||||good"},
    {"versionTooGreatForItsField", "LODESTAR BOOK V9999999999999999999999999999999999999999 /URL=u",
     "LODESTAR BOOK|0|||u||good"},
    {"versionBelowZero", "LODESTAR BOOK V-5.3", "LODESTAR BOOK|-5.3|||||good"},
    {"otherCharacterInFrontOfV", "LODESTAR BOOKSV5.3", "LODESTAR BOOK|5.3|||||good"},
    {"keyInLowerCase", "LODESTAR BOOK V5.3 /author=a", "LODESTAR BOOK|5.3|a||||good"},
    {"keyIsNotTrimmed", "LODESTAR BOOK V5.3 /AUTHOR =a", "LODESTAR BOOK|5.3|||||bad"},
    {"unquotedValue_endsAtSlash", "LODESTAR BOOK V5.3 /URL=http://u /POST=x",
     "LODESTAR BOOK|5.3|||http:||bad"},
    {"leadingBlanksOfAValue_stay", "LODESTAR BOOK V5.3 /AUTHOR=  a  /POST=p",
     "LODESTAR BOOK|5.3|  a|||P|good"},
    {"oneQuoteAlone_stays", "LODESTAR BOOK V5.3 /AUTHOR=\"", "LODESTAR BOOK|5.3|\"||||good"},
    {"twoQuotes_areEmpty", "LODESTAR BOOK V5.3 /AUTHOR=\"\"", "LODESTAR BOOK|5.3|||||good"},
    {"onlyLeadingQuote_isDropped", "LODESTAR BOOK V5.3 /AUTHOR=\"ab", "LODESTAR BOOK|5.3|ab||||good"},
    {"onlyTrailingQuote_isDropped", "LODESTAR BOOK V5.3 /AUTHOR=ab\"", "LODESTAR BOOK|5.3|ab||||good"},
    {"twoSlashesInsideQuotes", "LODESTAR BOOK V5.3 /URL=\"http://u/v\" /POST=\"p\"",
     "LODESTAR BOOK|5.3|||http://u/v|P|good"},
    {"slashBeforeTheQuotes_ends", "LODESTAR BOOK V5.3 /AUTHOR=a /POST=\"p\"", "LODESTAR BOOK|5.3|a|||P|good"},
    {"postWithAccents_isUpperCased", "LODESTAR BOOK V5.3 /POST=\"\xE9t\xE9\"",
     "LODESTAR BOOK|5.3||||\xC9T\xC9|good"},
    {"repeatedKey_lastWins", "LODESTAR BOOK V5.3 /URL=a /URL=b", "LODESTAR BOOK|5.3|||b||good"},
};

INSTANTIATE_TEST_SUITE_P(Lines, HeaderTable, testing::ValuesIn(HeaderCases), test::RowName());

TEST(BookHeader, isBook_versionBelow4_isNone)
{
    EXPECT_FALSE(IsBook({"LODESTAR BOOK", 3.9F, "", "", "", ""}));
    EXPECT_TRUE(IsBook({"LODESTAR BOOK", 4.0F, "", "", "", ""}));
    EXPECT_TRUE(IsBook({"Lodestar Book", 5.3F, "", "", "", ""}));
    EXPECT_FALSE(IsBook({"LODESTAR BOOKS", 5.3F, "", "", "", ""}));
    EXPECT_FALSE(IsBook({"", 5.3F, "", "", "", ""}));
}

TEST(BookHeader, headerLine_writesNonEmptyFieldsInOrder)
{
    EXPECT_EQ(HeaderLine({}), "LODESTAR BOOK V5.3");
    EXPECT_EQ(HeaderLine({"LODESTAR BOOK", 4.5F, "A/B", "", "http://u", "YES"}),
              "LODESTAR BOOK V5.3 /AUTHOR=\"A/B\" /URL=\"http://u\" /POST=\"YES\"");
    EXPECT_EQ(HeaderLine({"", 0, "", "C \"quoted\"", "", ""}),
              "LODESTAR BOOK V5.3 /COPYRIGHT=\"C \"quoted\"\"");
}

TEST(BookHeader, headerLine_readBack_givesTheSameFields)
{
    const BookHeader header{"LODESTAR BOOK", 5.3F, "A/B = C", "2026 / x", "http://u/v?a=b", "YES"};
    BookHeader read;
    EXPECT_TRUE(ParseBookHeader(HeaderLine(header), read));
    EXPECT_EQ(read, header);
}

} // namespace
} // namespace ls
