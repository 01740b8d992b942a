#include "render/pane/FindInText.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

#include <string>

namespace ls {
namespace {

using Ranges = std::vector<TextRange>;

struct Row
{
    const char* name;
    const char* text;
    const char* sought;
    Ranges matches;
};

class FindTable : public testing::TestWithParam<Row>
{
};

TEST_P(FindTable, findAll_givesEveryMatch)
{
    EXPECT_EQ(FindAll(GetParam().text, GetParam().sought), GetParam().matches);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, FindTable,
    testing::Values(Row{"nothingSought", "abc", "", {}}, Row{"nothingThere", "abc", "d", {}},
                    Row{"emptyText", "", "a", {}}, Row{"longerThanTheText", "ab", "abc", {}},
                    Row{"everyCase", "Fish FISH fish", "fISh", {{0, 4}, {5, 9}, {10, 14}}},
                    Row{"accents", "\xC9T\xC9", "\xE9t\xE9", {{0, 3}}},
                    Row{"noOverlaps", "aaaaa", "aa", {{0, 2}, {2, 4}}},
                    Row{"brokenLine", "quick\n   fox", "quick fox", {{0, 12}}},
                    Row{"tab", "a\tb", "a b", {{0, 3}}}, Row{"severalBlanks", "a    b", "a b", {{0, 6}}},
                    Row{"severalBlanksSought", "a b", "a   b", {{0, 3}}},
                    Row{"blankIsNeeded", "ab", "a b", {}}, Row{"gapsOnly", "a  b\n c", " ", {{1, 3}, {4, 6}}},
                    Row{"gapAtTheStart", "xa   a", " a", {{2, 6}}},
                    Row{"gapAtTheEnd", "a ab", "a ", {{0, 2}}},
                    Row{"gapThatDoesNotMatch", "   b   a", " a", {{4, 8}}},
                    Row{"startAgainInAMatchBegun", "aab", "ab", {{1, 3}}}),
    test::RowName());

TEST(FindAll, longGaps_areWalkedOnce)
{
    // A search that walks on from each of these blanks would take hours.
    const std::string text = std::string(4'000'000, ' ') + "a";
    EXPECT_EQ(FindAll(text, " b"), Ranges{});
    EXPECT_EQ(FindAll(text, " a"), (Ranges{{0, text.size()}}));
}

TEST(NextMatch, from_isTheFirstThatBeginsThereOrBehind)
{
    const Ranges matches = {{2, 4}, {6, 8}};
    EXPECT_EQ(NextMatch(matches, 0), 0U);
    EXPECT_EQ(NextMatch(matches, 2), 0U);
    EXPECT_EQ(NextMatch(matches, 3), 1U);
    EXPECT_EQ(NextMatch(matches, 6), 1U);
    EXPECT_EQ(NextMatch(matches, 7), 0U) << "from the start again";
    EXPECT_EQ(NextMatch(Ranges{}, 0), std::nullopt);
}

TEST(PreviousMatch, from_isTheLastThatBeginsBefore)
{
    const Ranges matches = {{2, 4}, {6, 8}};
    EXPECT_EQ(PreviousMatch(matches, 9), 1U);
    EXPECT_EQ(PreviousMatch(matches, 6), 0U);
    EXPECT_EQ(PreviousMatch(matches, 3), 0U);
    EXPECT_EQ(PreviousMatch(matches, 2), 1U) << "from the end again";
    EXPECT_EQ(PreviousMatch(Ranges{}, 5), std::nullopt);
}

} // namespace
} // namespace ls
