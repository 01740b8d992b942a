#include "AdvisorWorld.h"
#include "advisor/AdvisorRunner.h"
#include "support/RowName.h"

#include <algorithm>
#include <functional>

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::AdvisorWorld;

const std::string Header = "LODESTAR BOOK V5.3\r\n";

const std::string Sample =
    "[Topic]\r\ntext\r\n<IXML>\r\n<LOGIC>\r\n* comment\r\nTARGET RISK\r\nDEFINE MOOD@Other\r\n"
    "ASSUME SEX(M)\r\nRISK(HIGH) = AGE(OLD) MOOD(BAD)\r\nRISK(LOW) = AGE(YOUNG)\r\nASSUME\r\n"
    "RISK(MID) = MOOD(GOOD), AGE(OLD)\r\n</LOGIC>\r\n<DEFINITIONS>\r\n<Q ID=AGE>How\r\nold?</Q>\r\n"
    "<Q ID=SEX>sex?</Q>\r\n<Q ID=RISK>\r\n</Q>\r\n<AV "
    "ID=RISK(HIGH)>High.</AV>\r\n</DEFINITIONS>\r\n</IXML>\r\n"
    "[Other]\r\n<IXML>\r\n<LOGIC>\r\nMOOD(BAD)=SUN(NO)\r\nMOOD(GOOD)=SUN(YES)\r\n<DEFINITIONS>\r\n"
    "<Q ID=MOOD>mood?</Q>\r\n<Q ID=SUN>sun?</Q>\r\n</DEFINITIONS>\r\n</IXML>\r\n";

// Plays the book's "[Topic]" and always takes the choice with that number. Returns the kind of the last
// event. A dialogue of this size must end within a hundred answers.
AdvisorEvent::Kind PlayTopic(const std::string& bytes, std::size_t choice,
                             const std::function<void(std::string& file)>& meddle = {})
{
    test::TestSeams seams;
    seams.files["/a.IDA"] = bytes;
    Book book;
    book.BookPath = "/a.IDA";
    if (!OpenBook(book, seams.Get()) || !ScanBook(book, seams.Get())) {
        ADD_FAILURE() << "the book does not open";
        return AdvisorEvent::Kind::Run;
    }
    AdvisorTables tables;
    AdvisorPlayer player;
    AdvisorEvent::Kind last = AdvisorEvent::Kind::Run;
    int answers = 0;
    player.event = [&last](const AdvisorEvent& event) { last = event.kind; };
    player.reply = [](const std::string&, Buttons) { return Reply::Yes; };
    player.answer = [&](const AdvisorEvent& question) -> std::optional<std::string> {
        ++answers;
        if (meddle) {
            meddle(seams.files["/a.IDA"]);
        }
        if (answers > 100 || question.choices.empty()) {
            return std::nullopt;
        }
        // A value that ends in a comma leaves an empty choice. It cannot be an answer, so the first choice is
        // used.
        const std::string& wanted = question.choices[std::min(choice, question.choices.size() - 1)];
        return wanted.empty() ? question.choices.front() : wanted;
    };
    RunAdvisor(book, tables, seams.Get(), player, 1, "Topic");
    EXPECT_LE(answers, 100);
    return last;
}

bool IsEnding(AdvisorEvent::Kind kind)
{
    return kind == AdvisorEvent::Kind::Button || kind == AdvisorEvent::Kind::Text ||
           kind == AdvisorEvent::Kind::NoAdvisor || kind == AdvisorEvent::Kind::ProgramEnds;
}

TEST(BadLogic, blockCutAtAnyByte_stillEnds)
{
    for (std::size_t size = std::string("[Topic]\r\n").size(); size <= Sample.size(); ++size) {
        for (const std::size_t choice : {0U, 1U, 2U}) {
            EXPECT_TRUE(IsEnding(PlayTopic(Header + Sample.substr(0, size), choice))) << size;
        }
    }
}

TEST(BadLogic, anyByteReplaced_stillEnds)
{
    for (const char byte : {'[', '(', ')', '=', '<', '>', '*', '\r', '\0', '@', ',', ' '}) {
        for (std::size_t at = std::string("[Topic]\r\n").size(); at < Sample.size(); ++at) {
            std::string cut = Sample;
            cut[at] = byte;
            EXPECT_TRUE(IsEnding(PlayTopic(Header + cut, at % 3))) << at << " " << byte;
        }
    }
}

TEST(BadLogic, bookCutWhileTheDialogueRuns_stillEnds)
{
    for (std::size_t size = 0; size <= Header.size() + Sample.size(); size += 3) {
        EXPECT_TRUE(IsEnding(PlayTopic(Header + Sample, 1, [size](std::string& file) {
            file.resize(std::min(file.size(), size));
        }))) << size;
    }
}

