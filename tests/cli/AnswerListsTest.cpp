#include "cli/AnswerLists.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

TEST(SplitAnswers, lists_arePartedBySemicolonsAndCommas)
{
    EXPECT_EQ(SplitAnswers("YES,NO;-;A"), (AnswerLists{{"YES", "NO"}, {}, {"A"}}));
    EXPECT_EQ(SplitAnswers(""), (AnswerLists{{""}}));
    EXPECT_EQ(SplitAnswers("-,A"), (AnswerLists{{"-", "A"}}));
    EXPECT_EQ(SplitAnswers(",YES"), (AnswerLists{{"", "YES"}}));
}

TEST(ReadAnswersJson, listsOfLists_areRead)
{
    EXPECT_EQ(ReadAnswersJson(" [ [ \"A,B\" , \"\" ] , [ ] ]\n"), (AnswerLists{{"A,B", ""}, {}}));
    EXPECT_EQ(ReadAnswersJson("[]"), AnswerLists{});
    EXPECT_EQ(ReadAnswersJson("[[\"\\\"\\\\\\/\\n\\u00e9\\ud83d\\ude00\"]]"),
              (AnswerLists{{"\"\\/\n\xC3\xA9\xF0\x9F\x98\x80"}}));
}

TEST(ReadAnswersJson, anythingElse_isRefused)
{
    for (const char* text : {"", "[", "[[]", "[\"A\"]", "[[1]]", "[[\"A\"],]", "[[\"A\",]]", "{}", "[[\"A]]",
                             "[[]] x", "[[\"\\x\"]]", "[[\"\\u12g4\"]]", "[[\"\\u12\"]]", "[[\"\\ud800\"]]",
                             "[[\"\\ud800\\u0041\"]]", "[[\"\\udc00\"]]", "[[\"\n\"]]", "[[\"\\"}) {
        EXPECT_EQ(ReadAnswersJson(text), std::nullopt) << text;
    }
}

TEST(MeantAnswer, shorthands_standForChoices)
{
    const std::vector<std::string> choices{"? - unsure", "YES", "#9"};
    EXPECT_EQ(MeantAnswer("?", choices), "? - unsure");
    EXPECT_EQ(MeantAnswer("#2", choices), "YES");
    EXPECT_EQ(MeantAnswer("#9", choices), "#9"); // here "#9" is the name of a choice
    EXPECT_EQ(MeantAnswer("#4", choices), "#4");
    EXPECT_EQ(MeantAnswer("#0", choices), "#0");
    EXPECT_EQ(MeantAnswer("#", choices), "#");
    EXPECT_EQ(MeantAnswer("#2x", choices), "#2x");
    EXPECT_EQ(MeantAnswer("", choices), "");
}

} // namespace
} // namespace ls
