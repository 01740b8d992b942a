#include "authoring/LogicBlock.h"

#include "LogicMeaning.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;
using test::CrLf;

std::string WithDefinitions(const std::string& definitions)
{
    return "<IXML>\r\n<LOGIC>\r\nx\r\n</LOGIC>\r\n<DEFINITIONS>\r\n" + definitions +
           "</DEFINITIONS>\r\n</IXML>\r\n";
}

Strings Lost(const LogicBlock& block)
{
    Strings lost;
    for (const LostPart& part : block.lost) {
        lost.push_back(part.what);
    }
    return lost;
}

std::string Build(const LogicBlock& block)
{
    test::TestSeams world;
    return BuildLogicBlock(block, world.Get()).value_or("nothing");
}

TEST(ParseLogicBlock, nothing_isAnEmptyBlock)
{
    const LogicBlock block = ParseLogicBlock("");
    EXPECT_EQ(test::Describe(block), "logic: \n");
}

TEST(ParseLogicBlock, lineEnds_areThoseOfABook)
{
    const LogicBlock block =
        ParseLogicBlock("<IXML>\r<LOGIC>\r\na\nb\rc\r\r\n<DEFINITIONS>\r<Q ID=A>one\ntwo\r"
                        "three</Q>");
    EXPECT_EQ(block.logicText, "a\nb\r\nc\r\n\r\n");
    ASSERT_EQ(block.variables.size(), 1U);
    EXPECT_EQ(block.variables[0].question, "one\ntwo\r\nthree");
    EXPECT_EQ(Lost(block), Strings());
}

TEST(ParseLogicBlock, entryOfMoreThan32000Characters_isReadWhole)
{
    const std::string line(20000, 'a');
    const LogicBlock block = ParseLogicBlock(WithDefinitions("<Q ID=A>" + line + "\r\n" + line + "</Q>\r\n"));
    EXPECT_EQ(block.variables.at(0).question, line + "\r\n" + line);
    EXPECT_EQ(Lost(block), Strings());
}

TEST(ParseLogicBlock, entryThatIsCutForItsBlanks_isNamed)
{
    const std::string text(20000, 'a');
    const std::string blanks(20000, ' ');
    const LogicBlock block =
        ParseLogicBlock(WithDefinitions("<Q ID=A>" + text + "\r\n" + blanks + "b</Q>\r\n"));
    EXPECT_EQ(block.variables.at(0).question, text + "\r\nb");
    EXPECT_EQ(
        Lost(block),
        Strings{"The text of \"A\", which the advisor cuts because of its blanks, would be shown whole."});
}

TEST(ParseLogicBlock, bareEntryThatHoldsAnother_isNamed)
{
    const LogicBlock block =
        ParseLogicBlock(WithDefinitions("<AV ID=GO>go\r\n<Q ID=A>a?</Q>\r\n</AV>\r\n<Q ID=B>b?</Q>\r\n"));
    EXPECT_EQ(Lost(block),
              Strings{"The advice for \"GO\" holds another entry, which would move with it behind "
                      "all questions."});
    EXPECT_EQ(block.bareEntries.at(0).text, "<AV ID=GO>go\r\n<Q ID=A>a?</Q>\r\n</AV>");
}

TEST(ParseLogicBlock, bareEntryWithABracketLine_isNamedWhereAQuestionFollows)
{
    const std::string entry = "<AV ID=GO>go\r\n  [on]</AV>\r\n";
    EXPECT_EQ(
        Lost(ParseLogicBlock(WithDefinitions(entry + "<Q ID=A>a?</Q>\r\n"))),
        Strings{"The advice for \"GO\" holds a line beginning with \"[\", which hides the questions behind "
                "it from the advisor; it would move behind all questions."});
    EXPECT_EQ(Lost(ParseLogicBlock(WithDefinitions("<Q ID=A>a?</Q>\r\n" + entry))), Strings());
}

TEST(ParseLogicBlock, bareEntryWithoutClosingTag_getsOne)
{
    const LogicBlock block = ParseLogicBlock(WithDefinitions("<AV ID=GO>go\r\non\r\n"));
    EXPECT_EQ(Lost(block), Strings{"The advice for \"GO\" has no \"</AV>\"; one would be added."});
    EXPECT_EQ(block.bareEntries.at(0).text, "<AV ID=GO>go\r\non\r\n</AV>");
}

TEST(ParseLogicBlock, lostParts_areInTheOrderOfTheirLines)
{
    const LogicBlock block =
        ParseLogicBlock(WithDefinitions("<Q ID=A>1</Q>\r\n* c\r\n<Q ID=A>2</Q>\r\ntext\r\n"));
    ASSERT_EQ(block.lost.size(), 3U);
    EXPECT_EQ(block.lost[0].line, 7);
    EXPECT_EQ(block.lost[1].line, 8);
    EXPECT_EQ(block.lost[2].line, 9);
}

TEST(ParseLogicBlock, longBlocks_areReadWhole)
{
    std::string definitions;
    for (int i = 1; i <= 20000; ++i) {
        const std::string name = "V" + std::to_string(i);
        definitions.append("<AV ID=").append(name).append("(1)>a</AV>").append("<AV ID=").append(name);
        definitions.append("(2)>b</AV>").append(i % 100 == 0 ? "\r\n" : " ");
    }
    const LogicBlock block = ParseLogicBlock(WithDefinitions(definitions));
    EXPECT_EQ(block.variables.size(), 20000U);
    EXPECT_EQ(block.choices.size(), 40000U);
    EXPECT_EQ(ParseLogicBlock(Build(block)).choices, block.choices);
}

