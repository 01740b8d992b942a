#include "advisor/LogicLine.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct LineCase
{
    const char* name;
    const char* line;
    LogicLine kind;
};

class LogicLines : public testing::TestWithParam<LineCase>
{
};

TEST_P(LogicLines, aLine_isOfItsKind)
{
    EXPECT_EQ(ClassifyLogicLine(GetParam().line), GetParam().kind) << GetParam().line;
}

INSTANTIATE_TEST_SUITE_P(
    Table, LogicLines,
    testing::Values(LineCase{"empty", "", LogicLine::Empty},
                    LineCase{"comment", "* NOTE", LogicLine::Comment},
                    LineCase{"commentWithRule", "*A(B)=C(D)", LogicLine::Comment},
                    LineCase{"commentWithClosing", "*</LOGIC>", LogicLine::Comment},
                    LineCase{"rule", "A(B) = C(D)", LogicLine::Rule},
                    LineCase{"ruleWithoutConditions", "A(B)=", LogicLine::Rule},
                    LineCase{"ruleOfSignAlone", "=", LogicLine::Rule},
                    LineCase{"ruleWithStarLater", "A(B)=C(D)*", LogicLine::Rule},
                    LineCase{"ruleWithClosing", "A=</LOGIC>", LogicLine::Rule},
                    LineCase{"ruleWithOtherTag", "A=<DEFINITION S", LogicLine::Rule},
                    LineCase{"command", "TARGET A", LogicLine::Command},
                    LineCase{"unknownCommand", "GO", LogicLine::Command},
                    LineCase{"tabAlone", "\t", LogicLine::Command},
                    LineCase{"definitions", "<DEFINITIONS>", LogicLine::Definitions},
                    LineCase{"definitionsWithinLine", "NOW <DEFINITIONS> BEGIN", LogicLine::Definitions},
                    LineCase{"definitionsInComment", "*<DEFINITIONS>", LogicLine::Definitions},
                    LineCase{"definitionsInRule", "A(B)=<DEFINITIONS>", LogicLine::Definitions},
                    LineCase{"definitionsInRuleBetweenBlanks", "A = < DEFINITIONS >", LogicLine::Definitions},
                    LineCase{"definitionsInCommandBetweenBlanks", "< DEFINITIONS >", LogicLine::Command},
                    LineCase{"definitionsInCommentBetweenBlanks", "*A=< DEFINITIONS >", LogicLine::Comment},
                    LineCase{"definitionsInLowerCase", "<definitions>", LogicLine::Command},
                    LineCase{"definitionsClosing", "</DEFINITIONS>", LogicLine::Command},
                    LineCase{"logicOpening", "<LOGIC>", LogicLine::LogicStart},
                    LineCase{"logicClosing", "</LOGIC>", LogicLine::LogicEnd},
                    LineCase{"logicClosingAndMore", "</LOGIC> X", LogicLine::Command},
                    LineCase{"blockOpening", "<IXML>", LogicLine::BlockStart},
                    LineCase{"blockClosing", "</IXML>", LogicLine::BlockEnd},
                    LineCase{"bracket", "[TITLE]", LogicLine::Command}),
    [](const auto& info) { return info.param.name; });

TEST(LogicLine, removeBlanks_rule_keepsAllElse)
{
    std::string rule = " A ( B )\t= C(D E)  ";
    RemoveBlanks(rule);
    EXPECT_EQ(rule, "A(B)\t=C(DE)");
}

struct CommandCase
{
    const char* line;
    LogicCommand::Kind kind;
    const char* argument;
};

TEST(LogicLine, splitCommand_takesWordAndArgument)
{
    using Kind = LogicCommand::Kind;
    for (const CommandCase& one :
         {CommandCase{"ASSUME A(B) C(D)", Kind::Assume, "A(B) C(D)"}, CommandCase{"ASSUME", Kind::Assume, ""},
          CommandCase{"TARGET RISK", Kind::Target, "RISK"},
          CommandCase{"TARGET  RISK", Kind::Target, " RISK"},
          CommandCase{"DEFINE A@MY TOPIC", Kind::Define, "A@MY TOPIC"},
          CommandCase{"DEFINES A@B", Kind::Unknown, "A@B"}, CommandCase{"TARGET\tA", Kind::Unknown, ""},
          CommandCase{"target A", Kind::Unknown, "A"}, CommandCase{"", Kind::Unknown, ""}}) {
        const LogicCommand command = SplitCommand(one.line);
        EXPECT_EQ(command.kind, one.kind) << one.line;
        EXPECT_EQ(command.argument, one.argument) << one.line;
    }
}

} // namespace
} // namespace ls
