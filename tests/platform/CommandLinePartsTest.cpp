#include "platform/windows/CommandLineParts.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct NameCase
{
    const char* name;
    const char* line;
    const char* behind;
};

class BehindProgramNameTest : public testing::TestWithParam<NameCase>
{
};

TEST_P(BehindProgramNameTest, line_isCutBehindTheProgramsName)
{
    EXPECT_EQ(BehindProgramName(GetParam().line), GetParam().behind);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, BehindProgramNameTest,
    testing::Values(
        NameCase{"plainName", "lsadvisor.exe Guide.IDA", "Guide.IDA"},
        NameCase{"quotedNameWithBlank", R"("C:\Program Files\lsadvisor.exe" Guide.IDA)", "Guide.IDA"},
        NameCase{"quotesInsideTheName", R"(C:\"Program Files"\lsadvisor.exe Guide.IDA)", "Guide.IDA"},
        NameCase{"restKeepsItsQuotesAndBlanks", R"("a.exe"  "C:\My Books\X.IDA"  /TOPIC="A B" )",
                 R"("C:\My Books\X.IDA"  /TOPIC="A B" )"},
        NameCase{"tabBehindTheName", "a.exe\t/TOPIC=A", "/TOPIC=A"},
        NameCase{"nameAlone", R"("C:\a.exe")", ""}, NameCase{"nameAndBlank", "a.exe ", ""},
        NameCase{"emptyName", " Guide.IDA", "Guide.IDA"}, NameCase{"quoteNeverClosed", R"("a b)", ""},
        NameCase{"emptyLine", "", ""}),
    [](const auto& row) { return row.param.name; });

struct QuoteCase
{
    const char* name;
    const char* line;
    const char* quoted;
};

class WithQuotedValuesTest : public testing::TestWithParam<QuoteCase>
{
};

TEST_P(WithQuotedValuesTest, quotedParameter_hasItsValueQuoted)
{
    EXPECT_EQ(WithQuotedValues(GetParam().line), GetParam().quoted);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, WithQuotedValuesTest,
    testing::Values(QuoteCase{"behindAPlainBook", R"(Guide.IDA "/INIDIR=C:\My Settings")",
                              R"(Guide.IDA /INIDIR="C:\My Settings")"},
                    QuoteCase{"severalBehindAQuotedBook",
                              R"("C:\My Books\G.IDA" "/TOPIC=A B" "/INIDIR=C:\S T")",
                              R"("C:\My Books\G.IDA" /TOPIC="A B" /INIDIR="C:\S T")"},
                    QuoteCase{"alone", R"("/TOPIC=A B")", R"(/TOPIC="A B")"},
                    QuoteCase{"lowerCaseBehindATab", "G.IDA\t\"/topic=A B\"", "G.IDA\t/topic=\"A B\""},
                    QuoteCase{"valueQuotedAlready", R"(G.IDA /TOPIC="A B")", R"(G.IDA /TOPIC="A B")"},
                    QuoteCase{"insideAnotherValue", R"(G.IDA /TOPIC="See "/INIDIR=C:\S)",
                              R"(G.IDA /TOPIC="See "/INIDIR=C:\S)"},
                    QuoteCase{"bookInQuotes", R"("/dir/G.IDA")", R"("/dir/G.IDA")"},
                    QuoteCase{"nameWithoutLetters", R"("/=A B")", R"("/=A B")"},
                    QuoteCase{"noEqualsSign", R"("/TOPIC")", R"("/TOPIC")"},
                    QuoteCase{"loneQuote", R"(G.IDA ")", R"(G.IDA ")"}, QuoteCase{"emptyLine", "", ""}),
    [](const auto& row) { return row.param.name; });

struct LaunchCase
{
    const char* name;
    const char* commandLine;
    const char* program;
    const char* line;
};

class ToLaunchLineTest : public testing::TestWithParam<LaunchCase>
{
};

TEST_P(ToLaunchLineTest, commandLine_hasItsProgramInQuotes)
{
    const LaunchLine launch = ToLaunchLine(GetParam().commandLine);
    EXPECT_EQ(launch.program, GetParam().program);
    EXPECT_EQ(launch.line, GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ToLaunchLineTest,
    testing::Values(LaunchCase{"quotedProgram", R"("C:\Program Files\Web\browse.exe" C:\DIR\page.htm)",
                               R"(C:\Program Files\Web\browse.exe)",
                               R"("C:\Program Files\Web\browse.exe" C:\DIR\page.htm)"},
                    LaunchCase{"unquotedProgramEndsAtTheFirstBlank", R"(C:\Program Files\Web\browse.exe a)",
                               R"(C:\Program)", R"("C:\Program" Files\Web\browse.exe a)"},
                    LaunchCase{"documentKeepsItsQuotes", R"(web.exe "C:\My Books\a.htm")", "web.exe",
                               R"("web.exe" "C:\My Books\a.htm")"},
                    LaunchCase{"programAlone", "web.exe", "web.exe", R"("web.exe")"},
                    LaunchCase{"blanksBeforeTheProgram", "  web.exe a", "web.exe", R"("web.exe" a)"},
                    LaunchCase{"quoteNeverClosed", R"("C:\My Web)", R"(C:\My Web)", R"("C:\My Web")"},
                    LaunchCase{"blanksOnly", "   ", "", ""}, LaunchCase{"empty", "", "", ""}),
    [](const auto& row) { return row.param.name; });

TEST(IsBatchFile, programsThatTheShellWouldRun_areTold)
{
    EXPECT_TRUE(IsBatchFile(R"(C:\web.bat)"));
    EXPECT_TRUE(IsBatchFile(R"(C:\web.CMD)"));
    EXPECT_TRUE(IsBatchFile(R"(C:\web.Bat. .)"));
    EXPECT_FALSE(IsBatchFile(R"(C:\web.exe)"));
    EXPECT_FALSE(IsBatchFile(R"(C:\web.bat.exe)"));
    EXPECT_FALSE(IsBatchFile(R"(C:\bat)"));
    EXPECT_FALSE(IsBatchFile(" ."));
    EXPECT_FALSE(IsBatchFile(""));
}

} // namespace
} // namespace ls
