#include "AdvisorWorld.h"
#include "support/RowName.h"

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::AdvisorReader;
using test::AdvisorWorld;
using test::CrLf;
using test::Rules;
using test::Targets;

constexpr const char* ReuseBox =
    "question|Lodestar Advisor|You have already answered some questions.  In case your answers are relevant "
    "to this topic, do you wish me to re-use those answers?|YesNo";

class LogicLoaderTest : public testing::Test
{
protected:
    // Loads the logic of a book with one topic. True if that succeeds.
    bool Load(std::initializer_list<const char*> logic,
              std::initializer_list<const char*> definitions = {"<Q ID=A>a?</Q>"})
    {
        world.OpenTopic(logic, definitions);
        return AdvisorReader(world).Load();
    }

    void AddAnswer(const char* var, const char* value, int topic)
    {
        ASSERT_TRUE(Append(world.tables.Answers, world.tables.AnswerCount, Answer{var, value, topic, false},
                           AdvisorGrowthStep));
        world.tables.AnswersOrder = world.book.TopicOrder;
    }

    Texts Variables() const
    {
        Texts texts;
        for (const VarTopic& entry : Counted(world.tables.VarTopics, world.tables.VarTopicCount)) {
            texts.push_back(entry.Name + "@" + std::to_string(entry.Topic));
        }
        return texts;
    }

    AdvisorWorld world;
    AdvisorTables& tables = world.tables;
};

TEST_F(LogicLoaderTest, load_wholeBlock_fillsTables)
{
    world.Open("[Guide]\r\nSome text\r\n<IXML>\r\n\r\n<logic>\r\ntarget risk\r\nDEFINE AGE@Personal Data\r\n"
               "risk(high) = age(old)\r\n</LOGIC>\r\n<DEFINITIONS>\r\n<Q ID=smoker>Do you?</Q>\r\n"
               "</DEFINITIONS>\r\n</IXML>\r\n[Personal Data]\r\n");
    world.Show("Guide");
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    // 13 characters of the tag and 2 of the line end; positions count from 1.
    const std::size_t definitions = world.seams.files[world.path].find("<DEFINITIONS>") + 15 + 1;
    EXPECT_EQ(Serialize(tables), "rules:\n  RISK(HIGH)=AGE(OLD)\ntargets:\n  RISK\nvariables:\n  AGE@2\n"
                                 "  SMOKER@1\nloaded:\n  1\ncandidates:\nanswers:\ndefinitions at " +
                                     std::to_string(definitions) + "\ncurrent @0\n");
    EXPECT_EQ(reader.advice, "");
}

struct RuleRow
{
    const char* name;
    const char* line;
    const char* rule; ///< nullptr: the line is no rule
};

class RuleLines : public testing::TestWithParam<RuleRow>
{
};

TEST_P(RuleLines, line_isStoredAs)
{
    AdvisorWorld world;
    world.OpenTopic({GetParam().line}, {});
    ASSERT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(Rules(world.tables), GetParam().rule == nullptr ? Texts{} : Texts{GetParam().rule});
}

INSTANTIATE_TEST_SUITE_P(Rows, RuleLines,
                         testing::Values(RuleRow{"blanksGo", "x (a) = y (b) z (c)", "X(A)=Y(B)Z(C)"},
                                         RuleRow{"indented", "   av(go)=a(b)  ", "AV(GO)=A(B)"},
                                         RuleRow{"accentsFold", "av(\xE9t\xE9)=a(b)", "AV(\xC9T\xC9)=A(B)"},
                                         RuleRow{"comma", "X(1) = A(B), C(D)", "X(1)=A(B),C(D)"},
                                         RuleRow{"noConditions", "AV(GO)=", "AV(GO)="},
                                         RuleRow{"malformedIsTaken", "AVGO)=A(B)", "AVGO)=A(B)"},
                                         RuleRow{"tabStays", "AV(GO)=A(B)\tC(D)", "AV(GO)=A(B)\tC(D)"},
                                         RuleRow{"twoEqualsSigns", "AV(GO)=A(B)=C(D)", "AV(GO)=A(B)=C(D)"},
                                         RuleRow{"commandWithEquals", "TARGET X=Y", "TARGETX=Y"},
                                         RuleRow{"comment", "* AV(GO) = A(B)", nullptr},
                                         RuleRow{"indentedComment", "  *AV(GO)=A(B)", nullptr},
                                         RuleRow{"empty", "    ", nullptr},
                                         RuleRow{"closingTag", " </logic> ", nullptr}),
                         test::RowName());

