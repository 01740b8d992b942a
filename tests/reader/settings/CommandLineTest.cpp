#include "reader/settings/CommandLine.h"

#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using test::TestSeams;
using Strings = std::vector<std::string>;

// "path|inidir|topic|valid"
std::string Summary(const CommandLine& commandLine)
{
    return commandLine.bookPath + "|" + commandLine.iniDir + "|" + commandLine.startTopic + "|" +
           (commandLine.valid ? "valid" : "invalid");
}

struct StringCase
{
    const char* name;
    const char* line;
    const char* expected;
};

struct CommandLineStringTest : testing::TestWithParam<StringCase>
{
};

TEST_P(CommandLineStringTest, parse_oneString)
{
    EXPECT_EQ(Summary(ParseCommandLine(GetParam().line)), GetParam().expected);
}

const StringCase StringCases[] = {
    {"empty", "", "|||valid"},
    {"pathAlone_staysWhole", "My Guide.IDA ", "My Guide.IDA |||valid"},
    {"pathAndParameters", R"(Guide.IDA /TOPIC="Getting Started" /INIDIR=C:\Settings)",
     R"(Guide.IDA|C:\Settings|Getting Started|valid)"},
    {"trailingBlanksOfThePath_areRemoved", "Guide.IDA   /TOPIC=A", "Guide.IDA||A|valid"},
    {"onlyParameters", "/TOPIC=A", "||A|valid"},
    {"namesInLowerCase", R"(G /topic=A /iniDir=C:\x)", R"(G|C:\x|A|valid)"},
    {"trailingBlanksOfAValue_areRemoved", R"(G /TOPIC=A   /INIDIR=C:\x  )", R"(G|C:\x|A|valid)"},
    {"leadingBlanksOfAValue_stay", "G /TOPIC= A", "G|| A|valid"},
    {"slashInQuotes_isPartOfTheValue", R"(G /TOPIC="A/B" /INIDIR=x)", "G|x|A/B|valid"},
    {"slashWithoutQuotes_endsTheValue", "G /TOPIC=A/B", "G||A|invalid"},
    {"blanksInQuotes_stay", R"(G /TOPIC="A ")", "G||A |valid"},
    {"leadingQuoteAlone_isDropped", R"(G /TOPIC="A)", "G||A|valid"},
    {"trailingQuoteAlone_isDropped", R"(G /TOPIC=A")", "G||A|valid"},
    {"valueOfOneQuote_stays", R"(G /TOPIC=")", R"(G||"|valid)"},
    {"valueOfTwoQuotes_isEmpty", R"(G /TOPIC="")", "G|||valid"},
    {"emptyValue", "G /TOPIC=", "G|||valid"},
    {"unknownParameter_keepsTheValidOnes", "G /X=1 /TOPIC=A", "G||A|invalid"},
    {"nameIsNotTrimmed", "G /TOPIC =A", "G|||invalid"},
    {"slashWithoutEquals_isInvalid", "G /TOPIC", "G|||invalid"},
    {"slashWithoutEqualsBehindAValidOne_keepsThat", "G /TOPIC=A /INIDIR", "G||A|invalid"},
    {"repeated_lastWins", "G /TOPIC=A /TOPIC=B", "G||B|valid"},
    {"pathInQuotes", R"("C:\My Books\Guide.IDA" /TOPIC=A)", R"(C:\My Books\Guide.IDA||A|valid)"},
    {"pathInQuotesWithTextAround", R"(see "Guide.IDA" here)", "Guide.IDA|||valid"},
    {"pathWithOneQuote_takesTheRest", R"("Guide.IDA)", "Guide.IDA|||valid"},
};

INSTANTIATE_TEST_SUITE_P(Lines, CommandLineStringTest, testing::ValuesIn(StringCases), test::RowName());

struct ArgumentsCase
{
    const char* name;
    Strings arguments;
    const char* expected;
};

struct CommandLineArgumentsTest : testing::TestWithParam<ArgumentsCase>
{
};

TEST_P(CommandLineArgumentsTest, parse_separateArguments)
{
    TestSeams world;
    world.files["/TOPIC=old"] = "a file with an odd name";
    world.files["/books/12\" records.IDA"] = "";
    world.files["/books/odd /TOPIC=x.IDA"] = "";
    EXPECT_EQ(Summary(ParseArguments(GetParam().arguments, world.Get())), GetParam().expected);
}

