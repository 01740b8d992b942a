#include "authoring/LogicFaults.h"

#include "LogicMeaning.h"
#include "base/Text.h"
#include "support/RowName.h"
#include "support/TestSeams.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

LogicBlock BlockOf(const std::string& logicText, const std::string& question = {},
                   const std::string& advice = {})
{
    LogicBlock block;
    block.logicText = test::BookLines(logicText);
    block.variables = {{"AGE", test::BookLines(question)}};
    block.choices = {{"AGE", "OLD", test::BookLines(advice)}};
    return block;
}

Strings Sentences(const LogicBlock& block)
{
    Strings sentences;
    for (const LogicFault& fault : FindLogicFaults(block)) {
        sentences.push_back(fault.what);
    }
    return sentences;
}

struct FaultRow
{
    const char* name;
    const char* logic;
    const char* question;
    const char* advice;
    const char* sentence; ///< nullptr: no fault is found
};

struct FaultRows : testing::TestWithParam<FaultRow>
{
};

TEST_P(FaultRows, line_isNamedWithItsConsequence)
{
    const FaultRow& row = GetParam();
    EXPECT_EQ(Sentences(BlockOf(row.logic, row.question, row.advice)),
              row.sentence == nullptr ? Strings() : Strings{row.sentence});
}

const char* const Longest = "0123456789012345678901234567890123456789012345678901234567"; // 58 characters