TEST_F(LogicLoaderTest, assume_isInsertedUntilCleared)
{
    ASSERT_TRUE(Load({"R(0) = A(B)", "ASSUME SEX(MALE)", "R(1) = A(B)", "ASSUME age (old) x", "R(2)=A(B)",
                      "ASSUME", "R(3)=A(B)"}));
    EXPECT_EQ(Rules(tables), (Texts{"R(0)=A(B)", "R(1)=SEX(MALE)A(B)", "R(2)=AGE (OLD) XA(B)", "R(3)=A(B)"}));
}

TEST_F(LogicLoaderTest, assume_startsEmptyAtEachLoad)
{
    ASSERT_TRUE(Load({"ASSUME SEX(MALE)"}));
    ASSERT_TRUE(Load({"R(1)=A(B)"}));
    EXPECT_EQ(Rules(tables), (Texts{"R(1)=A(B)"}));
}

TEST_F(LogicLoaderTest, target_isTheLastOneWithItsBlanks_elseAdvice)
{
    ASSERT_TRUE(Load({"TARGET ONE", "target two "}));
    EXPECT_EQ(Targets(tables), Texts{"TWO"});
    ASSERT_TRUE(Load({"TARGET  MY GOAL"}));
    EXPECT_EQ(Targets(tables), Texts{" MY GOAL"});
    ASSERT_TRUE(Load({"TARGET"}));
    EXPECT_EQ(Targets(tables), Texts{""});
    ASSERT_TRUE(Load({}));
    EXPECT_EQ(Targets(tables), Texts{"AV"});
}

TEST_F(LogicLoaderTest, define_findsFirstTopicOfThatTitle)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\nDEFINE AGE@Personal Data\r\nDEFINE my var @  other  \r\n"
               "DEFINE GONE@Nowhere\r\nDEFINE E@x@y\r\n<DEFINITIONS>\r\n[Personal Data]\r\n[other]\r\n"
               "[OTHER]\r\n[X@Y]\r\n");
    world.Show("A");
    ASSERT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(Variables(), (Texts{"AGE@2", "MY VAR @3", "E@5"}));
}

struct FailRow
{
    const char* name;
    const char* line;
    const char* box;
};

class FailingLines : public testing::TestWithParam<FailRow>
{
};

TEST_P(FailingLines, line_failsTheLoadWithBox)
{
    AdvisorWorld world;
    world.OpenTopic({"AV(1)=A(B)", GetParam().line, "AV(2)=A(C)"}, {"<Q ID=A>a?</Q>"});
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{std::string("critical|Lodestar Advisor|") + GetParam().box}));
    EXPECT_EQ(Rules(world.tables), (Texts{"AV(1)=A(B)"})); // the rules read before the bad line stay
}

INSTANTIATE_TEST_SUITE_P(
    Rows, FailingLines,
    testing::Values(
        FailRow{"unknownCommand", "HELLO THERE", "Invalid command in <LOGIC> section for the current topic"},
        FailRow{"unknownWord", "ASSUMES", "Invalid command in <LOGIC> section for the current topic"},
        FailRow{"tabIsNoBlank", "ASSUME\tA(B)", "Invalid command in <LOGIC> section for the current topic"},
        FailRow{"secondLogicTag", "<LOGIC>", "Invalid command in <LOGIC> section for the current topic"},
        FailRow{"defineWithoutAt", "define age", "Invalid command <<DEFINE AGE>>; can't load logic."},
        FailRow{"defineAlone", "DEFINE", "Invalid command <<DEFINE>>; can't load logic."},
        FailRow{"defineAtLast", "define \xE9@", "Invalid command <<DEFINE \xC3\x89@>>; can't load logic."}),
    test::RowName());