struct TextRow
{
    const char* name;
    const char* logicText;
    const char* written; ///< between "<LOGIC>" and "<DEFINITIONS>"
};

struct LogicTexts : testing::TestWithParam<TextRow>
{
};

TEST_P(LogicTexts, text_isWrittenAs)
{
    LogicBlock block;
    block.logicText = GetParam().logicText;
    EXPECT_EQ(Build(block), std::string("<IXML>\r\n<LOGIC>\r\n") + GetParam().written +
                                "<DEFINITIONS>\r\n\r\n</DEFINITIONS>\r\n</IXML>\r\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, LogicTexts,
                         testing::Values(TextRow{"ended", "abc\r\n", "abc\r\n</LOGIC>\r\n"},
                                         TextRow{"notEnded", "abc", "abc\r\n</LOGIC>\r\n"},
                                         TextRow{"twoCharacters", "ab", "ab</LOGIC>\r\n"},
                                         TextRow{"oneCharacter", "*", "*</LOGIC>\r\n"},
                                         TextRow{"oneCharacterEnded", "*\r\n", "*\r\n</LOGIC>\r\n"},
                                         TextRow{"onlyLineEnd", "\r\n", "\r\n</LOGIC>\r\n"},
                                         TextRow{"endsInLf", "abc\n", "abc\n\r\n</LOGIC>\r\n"},
                                         TextRow{"blanksStay", "  abc  ", "  abc  \r\n</LOGIC>\r\n"}),
                         test::RowName());

struct EntryRow
{
    const char* name;
    std::string text;
    bool ownLines;
};

struct EntryTexts : testing::TestWithParam<EntryRow>
{
};

TEST_P(EntryTexts, questionsAndAdvice_takeTheSameThreeForms)
{
    LogicBlock block;
    block.logicText = "x\r\n";
    block.variables = {{"A", GetParam().text}};
    block.choices = {{"A", "1", GetParam().text}};
    const std::string between =
        GetParam().ownLines ? "\r\n" + GetParam().text + "\r\n" : std::string(GetParam().text);
    EXPECT_EQ(Build(block), "<IXML>\r\n<LOGIC>\r\nx\r\n</LOGIC>\r\n<DEFINITIONS>\r\n\r\n<Q ID=A>" + between +
                                "</Q>\r\n\r\n<AV ID=A(1)>" + between +
                                "</AV>\r\n\r\n</DEFINITIONS>\r\n</IXML>\r\n");
}

INSTANTIATE_TEST_SUITE_P(Rows, EntryTexts,
                         testing::Values(EntryRow{"empty", "", false}, EntryRow{"short_", "text", false},
                                         EntryRow{"of59", std::string(59, 'x'), false},
                                         EntryRow{"of60", std::string(60, 'x'), true},
                                         EntryRow{"twoLines", "a\r\nb", true},
                                         EntryRow{"lineEndOnly", "\r\n", true},
                                         EntryRow{"loneLf", "a\nb", false}),
                         test::RowName());

TEST(BuildLogicBlock, emptyLogicText_isRefused)
{
    test::TestSeams world;
    LogicBlock block;
    block.variables = {{"A", "a?"}};
    EXPECT_EQ(BuildLogicBlock(block, world.Get()), std::nullopt);
    EXPECT_EQ(world.messages.Take(),
              Strings{"exclamation|Lodestar Advisor|There is no logic information to save."});
}

TEST(BuildLogicBlock, choices_followTheirVariableInTheirOwnOrder)
{
    LogicBlock block;
    block.logicText = "x\r\n";
    block.variables = {{"B", ""}, {"A", ""}};
    block.choices = {{"a", "2", ""}, {"B", "1", ""}, {"GONE", "1", ""}, {"A", "1", ""}};
    EXPECT_EQ(Build(block), CrLf({"<IXML>", "<LOGIC>", "x", "</LOGIC>", "<DEFINITIONS>", "", "<Q ID=B></Q>",
                                  "", "<AV ID=B(1)></AV>", "", "<Q ID=A></Q>", "", "<AV ID=A(2)></AV>", "",
                                  "<AV ID=A(1)></AV>", "", "</DEFINITIONS>", "</IXML>"}));
}

TEST(LostPartsQuestion, namesTheFirstFive)
{
    std::vector<LostPart> lost;
    for (int line = 3; line <= 7; ++line) {
        lost.push_back({line, "Gone."});
    }
    const std::string five =
        "Not everything in this topic's logic can be kept as it was read:\n\nLine 3 of the block: "
        "Gone.\nLine 4 "
        "of the block: Gone.\nLine 5 of the block: Gone.\nLine 6 of the block: Gone.\nLine 7 of the block: "
        "Gone.";
    EXPECT_EQ(LostPartsQuestion(lost), five + "\n\nGo on all the same?");
    lost.push_back({8, "Gone."});
    EXPECT_EQ(LostPartsQuestion(lost), five + "\n(1 more)\n\nGo on all the same?");
}

} // namespace
} // namespace ls
