#include "base/SplitCommandLine.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

struct Row
{
    const char* name;
    const char* commandLine;
    Strings expected;
};

struct SplitCommandLineTest : testing::TestWithParam<Row>
{
};

TEST_P(SplitCommandLineTest, splitCommandLine_line_givesItsWords)
{
    EXPECT_EQ(SplitCommandLine(GetParam().commandLine), GetParam().expected);
}

const Row Rows[] = {
    {"empty", "", {}},
    {"blanks", "   ", {}},
    {"oneWord", "web", {"web"}},
    {"twoWords", "web page.htm", {"web", "page.htm"}},
    {"blanksAround", "  web   page.htm  ", {"web", "page.htm"}},
    {"quotedProgram", "\"/opt/My Web/web\" /d/page.htm", {"/opt/My Web/web", "/d/page.htm"}},
    {"quotedDocument", "web \"/d/my page.htm\"", {"web", "/d/my page.htm"}},
    {"emptyQuotes", "\"\" page.htm", {"", "page.htm"}},
    {"emptyQuotesAtTheEnd", "web \"\"", {"web", ""}},
    {"loneQuoteAtTheEnd", "web \"", {"web", ""}},
    {"noClosingQuote", "\"/opt/My Web/web page.htm", {"/opt/My Web/web page.htm"}},
    {"quoteInsideWord", "web /d/the\"best\".htm x", {"web", "/d/the\"best\".htm", "x"}},
    {"quoteInsideQuotedWord", "web \"/d/my\"best\"page.htm\"", {"web", "/d/my\"best\"page.htm"}},
    {"blanksInQuotesKept", "\" a  b \" c", {" a  b ", "c"}},
    {"nothingElseIsSpecial", "a\tb $HOME ; 'c d' \\ %41", {"a\tb", "$HOME", ";", "'c", "d'", "\\", "%41"}},
};

INSTANTIATE_TEST_SUITE_P(Table, SplitCommandLineTest, testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
