#include "browser/ProgramPath.h"

#include "support/RecordingProcesses.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct CommandRow
{
    const char* name;
    const char* command;
    const char* expected;
};

struct ProgramOfCommandTest : testing::TestWithParam<CommandRow>
{
};

TEST_P(ProgramOfCommandTest, programOfCommand_command_isItsProgram)
{
    EXPECT_EQ(ProgramOfCommand(GetParam().command), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, ProgramOfCommandTest,
    testing::Values(CommandRow{"quoted", R"("C:\Program Files\Web\browse.exe" -nohome "%1")",
                               R"(C:\Program Files\Web\browse.exe)"},
                    CommandRow{"quotedAlone", R"("C:\Web\browse.exe")", R"(C:\Web\browse.exe)"},
                    CommandRow{"unquoted", R"(C:\Web\browse.exe %1)", R"(C:\Web\browse.exe)"},
                    CommandRow{"unquotedWithBlank", R"(C:\Program Files\Web\browse.exe %1)", R"(C:\Program)"},
                    CommandRow{"noSwitch", "browse.exe", "browse.exe"},
                    CommandRow{"blanksAround", "   browse.exe %1  ", "browse.exe"},
                    CommandRow{"blanksAroundQuoted", "  \"my browse.exe\"  ", "my browse.exe"},
                    CommandRow{"quoteNeverClosed", "\"C:\\My Web\\browse.exe %1",
                               "C:\\My Web\\browse.exe %1"},
                    CommandRow{"oneCharacterInQuotes", "\"b\" %1", "b"},
                    CommandRow{"secondQuoteBelongsToThePath", "\"\" %1", "\" %1"},
                    CommandRow{"secondQuoteThenThird", "\"\"b\" %1", "\"b"},
                    CommandRow{"loneQuote", "\"", ""}, CommandRow{"quoteLater", "a\"b c\" d", "a\"b"},
                    CommandRow{"tabIsText", "browse.exe\t%1", "browse.exe\t%1"}, CommandRow{"empty", "", ""},
                    CommandRow{"blank", "   ", ""}),
    [](const auto& row) { return row.param.name; });

struct DocumentRow
{
    const char* name;
    PathRules rules;
    const char* folder;
    const char* document;
    const char* expected;
};

struct FullDocumentTest : testing::TestWithParam<DocumentRow>
{
};

TEST_P(FullDocumentTest, fullDocument_document_isPathOrAddress)
{
    const DocumentRow& row = GetParam();
    EXPECT_EQ(FullDocument(row.rules, row.folder, row.document), row.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, FullDocumentTest,
    testing::Values(DocumentRow{"bareName", WindowsPaths, "C:\\DIR", "page.htm", "C:\\DIR\\page.htm"},
                    DocumentRow{"bareNameAtRoot", WindowsPaths, "C:\\", "page.htm", "C:\\page.htm"},
                    DocumentRow{"path", WindowsPaths, "C:\\DIR", "D:\\page.htm", "D:\\page.htm"},
                    DocumentRow{"relativePath", WindowsPaths, "C:\\DIR", "sub\\page.htm", "sub\\page.htm"},
                    DocumentRow{"slashIsNoSeparator", WindowsPaths, "C:\\DIR", "sub/page.htm",
                                "C:\\DIR\\sub/page.htm"},
                    DocumentRow{"address", WindowsPaths, "C:\\DIR", "http://h/p", "http://h/p"},
                    DocumentRow{"addressInCapitals", WindowsPaths, "C:\\DIR", "HTTP://H/P", "HTTP://H/P"},
                    DocumentRow{"addressInMixedCase", WindowsPaths, "C:\\DIR", "HtTp://h", "HtTp://h"},
                    DocumentRow{"addressAnywhere", WindowsPaths, "C:\\DIR", "see http://h", "see http://h"},
                    DocumentRow{"safeAddress", WindowsPaths, "C:\\DIR", "https://h/p", "https://h/p"},
                    DocumentRow{"otherScheme", WindowsPaths, "C:\\DIR", "ftp://h", "C:\\DIR\\ftp://h"},
                    DocumentRow{"unixBareName", UnixPaths, "/home/u", "page.htm", "/home/u/page.htm"},
                    DocumentRow{"unixBareNameAtRoot", UnixPaths, "/", "page.htm", "/page.htm"},
                    DocumentRow{"unixPath", UnixPaths, "/home/u", "/d/page.htm", "/d/page.htm"},
                    DocumentRow{"unixBackslashIsText", UnixPaths, "/home/u", "a\\b.htm", "/home/u/a\\b.htm"},
                    DocumentRow{"unixSafeAddress", UnixPaths, "/home/u", "https://h", "https://h"}),
    [](const auto& row) { return row.param.name; });

TEST(QuotedIfBlankTest, quotedIfBlank_texts_quotedOnce)
{
    EXPECT_EQ(QuotedIfBlank("a b"), "\"a b\"");
    EXPECT_EQ(QuotedIfBlank("\"a b\""), "\"a b\"");
    EXPECT_EQ(QuotedIfBlank("ab"), "ab");
    EXPECT_EQ(QuotedIfBlank("a\tb"), "a\tb");
    EXPECT_EQ(QuotedIfBlank(""), "");
    EXPECT_EQ(QuotedIfBlank(" "), "\" \"");
}

struct ExpandVariablesTest : testing::Test
{
    test::RecordingProcesses processes;
    std::string text;

    Expansion::Result Expand(const std::string& from)
    {
        text = from;
        return ExpandVariables(processes, text).result;
    }
};

TEST_F(ExpandVariablesTest, expandVariables_several_areAllReplaced)
{
    processes.environment = {{"A", "one"}, {"B C", "two"}};
    EXPECT_EQ(Expand("%A%\\x\\%B C%.exe"), Expansion::Result::Done);
    EXPECT_EQ(text, "one\\x\\two.exe");
}

TEST_F(ExpandVariablesTest, expandVariables_valueWithVariable_isExpandedAgain)
{
    processes.environment = {{"A", "%B%/x"}, {"B", "b"}};
    EXPECT_EQ(Expand("%A%"), Expansion::Result::Done);
    EXPECT_EQ(text, "b/x");
}

TEST_F(ExpandVariablesTest, expandVariables_valueWithHalfAVariable_takesItsEndFromTheText)
{
    processes.environment = {{"A", "%B"}, {"B/x", "b"}};
    EXPECT_EQ(Expand("%A%/x%"), Expansion::Result::Done);
    EXPECT_EQ(text, "b");
}

TEST_F(ExpandVariablesTest, expandVariables_noName_isUndefined)
{
    EXPECT_EQ(Expand("a%%b"), Expansion::Result::Undefined);
    EXPECT_EQ(text, "a%%b");
}

TEST_F(ExpandVariablesTest, expandVariables_thousandAreDoneOneMoreIsNot)
{
    std::string thousand;
    processes.environment = {{"A", "a"}};
    for (int i = 0; i < 1000; ++i) {
        thousand += "%A%";
    }
    EXPECT_EQ(Expand(thousand), Expansion::Result::Done);
    EXPECT_EQ(text, std::string(1000, 'a'));
    EXPECT_EQ(Expand(thousand + "%A%"), Expansion::Result::Malformed);
}

TEST_F(ExpandVariablesTest, expandVariables_variableThatNamesItself_ends)
{
    processes.environment = {{"A", "%A%"}};
    EXPECT_EQ(Expand("%A%"), Expansion::Result::Malformed);
}

} // namespace
} // namespace ls
