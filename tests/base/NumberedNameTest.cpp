#include "base/StdSubs.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct NameCase
{
    const char* name;
    PathRules rules;
    const char* path;
    const char* proposal;
};

struct NumberedNameTest : testing::TestWithParam<NameCase>
{
};

TEST_P(NumberedNameTest, numberedName_countsUp)
{
    EXPECT_EQ(NumberedName(GetParam().rules, GetParam().path), GetParam().proposal);
}

const NameCase NameCases[] = {
    {"noPath", UnixPaths, "", "Ideas (001).ida"},
    {"noNumber", UnixPaths, "Guide.IDA", "Guide (001).IDA"},
    {"number", UnixPaths, "Guide (001).IDA", "Guide (002).IDA"},
    {"numberWithoutZeros", UnixPaths, "Guide (7).IDA", "Guide (008).IDA"},
    {"tens", UnixPaths, "Guide (099).IDA", "Guide (100).IDA"},
    {"aboveThreeDigits", UnixPaths, "Book (999).IDA", "Book (1000).IDA"},
    {"aboveSixteenBits", UnixPaths, "Book (32767).IDA", "Book (32768).IDA"},
    {"noType", UnixPaths, "Guide", "Guide (001).IDA"},
    {"otherType", UnixPaths, "notes.txt", "notes (001).IDA"},
    {"twoDots", UnixPaths, "a.b.ida", "a.b (001).IDA"},
    {"onlyADotInFront", UnixPaths, ".guide", ".guide (001).IDA"},
    {"textInParentheses", UnixPaths, "Guide (draft).IDA", "Guide (001).IDA"},
    {"emptyParentheses", UnixPaths, "Guide ().IDA", "Guide (001).IDA"},
    {"negativeNumber", UnixPaths, "Guide (-5).IDA", "Guide (001).IDA"},
    {"textBehindTheParentheses_isDropped", UnixPaths, "Guide (001) final.IDA", "Guide (002).IDA"},
    {"twoParentheses_theFirstCounts", UnixPaths, "A (4) (8).IDA", "A (005).IDA"},
    {"openOnly", UnixPaths, "Guide (1.IDA", "Guide (1 (001).IDA"},
    {"closedBeforeOpen", UnixPaths, "Guide )(.IDA", "Guide )( (001).IDA"},
    {"folderStays", UnixPaths, "/b/Guide.IDA", "/b/Guide (001).IDA"},
    {"root", UnixPaths, "/Guide.IDA", "/Guide (001).IDA"},
    {"dotInTheFolder", UnixPaths, "/b.old/Guide", "/b.old/Guide (001).IDA"},
    {"numberInTheFolder", UnixPaths, "/b (4)/Guide.IDA", "/b (4)/Guide (001).IDA"},
    {"backslashIsNoSeparatorOnUnix", UnixPaths, "b (4)\\Guide.IDA", "b (005).IDA"},
    {"windowsFolder", WindowsPaths, "C:\\b.x (4)\\Guide", "C:\\b.x (4)\\Guide (001).IDA"},
    {"windowsDrive", WindowsPaths, "C:Guide (003).IDA", "C:Guide (004).IDA"},
    {"windowsRoot", WindowsPaths, "C:\\Guide.IDA", "C:\\Guide (001).IDA"},
};

INSTANTIATE_TEST_SUITE_P(Paths, NumberedNameTest, testing::ValuesIn(NameCases),
                         [](const auto& row) { return row.param.name; });

} // namespace
} // namespace ls