TEST_F(LogicLoaderTest, define_bookWithoutTopics_fails)
{
    world.OpenTopic({"DEFINE A@Topic"}, {});
    world.book.TopicCount = 0;
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{"critical|Lodestar Advisor|No topics are defined; can't load logic."}));
}

TEST_F(LogicLoaderTest, logicTag_missingBeforeNextTopicOrEnd_fails)
{
    for (const char* body : {"[A]\r\n<IXML>\r\n\r\n[B]\r\n<LOGIC>\r\n<DEFINITIONS>\r\n",
                             "[A]\r\n<IXML>\r\n\r\nlogic\r\n", "[A]\r\n<IXML>\r\n[B]\r\n<LOGIC>\r\n"}) {
        AdvisorWorld other;
        other.Open(body);
        other.Show("A");
        EXPECT_FALSE(AdvisorReader(other).Load()) << body;
        EXPECT_EQ(other.seams.messages.Take(),
                  (Texts{"critical|Lodestar Advisor|Logic section missing for current topic"}));
    }
}

TEST_F(LogicLoaderTest, firstLine_atEndOfFile_isReadError)
{
    world.Open("[A]\r\n<IXML>\r\n");
    world.Show("A");
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(
        world.seams.messages.Take(),
        (Texts{
            "critical|Lodestar Advisor|Lodestar Advisor: 62Error reading file <</case.IDA>> due to error"}));
}

TEST_F(LogicLoaderTest, readError_isReportedWithPath)
{
    world.path = "/B\xC3\xBC"
                 "cher.IDA";
    world.OpenTopic({"AV(1)=A(B)"}, {});
    world.seams.files.fail = [](const std::string& operation) {
        return operation.rfind("read", 0) == 0 ? error::DeviceIo : 0;
    };
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(),
              (Texts{"critical|Lodestar Advisor|Lodestar Advisor: 57Error reading file <</B\xC3\xBC"
                     "cher.IDA>> due to error"}));
}

TEST_F(LogicLoaderTest, definitions_missing_fail)
{
    for (const char* body :
         {"[A]\r\n<IXML>\r\n<LOGIC>\r\nAV(1)=A(B)\r\n</LOGIC>\r\n",
          "[A]\r\n<IXML>\r\n<LOGIC>\r\nAV(1)=A(B)\r\n[B]\r\n<DEFINITIONS>\r\n",
          "[A]\r\n<IXML>\r\n<LOGIC>\r\n[x <DEFINITIONS>\r\n<Q ID=A>a</Q>\r\n", "[A]\r\n<IXML>\r\n<LOGIC>"}) {
        AdvisorWorld other;
        other.Open(body);
        other.Show("A");
        EXPECT_FALSE(AdvisorReader(other).Load()) << body;
        EXPECT_EQ(
            other.seams.messages.Take(),
            (Texts{"critical|Lodestar Advisor|Can't find <DEFINITIONS> section for the current topic"}));
    }
}

TEST_F(LogicLoaderTest, definitionsTag_anywhereInLine_opensThem)
{
    for (const char* line : {"about <definitions> now", "* <DEFINITIONS>", "AV(1)=<Definitions>"}) {
        AdvisorWorld other;
        other.Open(std::string("[A]\r\n<IXML>\r\n<LOGIC>\r\n") + line + "\r\n<Q ID=A>a</Q>\r\n");
        other.Show("A");
        EXPECT_TRUE(AdvisorReader(other).Load()) << line;
        EXPECT_EQ(other.tables.VarTopicCount, 1);
        EXPECT_EQ(other.tables.RuleCount, 0);
    }
}