const ArgumentsCase ArgumentsCases[] = {
    {"none", {}, "|||valid"},
    {"emptyArgument", {""}, "|||valid"},
    {"absolutePath", {"/home/u/Guide.IDA"}, "/home/u/Guide.IDA|||valid"},
    {"pathWithBlank", {"/home/u/My Guide.IDA"}, "/home/u/My Guide.IDA|||valid"},
    {"pathInPieces_isJoined", {"/home/u/My", "Guide.IDA"}, "/home/u/My Guide.IDA|||valid"},
    {"pathAndParameters",
     {"/home/u/Guide.IDA", "/TOPIC=Getting", "Started", "/INIDIR=/home/u/.config"},
     "/home/u/Guide.IDA|/home/u/.config|Getting Started|valid"},
    {"valueInOnePiece",
     {"Guide.IDA", "/TOPIC=Getting Started", "/INIDIR=/a b"},
     "Guide.IDA|/a b|Getting Started|valid"},
    {"valueWithSlashes", {"/TOPIC=TCP/IP", "and/or"}, "||TCP/IP and/or|valid"},
    {"valueWithQuotesAndSlash", {"/TOPIC=Say \"Hi/There\""}, "||Say \"Hi/There\"|valid"},
    {"valueInQuotesOfItsOwn", {"/TOPIC=\"Getting", "Started\""}, "||Getting Started|valid"},
    {"valueOfOneQuote", {"/TOPIC=\""}, "||\"|valid"},
    {"emptyValue", {"G", "/TOPIC="}, "G|||valid"},
    {"namesInLowerCase", {"G", "/topic=A", "/inidir=/x"}, "G|/x|A|valid"},
    {"unknownParameter_keepsTheValidOnes", {"G", "/X=1", "/TOPIC=A"}, "G||A|invalid"},
    {"nameWithDigits_isAPath", {"/a1=b"}, "/a1=b|||valid"},
    {"noLetters_isAPath", {"/=b"}, "/=b|||valid"},
    {"existingFile_isThePath", {"/TOPIC=old"}, "/TOPIC=old|||valid"},
    {"existingFileBehindAParameter_isItsValue", {"/INIDIR=/x", "/TOPIC=old"}, "|/x /TOPIC=old||valid"},
    {"folderNamedLikeAParameterInside", {"/home/a/TOPIC=x.IDA"}, "/home/a/TOPIC=x.IDA|||valid"},
    {"quoteInTheNameOfAFile_stays", {"/books/12\" records.IDA"}, "/books/12\" records.IDA|||valid"},
    {"pathInQuotesOfItsOwn", {"\"/books/My", "Guide.IDA\""}, "/books/My Guide.IDA|||valid"},
    {"classicForm",
     {"/home/u/Guide.IDA /TOPIC=Getting Started /INIDIR=/home/u/.config"},
     "/home/u/Guide.IDA|/home/u/.config|Getting Started|valid"},
    {"classicFormInQuotes",
     {"\"/home/u/My Guide.IDA\" /TOPIC=\"A /B=C\"  /INIDIR=\"/x\""},
     "/home/u/My Guide.IDA|/x|A /B=C|valid"},
    {"classicFormOnlyParameters", {"/TOPIC=A /INIDIR=/x"}, "|/x|A|valid"},
    {"classicFormPathWithEquals", {"/home/u/a /b c=d.IDA /TOPIC=A"}, "/home/u/a /b c=d.IDA||A|valid"},
    {"classicFormOneQuoteInThePath_hidesNoParameter", {"/b/12\"x.IDA /TOPIC=A"}, "x.IDA||A|valid"},
    {"classicFormUnknownParameter", {"G /X=1 /TOPIC=A"}, "G||A|invalid"},
    {"fileThatReadsLikeTheClassicForm", {"/books/odd /TOPIC=x.IDA"}, "/books/odd /TOPIC=x.IDA|||valid"},
};

INSTANTIATE_TEST_SUITE_P(Lines, CommandLineArgumentsTest, testing::ValuesIn(ArgumentsCases), test::RowName());

TEST(CommandLine, topic_isTurnedIntoBookText)
{
    TestSeams world;
    EXPECT_EQ(ParseArguments({"/TOPIC=\xC3\x84pfel"}, world.Get()).startTopic, "\xC4pfel");
    EXPECT_EQ(ParseCommandLine("/TOPIC=\xE2\x82\xAC").startTopic, "\x80");
}

TEST(CommandLine, topicThatTheCodePageLacks_isKeptAsTyped)
{
    EXPECT_EQ(ParseCommandLine("/TOPIC=\xE2\x88\x9E").startTopic, "\xE2\x88\x9E");
}

TEST(CommandLine, paths_keepTheirBytes)
{
    TestSeams world;
    const CommandLine parsed = ParseArguments({"/b\xFF\xC3\x84.IDA", "/INIDIR=/\xFE"}, world.Get());
    EXPECT_EQ(parsed.bookPath, "/b\xFF\xC3\x84.IDA");
    EXPECT_EQ(parsed.iniDir, "/\xFE");
}

TEST(CommandLine, report_valid_saysNothing)
{
    TestSeams world;
    ReportInvalidParameters(ParseCommandLine("G /TOPIC=A"), world.Get());
    EXPECT_EQ(world.messages.Take(), Strings{});
}

TEST(CommandLine, report_invalid_showsTheWholeLine)
{
    TestSeams world;
    ReportInvalidParameters(ParseCommandLine("G\xFF /X=1 /TOPIC=\"A B\""), world.Get());
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|Invalid command line parameters are ignored.  Command line: "
                      "<<G\xEF\xBF\xBD /X=1 /TOPIC=\"A B\">>"});
}

TEST(CommandLine, report_invalidArguments_showsThemJoined)
{
    TestSeams world;
    ReportInvalidParameters(ParseArguments({"My", "G.IDA", "/X=1"}, world.Get()), world.Get());
    EXPECT_EQ(world.messages.Take(),
              Strings{"warning|Lodestar Advisor|Invalid command line parameters are ignored.  Command line: "
                      "<<My G.IDA /X=1>>"});
}

} // namespace
} // namespace ls