const FaultRow Faults[] = {
    {"plain", "TARGET AGE\n* x\nAV(1) = AGE(OLD)\n", "How old?", "Rest.", nullptr},
    {"topic", "x\n[B]\n", "", "", R"~(The logic text, line 2: "[B]" would start a new topic.)~"},
    {"endOfBook", "[EOF]\n", "", "",
     R"~(The logic text, line 1: "[EOF]" would end the book: no topic behind it would be found.)~"},
    {"bracket", "[\n", "", "", R"~(The logic text, line 1: "[" would end the block.)~"},
    {"indentedBracketInLogic", " [B]\n", "", "", nullptr},
    {"index", "<INDEX>\n", "", "",
     R"~(The logic text, line 1: "<INDEX>" would open an index: the book would list no topics.)~"},
    {"endlessNote", "<XREF TOPIC=A>\n", "", "",
     R"~(The logic text, line 1: "<XREF TOPIC=A>" opens a cross reference that does not end: it would swallow )~"
     R"~(the topics behind it.)~"},
    {"closingLogic", "x\n </logic> \n", "", "",
     R"~(The logic text, line 2: "</logic>" would end the logic text and not be kept.)~"},
    {"definitions", "* about <definitions>\n", "", "",
     R"~(The logic text, line 1: "* about <definitions>" would open the definitions.)~"},
    {"definitionsInRule", "A(B) = < DEFINITIONS >\n", "", "",
     R"~(The logic text, line 1: "A(B) = < DEFINITIONS >" would open the definitions.)~"},
    {"blanksInNoRule", "TARGET < DEFINITIONS >\n", "", "", nullptr},
    {"openingBlock", "<IXML>\n", "", "",
     R"~(The logic text, line 1: "<IXML>" is no logic line, so the advisor would refuse the block.)~"},
    {"openingLogic", "<LOGIC>\n", "", "",
     R"~(The logic text, line 1: "<LOGIC>" is no logic line, so the advisor would refuse the block.)~"},
    {"closingBlock", "</IXML>\n", "", "",
     R"~(The logic text, line 1: "</IXML>" is no logic line, so the advisor would refuse the block.)~"},
    {"closingQuestion", "x", "a\nb</Q>c", "", R"~(The question for "AGE", line 2: "b</Q>c" would end it.)~"},
    {"closingInLowerCase", "x", "a</q>", "", nullptr},
    {"closingAdviceInQuestion", "x", "a</AV>", "", nullptr},
    {"closingAdvice", "x", "", "a</AV>", R"~(The advice for "AGE(OLD)", line 1: "a</AV>" would end it.)~"},
    {"closingDefinitions", "x", "", "a </definitions>",
     R"~(The advice for "AGE(OLD)", line 1: "a </definitions>" would end the definitions.)~"},
    {"openingQuestion", "x", "", "a\nsee <q id=B>",
     R"~(The advice for "AGE(OLD)", line 2: "see <q id=B>" would open another entry.)~"},
    {"openingAdvice", "x", "<AV ID=x>", "",
     R"~(The question for "AGE", line 1: "<AV ID=x>" would open another entry.)~"},
    {"openingInComment", "x", "a\n* <AV ID=x>", "", nullptr},
    {"openingInCommentOnTheTagsLine", "x", "* <AV ID=x>", "",
     R"~(The question for "AGE", line 1: "* <AV ID=x>" would open another entry.)~"},
    {"bracketOnTheTagsLine", "x", "[B]", "[C]", nullptr},
    {"topicInQuestion", "x", "a\n[B]", "",
     R"~(The question for "AGE", line 2: "[B]" would start a new topic.)~"},
    {"indentedBracket", "x", "a\n  [B]", "",
     R"~(The question for "AGE", line 2: "[B]" would hide the questions behind it from the advisor.)~"},
    {"note", "x", "a\n<XREF TOPIC=A>n</XREF>", "", nullptr},
    {"textTag", "x", "a\n<IXML>", "<H1>b</H1>", nullptr},
};

INSTANTIATE_TEST_SUITE_P(Lines, FaultRows, testing::ValuesIn(Faults), test::RowName());

TEST(LogicFaults, textOf60CharactersBeginningWithABracket_standsOnItsOwnLine)
{
    EXPECT_EQ(Sentences(BlockOf("x", std::string("[") + Longest)), Strings());
    EXPECT_EQ(Sentences(BlockOf("x", std::string("[") + Longest + "8")),
              Strings{std::string("The question for \"AGE\", line 1: \"[") + Longest +
                      "8\" would start a new topic."});
}

TEST(LogicFaults, textOfMoreThan32000Characters_wouldBeCut)
{
    EXPECT_EQ(Sentences(BlockOf("x", std::string(32000, 'a'))), Strings());
    EXPECT_EQ(Sentences(BlockOf("x", std::string(32001, 'a'))),
              Strings{"The question for \"AGE\" has more than 32,000 characters: the advisor would show its "
                      "beginning only."});
}

TEST(LogicFaults, places_leadToTheBoxAndTheLine)
{
    LogicBlock block = BlockOf("x\n[B]\n", "a</Q>", "b\n</AV>");
    block.variables.push_back({"B", ""});
    block.choices.push_back({"B", "1", ""});
    block.choices.push_back({"B", "2", "</AV>"});
    const std::vector<LogicFault> faults = FindLogicFaults(block);
    ASSERT_EQ(faults.size(), 4U);
    const auto place = [](const LogicFault& fault) {
        return std::array<int, 4>{static_cast<int>(fault.box), fault.variable, fault.choice, fault.line};
    };
    EXPECT_EQ(place(faults[0]), (std::array<int, 4>{0, -1, -1, 2}));
    EXPECT_EQ(place(faults[1]), (std::array<int, 4>{1, 0, -1, 1}));
    EXPECT_EQ(place(faults[2]), (std::array<int, 4>{2, 0, 0, 2}));
    EXPECT_EQ(place(faults[3]), (std::array<int, 4>{2, 1, 1, 1}));
}

struct NameRow
{
    const char* name;
    const char* variable;
    const char* choice;
    Strings sentences;
};

struct NameRows : testing::TestWithParam<NameRow>
{
};

TEST_P(NameRows, name_isReadBackOrNamed)
{
    LogicBlock block;
    block.logicText = "x\r\n";
    block.variables = {{GetParam().variable, {}}};
    block.choices = {{GetParam().variable, GetParam().choice, {}}};
    EXPECT_EQ(Sentences(block), GetParam().sentences);
    test::TestSeams world;
    const LogicBlock again = ParseLogicBlock(*BuildLogicBlock(block, world.Get()));
    const bool same = again.variables == block.variables && again.choices == block.choices;
    EXPECT_EQ(same, GetParam().sentences.empty());
}

const NameRow Names[] = {
    {"plain", "AGE", "OLD", {}},
    {"greaterChoice", "AGE", "> 5", {}},
    {"blanks", "MY AGE", "A B", {}},
    {"choiceInParentheses", "AGE", "(x)", {}},
    {"greaterVariable",
     "A>B",
     "1",
     {"The question for \"A>B\" would be read as that for \"A\", since \">\" ends a name.",
      "The advice for \"A>B(1)\" would be read as that for \"A\", since \">\" ends a name."}},
    {"greaterBehindParenthesis",
     "A",
     "1)>2",
     {"The advice for \"A(1)>2)\" would be read as that for \"A(1)\", since \">\" ends a name."}},
    {"parenthesisInVariable",
     "A(B",
     "1",
     {"The advice for \"A(B(1)\" would be read as that for a choice of \"A\", since \"(\" ends its name."}},
};

INSTANTIATE_TEST_SUITE_P(Rows, NameRows, testing::ValuesIn(Names), test::RowName());

TEST(LogicFaults, question_namesTheFirstFive)
{
    std::vector<LogicFault> faults(5);
    for (LogicFault& fault : faults) {
        fault.what = "A sentence.";
    }
    const std::string five =
        "Not everything here would be read back as it stands:\n\nA sentence.\nA sentence.\n"
        "A sentence.\nA sentence.\nA sentence.";
    EXPECT_EQ(LogicFaultsQuestion(faults), five + "\n\nKeep the logic as it is?");
    faults.resize(8);
    EXPECT_EQ(LogicFaultsQuestion(faults), five + "\n(3 more)\n\nKeep the logic as it is?");
}

/// The change that reading makes to an entry's text: trims its lines and drops empty ones before the first.
std::string AsRead(const std::string& text)
{
    std::string read;
    for (std::size_t at = 0; at <= text.size();) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        read += read.empty() ? "" : "\r\n";
        read += Trim(std::string_view(text).substr(at, end - at));
        at = end + 2;
    }
    return read;
}

