#include "authoring/SpecialLines.h"

#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

std::string Word(LineMeaning meaning)
{
    switch (meaning) {
    case LineMeaning::StartsTopic:
        return "topic";
    case LineMeaning::HidesRest:
        return "hides";
    case LineMeaning::EndsBook:
        return "end";
    case LineMeaning::OpensIndex:
        return "index";
    case LineMeaning::BeginsLogic:
        return "logic";
    case LineMeaning::OpensEndless:
        return "endless";
    }
    return {};
}

// "2 topic" for each line found.
Strings Found(std::string_view text)
{
    Strings found;
    for (const SpecialLine& special : FindSpecialLines(text)) {
        found.push_back(std::to_string(special.line) + " " + Word(special.meaning));
    }
    return found;
}

struct LineCase
{
    const char* name;
    std::string text;
    Strings found;
};

struct SpecialLines : testing::TestWithParam<LineCase>
{
};

TEST_P(SpecialLines, found_asTheScanWouldTakeThem)
{
    EXPECT_EQ(Found(GetParam().text), GetParam().found);
}

const LineCase Cases[] = {
    {"nothing", "", {}},
    {"ordinary", test::CrLf({"text", "", "a [B] c", "<H1>x</H1>", "</IXML>"}), {}},
    {"header", test::CrLf({"text", "[B]"}), {"2 topic"}},
    {"headerWithoutItsEnd", test::CrLf({"[B c"}), {"1 topic"}},
    {"headerOnTheLastLineWithoutLineEnd", "text\r\n[B]", {"2 topic"}},
    {"blankBeforeTheBracket", test::CrLf({" [B]"}), {}},
    {"bracketsAlone", test::CrLf({"[]", "["}), {"1 hides", "2 hides"}},
    {"end", test::CrLf({"[EOF]"}), {"1 end"}},
    {"endInLowerCaseIsATopic", test::CrLf({"[eof]"}), {"1 topic"}},
    {"endWithABlankIsATopic", test::CrLf({"[EOF] "}), {"1 topic"}},
    {"index", test::CrLf({"a", "b", "<INDEX>"}), {"3 index"}},
    {"indexOtherwiseWritten", test::CrLf({"<index>", " <INDEX>", "<INDEX> "}), {}},
    {"logic", test::CrLf({"<IXML>"}), {"1 logic"}},
    {"logicInAnyCaseWithBlanks", test::CrLf({"  <ixml> "}), {"1 logic"}},
    {"logicWithMoreOnTheLine", test::CrLf({"<IXML>x"}), {}},
    {"loneLfIsNoLineEnd", "a\n[B]\r\n", {}},
    {"note", test::CrLf({"<XREF TOPIC=B>", "[C]", "[EOF]", "<INDEX>", "</XREF>", "x"}), {}},
    {"behindANote", test::CrLf({"<XREF TOPIC=B>", "n</XREF>", "[C]"}), {"3 topic"}},
    {"noteOnOneLine", test::CrLf({"<XREF TOPIC=B>n</XREF>", "[C]"}), {"2 topic"}},
    {"noteOnTheLastLine", "<XREF TOPIC=B>n</XREF>", {}},
    {"noteEndedTheOtherWay", test::CrLf({"<XREF TOPIC=B>", "n", "<\\"}), {}},
    {"logicInANote", test::CrLf({"<XREF TOPIC=B>", "<IXML>", "</XREF>"}), {"2 logic"}},
    {"endlessNote", test::CrLf({"x", "<XREF TOPIC=B>", "n"}), {"2 endless"}},
    {"endlessNoteThenATopic", test::CrLf({"<XREF TOPIC=B>", "n", "[C]"}), {"1 endless", "3 topic"}},
    {"endTagInsideTheTarget", test::CrLf({"<XREF TOPIC=</XREF>", "n"}), {"1 endless"}},
    {"noteWithoutBracket", test::CrLf({"<XREF TOPIC=B", "n", "</XREF>"}), {}},
    {"noteInLowerCaseIsText", test::CrLf({"<xref topic=B>", "[C]"}), {"2 topic"}},
    {"noteCutAtItsLimit",
     test::CrLf({"<XREF TOPIC=B>"}) + std::string(32001, 'n') + "\r\n[C]\r\n",
     {"3 topic"}},
};

INSTANTIATE_TEST_SUITE_P(Lines, SpecialLines, testing::ValuesIn(Cases), test::RowName());

TEST(SpecialLinesQuestion, everyMeaning_saysWhatItWouldDo)
{
    EXPECT_EQ(
        SpecialLinesQuestion(FindSpecialLines(test::CrLf({"[B\xE9]", "[]", "[EOF]", "<INDEX>", "<IXML>"}))),
        "Not everything here would be text when the saved book is opened again:\n"
        "\nLine 1, \"[B\xC3\xA9]\", would start a new topic."
        "\nLine 2, \"[]\", would hide the text behind it."
        "\nLine 3, \"[EOF]\", would end the book: no topic behind it would be found."
        "\nLine 4, \"<INDEX>\", would open an index: the book would list no topics."
        "\nLine 5, \"<IXML>\", would begin the topic's advice: the lines behind it would not be shown."
        "\n\nKeep the text as it is?");
    EXPECT_EQ(SpecialLinesQuestion(FindSpecialLines(test::CrLf({"<XREF TOPIC=B>"}))),
              "Not everything here would be text when the saved book is opened again:\n"
              "\nLine 1, \"<XREF TOPIC=B>\", opens a cross reference that does not end: it would swallow the "
              "topics behind it."
              "\n\nKeep the text as it is?");
}

TEST(SpecialLinesQuestion, moreThanFive_countsTheOthers)
{
    const std::string question =
        SpecialLinesQuestion(FindSpecialLines(test::CrLf({"[]", "[]", "[]", "[]", "[]", "[]", "[]"})));
    EXPECT_NE(question.find("\nLine 5, "), std::string::npos);
    EXPECT_EQ(question.find("\nLine 6, "), std::string::npos);
    EXPECT_NE(question.find("\n(2 more)\n"), std::string::npos);
}

TEST(SpecialLinesQuestion, longLine_isShortened)
{
    const std::string line = "[" + std::string(100, 'x') + "]";
    EXPECT_NE(SpecialLinesQuestion(FindSpecialLines(line)).find("\"[" + std::string(59, 'x') + "...\""),
              std::string::npos);
}

} // namespace
} // namespace ls
