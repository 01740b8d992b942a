#include "files/PathParts.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct SplitCase
{
    const char* name;
    PathRules rules;
    const char* path;
    const char* expected; ///< "drive|folder|name|extension"
};

struct SplitTable : testing::TestWithParam<SplitCase>
{
};

TEST_P(SplitTable, split_path_givesParts)
{
    const PathParts parts = SplitPath(GetParam().rules, GetParam().path);
    EXPECT_EQ(parts.drive + "|" + parts.folder + "|" + parts.name + "|" + parts.extension,
              GetParam().expected);
}

const SplitCase SplitCases[] = {
    {"windowsFull", WindowsPaths, "c:\\books\\x.ida", "c:|\\books\\|x|.ida"},
    {"windowsPattern", WindowsPaths, "c:\\books\\*.ida", "c:|\\books\\|*|.ida"},
    {"windowsRoot", WindowsPaths, "c:\\", "c:|\\|*|.*"},
    {"windowsDriveRelative", WindowsPaths, "c:name", "c:||name|"},
    {"windowsBareName", WindowsPaths, "x.ida", "||x|.ida"},
    {"windowsLongDrive", WindowsPaths, "file:\\x", "file:|\\|x|"},
    {"windowsDotInFolder", WindowsPaths, "c:\\a.b\\c", "c:|\\a.b\\|c|"},
    {"unixFull", UnixPaths, "/books/x.ida", "|/books/|x|.ida"},
    {"unixColonIsText", UnixPaths, "/a:b/x", "|/a:b/|x|"},
    {"unixRoot", UnixPaths, "/", "|/|*|.*"},
    {"unixFolder", UnixPaths, "/books/", "|/books/|*|.*"},
    {"unixBarePattern", UnixPaths, "*.exe", "||*|.exe"},
    {"typeOnly", UnixPaths, "/books/.htm", "|/books/|*|.htm"},
    {"twoDots", UnixPaths, "a.b.c", "||a.b|.c"},
    {"trailingDot", UnixPaths, "a.", "||a|."},
    {"empty", UnixPaths, "", "||*|.*"},
};

INSTANTIATE_TEST_SUITE_P(Paths, SplitTable, testing::ValuesIn(SplitCases), test::RowName());

struct MatchCase
{
    const char* pattern;
    const char* name;
    bool fits;
};

TEST(MatchesPattern, wildcards_starQuestionMarkAndCase)
{
    const MatchCase rows[] = {
        {"*.ida", "Guide.IDA", true},
        {"*.IDA", "guide.ida", true},
        {"*.ida", "Guide.IDAX", false},
        {"*.*", "noDot", true},
        {"*", "anything", true},
        {"g?ide.*", "Guide.x", true},
        {"g?ide.*", "Giide", false},
        {"*a*b", "xaybzb", true},
        {"*a*b", "xaybzbc", false},
        {"", "x", false},
        {"", "", true},
        {"?", "", false},
        {"a*", "a", true},
        {"**a", "ba", true},
        {"*.ida*", "x.ida.bak", true},
        {"[a].ida", "[A].IDA", true},
    };
    for (const MatchCase& row : rows) {
        EXPECT_EQ(MatchesPattern(row.name, row.pattern), row.fits) << row.pattern << " " << row.name;
    }
}

TEST(MatchesPattern, manyStars_endQuickly)
{
    std::string pattern;
    for (int i = 0; i < 30; ++i) {
        pattern += "*a";
    }
    EXPECT_FALSE(MatchesPattern(std::string(5000, 'a') + "b", pattern));
}

} // namespace
} // namespace ls