/// The change that reading makes to logic lines: each gets a line end and loses its leading blanks. A text of
/// one or two characters gets no line end, so "</LOGIC>" joins its line. If that line is a comment, reading
/// removes "</LOGIC>" again.
std::string LogicAsRead(const std::string& text)
{
    if (text.size() < 3 && text != "\r\n" && text.front() != '*') {
        return Trim(text).empty() ? std::string() : text + "</LOGIC>\r\n";
    }
    std::string read;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find("\r\n", at), text.size());
        read.append(TrimRight(std::string_view(text).substr(at, end - at))).append("\r\n");
        at = end + 2;
    }
    return read;
}

/// Random texts of an author, made of pieces that have a meaning in some place.
class Typist
{
public:
    explicit Typist(unsigned seed) : m_random(seed) {}

    std::string Text()
    {
        static constexpr std::array<const char*, 30> pieces = {"a",
                                                               "word ",
                                                               "\r\n",
                                                               "\r\n",
                                                               " ",
                                                               "*",
                                                               "[",
                                                               "[B]",
                                                               "</Q>",
                                                               "</AV>",
                                                               "<Q ID=",
                                                               "<AV ID=",
                                                               ">",
                                                               "(",
                                                               ")",
                                                               "</q>",
                                                               "<LOGIC>",
                                                               "=",
                                                               "</LOGIC>",
                                                               "<IXML>",
                                                               "</IXML>",
                                                               "<DEFINITIONS>",
                                                               "</DEFINITIONS>",
                                                               "0123456789012345678901234567890123456789",
                                                               "<",
                                                               "\t",
                                                               "\xE9",
                                                               "[EOF]",
                                                               "<XREF TOPIC=",
                                                               "</XREF>"};
        std::string text;
        for (auto i = m_random() % 6; i > 0; --i) {
            text += pieces[m_random() % (m_random() % 2 == 0 ? 6 : pieces.size())];
        }
        return text;
    }

    std::string Name()
    {
        static constexpr std::array<const char*, 6> pieces = {"a", "B", ">", "(", ")", " "};
        std::string name = "n";
        for (auto i = m_random() % 4; i > 0; --i) {
            name += pieces[m_random() % (m_random() % 4 == 0 ? pieces.size() : 2)];
        }
        return name + "z";
    }

    LogicBlock Block()
    {
        LogicBlock block;
        block.logicText = Text();
        for (int v = 0; v < 2; ++v) {
            const std::string name = Name() + std::to_string(v);
            block.variables.push_back({name, Text()});
            for (int c = 0; c < 2; ++c) {
                block.choices.push_back({name, Name() + std::to_string(c), Text()});
            }
        }
        return block;
    }

private:
    std::mt19937 m_random;
};

TEST(LogicFaults, whatIsTyped_isReadBackOrNamed)
{
    test::TestSeams world;
    int kept = 0;
    int named = 0;
    for (unsigned seed = 1; seed <= 5000; ++seed) {
        const LogicBlock typed = Typist(seed).Block();
        const std::optional<std::string> built = BuildLogicBlock(typed, world.Get());
        if (!built) {
            continue;
        }
        if (!FindLogicFaults(typed).empty()) {
            ++named;
            continue;
        }
        ++kept;
        LogicBlock expected = typed;
        for (LogicVariable& variable : expected.variables) {
            variable.question = AsRead(variable.question);
        }
        for (LogicChoice& choice : expected.choices) {
            choice.advice = AsRead(choice.advice);
        }
        LogicBlock again = ParseLogicBlock(*built);
        expected.logicText = LogicAsRead(typed.logicText);
        ASSERT_EQ(test::Describe(again), test::Describe(expected)) << "seed " << seed << "\n" << *built;
    }
    EXPECT_GT(kept, 500);
    EXPECT_GT(named, 500);
    world.messages.Take();
}

} // namespace
} // namespace ls