TEST_F(LogicLoaderTest, questions_areRegisteredFromLineStarts)
{
    ASSERT_TRUE(
        Load({}, {"", "  <Q ID=age>how", "old</Q>", "x <Q ID=NOT>", "<q id=Low>", "* <Q ID=C>", "<Q ID=open",
                  "<Q ID=>empty", "<AV ID=GO>", "<Q ID=A>a</Q><Q ID=B>b</Q>", "<Q ID=age>"}));
    EXPECT_EQ(Variables(), (Texts{"AGE@1", "LOW@1", "@1", "A@1", "AGE@1"}));
}

TEST_F(LogicLoaderTest, questions_endAtClosingTagOrNextTopic)
{
    ASSERT_TRUE(Load({}, {"<Q ID=A>", "x </definitions> y", "<Q ID=B>"}));
    EXPECT_EQ(Variables(), (Texts{"A@1"}));
    ASSERT_TRUE(Load({}, {"<Q ID=A>", "[", "<Q ID=B>"}));
    EXPECT_EQ(Variables(), (Texts{"A@1"}));
}

TEST_F(LogicLoaderTest, firstLoad_clearsAllButRules)
{
    ASSERT_TRUE(Load({"TARGET X", "AV(1)=A(B)"}));
    tables.CandidateCount = 3;
    ASSERT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(Rules(tables).size(), 2U); // only the advisor's button clears the rules
    EXPECT_EQ(tables.VarTopicCount, 1);
    EXPECT_EQ(tables.LogicTopicCount, 1);
    EXPECT_EQ(tables.CandidateCount, 0);
}

TEST_F(LogicLoaderTest, additionalLoad_joinsTablesAndIgnoresTarget)
{
    world.Open(
        "[A]\r\n<IXML>\r\n<LOGIC>\r\nTARGET RISK\r\nRISK(1)=X(Y)\r\n<DEFINITIONS>\r\n</DEFINITIONS>\r\n"
        "[B]\r\ntext\r\n<IXML>\r\n<LOGIC>\r\nTARGET OTHER\r\nX(Y)=Z(W)\r\n<DEFINITIONS>\r\n<Q ID=X>\r\n");
    world.Show("A");
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    const FilePos definitions = tables.DefinitionsPos;
    reader.cursor.Seek(world.book.TopicPos(2));
    ASSERT_TRUE(reader.Load(2, true));
    EXPECT_EQ(Serialize(tables), "rules:\n  RISK(1)=X(Y)\n  X(Y)=Z(W)\ntargets:\n  RISK\nvariables:\n  X@2\n"
                                 "loaded:\n  1\n  2\ncandidates:\nanswers:\ndefinitions at " +
                                     std::to_string(definitions) + "\ncurrent @0\n");
}

TEST_F(LogicLoaderTest, earlierAnswers_no_forgetsThem)
{
    world.OpenTopic({"AV(1)=A(B)"}, {"<Q ID=A>a</Q>"});
    AddAnswer("A", "B", 1);
    world.seams.messages.replies = {Reply::No};
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    EXPECT_EQ(world.seams.messages.Take(), (Texts{ReuseBox}));
    EXPECT_EQ(tables.AnswerCount, 0);
    EXPECT_EQ(Rules(tables), (Texts{"AV(1)=A(B)"}));
    EXPECT_EQ(reader.advice, "");
}