TEST(BadLogic, ruleOf100000Characters_isRead)
{
    std::string rule = "AV(1)=";
    for (int i = 0; i < 13000; ++i) {
        rule += "V" + std::to_string(i) + "(1)";
    }
    ASSERT_GT(rule.size(), 100000U);
    AdvisorWorld world;
    world.Open("[Topic]\r\n<IXML>\r\n<LOGIC>\r\n" + rule + "\r\nAV(2)=V12999(2)\r\n<DEFINITIONS>\r\n" +
               "<Q ID=V0>q?</Q>\r\n<Q ID=V12999>last?</Q>\r\n");
    world.Show("Topic");
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"question V12999 [] [1] [2]: last?"}));
    EXPECT_EQ(world.Next("1"), (Texts{"button Close"})); // V0 has one value; V1 is not defined
    EXPECT_EQ(world.tables.LogicRules(1).size(), rule.size() - std::string("V12999(1)V0(1)").size());
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{"exclamation|Lodestar Advisor|I can't find the variable definition for <<V1>>."}));
}

TEST(BadLogic, valuesOfCommasOnly_areRead)
{
    AdvisorWorld world;
    const std::string commas(100000, ',');
    world.OpenTopic({("AV(1)=A(" + commas + ")").c_str(), "AV(2)=A(X)"}, {"<Q ID=A>a?</Q>"});
    world.Advise();
    // Reading drops the first comma, as after an empty value. The other commas count as one value, which no
    // rule has.
    EXPECT_EQ(world.view.Take(), Texts{});
    EXPECT_EQ(world.tables.RuleCount, 0);
    EXPECT_EQ(world.seams.end.Reason(), "no next variable after an automatic one-value answer");
}

TEST(BadLogic, loadThatFailsEachTime_growsTheRulesButEnds)
{
    // Each search for a question of "[Other]" reads that topic's rules again and fails at its bad line.
    AdvisorWorld world;
    world.Open("[Topic]\r\n<IXML>\r\n<LOGIC>\r\nDEFINE X@Other\r\nDEFINE Y@Other\r\nAV(1)=X(A)Y(B),\r\n"
               "<DEFINITIONS>\r\n</DEFINITIONS>\r\n"
               "[Other]\r\n<IXML>\r\n<LOGIC>\r\nAV(1)=X(A)Y(B),\r\nBAD\r\n<DEFINITIONS>\r\n");
    world.Show("Topic");
    // Begins near the limit to be quick. A user would reach the same after more boxes.
    while (world.tables.AnswerCount < Count16::Max - 200) {
        ASSERT_TRUE(Append(world.tables.Answers, world.tables.AnswerCount, Answer{"Q", "", 9, false}, 40000));
    }
    world.tables.AnswersOrder = world.book.TopicOrder;
    world.seams.messages.replies = {Reply::Yes};
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"button Close"}));
    const Texts boxes = world.seams.messages.Take();
    EXPECT_EQ(boxes.back(), "critical|Lodestar Advisor|Overflow");
    EXPECT_EQ(boxes.size(), 203U);
}

struct OddRow
{
    const char* name;
    Texts logic;
    Texts shown;
    Texts boxes;
    const char* reason;
};

class OddLogic : public testing::TestWithParam<OddRow>
{
};

TEST_P(OddLogic, openingTheAdvisor_gives)
{
    AdvisorWorld world;
    std::string body = "[Topic]\r\n<IXML>\r\n<LOGIC>\r\n";
    for (const std::string& line : GetParam().logic) {
        body += line + "\r\n";
    }
    world.Open(body + "<DEFINITIONS>\r\n<Q ID=A>a?</Q>\r\n<Q ID=,B>b?</Q>\r\n<Q ID=\tB>tab?</Q>\r\n");
    world.Show("Topic");
    world.Advise();
    EXPECT_EQ(world.view.Take(), GetParam().shown);
    EXPECT_EQ(world.seams.messages.Take(), GetParam().boxes);
    EXPECT_EQ(world.seams.end.Reason(), GetParam().reason);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, OddLogic,
    testing::Values(OddRow{"commaBecomesPartOfName",
                           {"AV(1)=A(X),B(Y)", "AV(2)=,B(Z),B(Z)"},
                           {"question ,B [] [Y] [Z]: b?"},
                           {},
                           ""},
                    OddRow{"tabBecomesPartOfName",
                           {"AV(1)=\tB(X)", "AV(2)=\tB(Y)"},
                           {"question \tB [] [X] [Y]: tab?"},
                           {},
                           ""},
                    OddRow{"unclosedCondition", {"AV(1)=A(X"}, {}, {}, "variable with no value in any rule"},
                    OddRow{"nestedCondition",
                           {"AV(1)=A(A(X))"},
                           {},
                           {},
                           "no next variable after an automatic one-value answer"},
                    OddRow{"noLeftBrackets",
                           {"AV=A(X)"},
                           {"button Close", "text I can't find a question to ask for target AV."},
                           {},
                           ""},
                    OddRow{"onlyEqualsSign",
                           {"="},
                           {"button Close", "text I can't find a question to ask for target AV."},
                           {},
                           ""},
                    OddRow{"emptyConditionName",
                           {"AV(1)=(X)"},
                           {"button Close", "text I can't find a question to ask for target AV."},
                           {},
                           ""}),
    test::RowName());

} // namespace
} // namespace ls