TEST_F(LogicLoaderTest, earlierAnswers_yes_assertsThoseThatApply)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\nDEFINE FAR@B\r\nAV(1)=OWN(x)FAR(y)ELSE(z)\r\nAV(2)=NOT(n)\r\n"
               "<DEFINITIONS>\r\n[B]\r\n[C]\r\n");
    world.Show("A");
    AddAnswer("OWN", "x", 1);  // of this topic, although no question for it is registered
    AddAnswer("FAR", "y", 2);  // registered in topic 2
    AddAnswer("ELSE", "z", 3); // registered nowhere
    AddAnswer("FAR", "n", 3);  // registered in another topic
    world.seams.messages.replies = {Reply::Yes};
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    world.seams.messages.boxes.clear();
    EXPECT_EQ(Rules(tables), (Texts{"AV(1)=ELSE(Z)", "AV(2)=NOT(N)"}));
    EXPECT_EQ(tables.AnswerCount, 4);
}

TEST_F(LogicLoaderTest, earlierAnswers_firstAdviceIsKept)
{
    world.OpenTopic({"AV(1)=A(X)", "AV(2)=B(Y)"}, {});
    AddAnswer("A", "X", 1);
    AddAnswer("B", "Y", 1);
    world.seams.messages.replies = {Reply::Yes};
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    world.seams.messages.boxes.clear();
    EXPECT_EQ(reader.advice, "1");
    EXPECT_EQ(tables.AnswerCount, 3); // and the first conclusion
}

TEST_F(LogicLoaderTest, earlierAnswers_ofAnotherBookOrOrder_areForgottenUnasked)
{
    world.OpenTopic({"AV(1)=A(X)"}, {});
    AddAnswer("A", "X", 1);
    ResetBook(world.book);
    world.OpenTopic({"AV(1)=A(X)"}, {});
    AdvisorReader reader(world);
    ASSERT_TRUE(reader.Load());
    EXPECT_EQ(world.seams.messages.Take(), Texts{});
    EXPECT_EQ(tables.AnswerCount, 0);
    EXPECT_EQ(reader.advice, "");
}

TEST_F(LogicLoaderTest, forgetAnswers_emptiesThem)
{
    world.OpenTopic({"AV(1)=A(X)"}, {});
    AddAnswer("A", "X", 1);
    ForgetAnswers(tables);
    ASSERT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(), Texts{});
}

std::string ManyLines(const std::string& line, int count)
{
    std::string text;
    for (int i = 0; i < count; ++i) {
        text += line + "\r\n";
    }
    return text;
}

TEST_F(LogicLoaderTest, tables_growInSteps)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n" + ManyLines("AV(1)=A(B)", 51) + "<DEFINITIONS>\r\n" +
               ManyLines("<Q ID=A>", 21));
    world.Show("A");
    ASSERT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(tables.LogicRules.UpperBound(), 100);
    EXPECT_EQ(tables.VarTopics.UpperBound(), 40);
    EXPECT_EQ(tables.LogicTopics.UpperBound(), 20);
    EXPECT_EQ(tables.Targets.UpperBound(), 10);
}

TEST_F(LogicLoaderTest, rules_asManyAsFit_load)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n" + ManyLines("AV(1)=A(B)", 32767) + "<DEFINITIONS>\r\n");
    world.Show("A");
    EXPECT_TRUE(AdvisorReader(world).Load());
    EXPECT_EQ(tables.RuleCount, 32767);
}

TEST_F(LogicLoaderTest, rules_oneTooMany_failWithOverflow)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n" + ManyLines("AV(1)=A(B)", 32768) + "<DEFINITIONS>\r\n");
    world.Show("A");
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Overflow"}));
    EXPECT_EQ(tables.RuleCount, 32767);
}

TEST_F(LogicLoaderTest, questions_oneTooMany_failWithOverflow)
{
    world.Open("[A]\r\n<IXML>\r\n<LOGIC>\r\n<DEFINITIONS>\r\n" + ManyLines("<Q ID=A>", 32768));
    world.Show("A");
    EXPECT_FALSE(AdvisorReader(world).Load());
    EXPECT_EQ(world.seams.messages.Take(), (Texts{"critical|Lodestar Advisor|Overflow"}));
}

} // namespace
} // namespace ls
