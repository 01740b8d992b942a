#include "AdvisorWorld.h"

namespace ls {
namespace {

using Texts = std::vector<std::string>;
using test::AdvisorWorld;
using test::Rules;
using test::Targets;

class AdvisorDialogTest : public testing::Test
{
protected:
    Texts Open(std::initializer_list<const char*> logic, std::initializer_list<const char*> definitions)
    {
        world.OpenTopic(logic, definitions);
        world.Advise();
        return world.view.Take();
    }

    Texts Boxes() { return world.seams.messages.Take(); }

    AdvisorWorld world;
};

TEST_F(AdvisorDialogTest, opening_asksTheFirstQuestion)
{
    EXPECT_EQ(Open({"AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"}, {"<Q ID=SUN>Does it shine?</Q>"}),
              (Texts{"question SUN [] [YES] [NO]: Does it shine?"}));
    EXPECT_FALSE(world.dialog->Over());
    EXPECT_EQ(world.tables.CurrentVar, "SUN");
    EXPECT_EQ(world.tables.CurrentVarTopic, 1);
}

TEST_F(AdvisorDialogTest, opening_clearsTheRulesOfTheLastDialogue)
{
    Open({"AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"}, {"<Q ID=SUN>Does it shine?</Q>"});
    world.Advise();
    EXPECT_EQ(world.tables.RuleCount, 2);
}

TEST_F(AdvisorDialogTest, failedLoad_isToldInTheTextBox)
{
    EXPECT_EQ(Open({"NONSENSE"}, {}),
              (Texts{"text Failure loading logic section for topic <<[Topic]>>; I can't proceed.",
                     "button Close"}));
    EXPECT_EQ(Boxes(), (Texts{"critical|Lodestar Advisor|Invalid command in <LOGIC> section for the current "
                              "topic"}));
    EXPECT_EQ(world.Next(""), (Texts{"unload"}));
}

TEST_F(AdvisorDialogTest, next_emptyAnswer_givesReminderAndStays)
{
    Open({"AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"}, {"<Q ID=SUN>Does it shine?</Q>"});
    EXPECT_EQ(world.Next(""), Texts{});
    EXPECT_EQ(Boxes(), (Texts{"none|Lodestar Advisor|Please select an answer before pressing NEXT"}));
    EXPECT_EQ(world.tables.AnswerCount, 0);
    EXPECT_EQ(world.tables.CurrentVar, "SUN");
}

TEST_F(AdvisorDialogTest, otherGoal_advice_isFoundByItsFact)
{
    Open({"TARGET RISK", "RISK(HIGH)=AGE(OLD)", "RISK(LOW)=AGE(YOUNG)"},
         {"<Q ID=AGE>age?</Q>", "<Q ID=RISK></Q>", "<AV ID=RISK(LOW)>Good.</AV>",
          "<AV ID=risk(high)>Bad.</AV>"});
    EXPECT_EQ(world.Next("OLD"), (Texts{"advice RISK(HIGH): Bad.", "button Close"}));
    EXPECT_EQ(Boxes(), Texts{});
    EXPECT_EQ(world.Next("OLD"), (Texts{"unload"}));
    EXPECT_EQ(world.tables.AnswerCount, 2);
}

TEST_F(AdvisorDialogTest, defaultGoal_advice_comesAfterTheMissingDefinitionBox)
{
    Open({"AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"},
         {"<AV ID=GO>Too early.</AV>", "<Q ID=SUN>Does it shine?</Q>", "<AV ID=GO>Go out.</AV>"});
    EXPECT_EQ(world.Next("YES"), (Texts{"advice GO: Go out.", "button Close"}));
    EXPECT_EQ(Boxes(), (Texts{"exclamation|Lodestar Advisor|I can't find the variable definition for "
                              "<<[Topic]>>."}));
}

TEST_F(AdvisorDialogTest, defaultGoal_adviceBeforeTheLastQuestion_isNotFound)
{
    Open({"AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"}, {"<AV ID=GO>Too early.</AV>", "<Q ID=SUN>Shine?</Q>"});
    EXPECT_EQ(world.Next("YES"), (Texts{"advice GO: ", "button Close"}));
    Boxes();
}

TEST_F(AdvisorDialogTest, defaultGoal_titleRegisteredAsVariable_findsDefinitions)
{
    Open({"DEFINE [TOPIC]@Topic", "AV(GO)=SUN(YES)", "AV(STAY)=SUN(NO)"},
         {"<AV ID=GO>Early.</AV>", "<Q ID=SUN>Shine?</Q>"});
    world.book.CurrentTopicName = "[TOPIC]";
    EXPECT_EQ(world.Next("YES"), (Texts{"advice GO: Early.", "button Close"}));
}

TEST_F(AdvisorDialogTest, ruleOrder_mostFrequentVariableIsAskedFirst)
{
    EXPECT_EQ(Open({"AV(1)=A(X)B(X)", "AV(2)=B(Y)A(Y)", "AV(3)=B(Z)"}, {"<Q ID=A>a?</Q>", "<Q ID=B>b?</Q>"}),
              (Texts{"question B [] [X] [Y] [Z]: b?"}));
    EXPECT_EQ(world.Next("Y"), (Texts{"advice 2: ", "button Close"})); // A then has one value left
    Boxes();
}

TEST_F(AdvisorDialogTest, singleValue_isAssertedSilently)
{
    EXPECT_EQ(Open({"AV(1)=ONE(X)A(X)", "AV(2)=ONE(X)A(Y)"}, {"<Q ID=A>a?</Q>", "<Q ID=ONE>one?</Q>"}),
              (Texts{"question A [] [X] [Y]: a?"}));
    EXPECT_EQ(Rules(world.tables), (Texts{"AV(1)=A(X)", "AV(2)=A(Y)"}));
    EXPECT_EQ(world.tables.AnswerCount, 1);
}

TEST_F(AdvisorDialogTest, singleValue_thatSettlesTheGoal_opensOnAdvice)
{
    EXPECT_EQ(Open({"TARGET R", "R(1)=ONE(X)"}, {"<Q ID=ONE>one?</Q>", "<Q ID=R>", "<AV ID=R(1)>Yes.</AV>"}),
              (Texts{"advice R(1): Yes.", "button Close"}));
}

TEST_F(AdvisorDialogTest, singleValue_withoutNextVariable_endsProgram)
{
    EXPECT_EQ(Open({"AV(1)=ONE(X),"}, {"<Q ID=ONE>one?</Q>"}), Texts{});
    EXPECT_EQ(world.seams.end.Reason(), "no next variable after an automatic one-value answer");
    EXPECT_EQ(Boxes(), Texts{});
    EXPECT_EQ(world.Next("X"), Texts{});
}

TEST_F(AdvisorDialogTest, derivedVariable_offersUnsureAndBecomesGoal)
{
    EXPECT_EQ(Open({"AV(1)=MOOD(GOOD)", "AV(2)=MOOD(BAD)", "MOOD(GOOD)=SUN(YES)", "MOOD(BAD)=SUN(NO)"},
                   {"<Q ID=MOOD>mood?</Q>", "<Q ID=SUN>sun?</Q>", "<AV ID=2>Sleep.</AV>"}),
              (Texts{"question MOOD derived [] [? - unsure] [GOOD] [BAD]: mood?"}));
    EXPECT_EQ(world.Next("? - unsure"), (Texts{"question SUN [] [YES] [NO]: sun?"}));
    EXPECT_EQ(Targets(world.tables), (Texts{"AV", "MOOD"}));
    EXPECT_EQ(world.Next("NO"), (Texts{"advice 2: Sleep.", "button Close"}));
    Boxes();
}

TEST_F(AdvisorDialogTest, derivedVariableWithoutQuestion_becomesGoalByItself)
{
    EXPECT_EQ(Open({"DEFINE MOOD@Topic", "AV(1)=MOOD(GOOD)", "AV(2)=MOOD(BAD)", "MOOD(GOOD)=SUN(YES)",
                    "MOOD(BAD)=SUN(NO)"},
                   {"<Q ID=SUN>sun?</Q>"}),
              (Texts{"question SUN [] [YES] [NO]: sun?"}));
    EXPECT_EQ(Targets(world.tables), (Texts{"AV", "MOOD"}));
}

TEST_F(AdvisorDialogTest, noCandidates_isToldForTheTopGoal)
{
    EXPECT_EQ(Open({"AV(1)=MOOD(GOOD)", "AV(2)=MOOD(BAD)", "MOOD(GOOD)=SUN(YES)HOT(YES)",
                    "MOOD(BAD)=SUN(YES)HOT(NO)", "AV(3)=SUN(NO)"},
                   {"<Q ID=MOOD>mood?</Q>", "<Q ID=SUN>sun?</Q>"}),
              (Texts{"question MOOD derived [] [? - unsure] [GOOD] [BAD]: mood?"}));
    EXPECT_EQ(world.Next("? - unsure"), (Texts{"question SUN [] [YES] [NO]: sun?"}));
    world.tables.LogicRules(5) = "AV(3)=SUN(NO)LATE(YES)"; // so that the answer leaves the goal open
    world.tables.Index.Clear();
    EXPECT_EQ(world.Next("NO"),
              (Texts{"button Close", "text I can't find a question to ask for target MOOD."}));
    EXPECT_TRUE(world.dialog->Over());
}

TEST_F(AdvisorDialogTest, noRules_isToldForTheGoal)
{
    EXPECT_EQ(Open({}, {}), (Texts{"button Close", "text I can't find a question to ask for target AV."}));
}

TEST_F(AdvisorDialogTest, rulesForOtherGoalsOnly_areNoCandidates)
{
    EXPECT_EQ(Open({"TARGET", "AV(1)=A(X)"}, {}),
              (Texts{"button Close", "text I can't find a question to ask for target ."}));
}

TEST_F(AdvisorDialogTest, unregisteredVariable_endsDialogueWithBox)
{
    EXPECT_EQ(Open({"AV(1)=A(X)", "AV(2)=A(Y)"}, {}), (Texts{"button Close"}));
    EXPECT_EQ(Boxes(),
              (Texts{"exclamation|Lodestar Advisor|I can't find the variable definition for <<A>>."}));
}

TEST_F(AdvisorDialogTest, variableWithoutText_isTold)
{
    EXPECT_EQ(Open({"AV(1)=A(X)", "AV(2)=A(Y)"}, {"<Q ID=A></Q>"}),
              (Texts{"button Close", "text Can't find text for A"}));
    EXPECT_EQ(world.Next("X"), (Texts{"unload"}));
}

TEST_F(AdvisorDialogTest, variableWithoutValue_endsProgram)
{
    EXPECT_EQ(Open({"AV(1)=A()"}, {"<Q ID=A>a?</Q>"}), Texts{});
    EXPECT_EQ(world.seams.end.Reason(), "variable with no value in any rule");
}

TEST_F(AdvisorDialogTest, circularDefinition_endsProgramAfterItsBox)
{
    EXPECT_EQ(Open({"AV(1)=AV(2)"}, {}), Texts{});
    EXPECT_EQ(Boxes(), (Texts{"critical|Lodestar Advisor|Warning--circular definition"}));
    EXPECT_EQ(world.seams.end.Reason(), "circular definition");
    EXPECT_EQ(world.Next("X"), Texts{});
}

TEST_F(AdvisorDialogTest, reusedAnswers_openOnTheAdvice)
{
    Open({"TARGET R", "R(1)=A(X)", "R(2)=A(Y)"}, {"<Q ID=A>a?</Q>", "<Q ID=R>", "<AV ID=R(2)>Two.</AV>"});
    world.Next("Y");
    world.seams.messages.replies = {Reply::Yes};
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"advice R(2): Two.", "button Close"}));
    EXPECT_EQ(Boxes().size(), 1U);
}

TEST_F(AdvisorDialogTest, forgottenAnswers_askAgain)
{
    Open({"TARGET R", "R(1)=A(X)", "R(2)=A(Y)"}, {"<Q ID=A>a?</Q>", "<Q ID=R>"});
    world.Next("Y");
    world.seams.messages.replies = {Reply::No};
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"question A [] [X] [Y]: a?"}));
    Boxes();
}

constexpr const char* TwoTopics =
    "[Topic]\r\n<IXML>\r\n<LOGIC>\r\nTARGET R\r\nDEFINE MOOD@Other\r\nR(1)=MOOD(GOOD)\r\nR(2)=MOOD(BAD)\r\n"
    "<DEFINITIONS>\r\n<Q ID=R>\r\n<AV ID=R(1)>One.</AV>\r\n<AV ID=R(2)>Two.</AV>\r\n</DEFINITIONS>\r\n"
    "[Other]\r\ntext\r\n<IXML>\r\n<LOGIC>\r\nMOOD(GOOD)=SUN(YES)\r\nMOOD(BAD)=SUN(NO)\r\n<DEFINITIONS>\r\n"
    "<Q ID=MOOD>mood?</Q>\r\n<Q ID=SUN>sun?</Q>\r\n</DEFINITIONS>\r\n";

TEST_F(AdvisorDialogTest, variableOfOtherTopic_isAskedThereAndAdvisedHere)
{
    world.Open(TwoTopics);
    world.Show("Topic");
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"question MOOD derived [] [? - unsure] [GOOD] [BAD]: mood?"}));
    EXPECT_EQ(world.tables.CurrentVarTopic, 2);
    EXPECT_EQ(world.Next("? - unsure"), (Texts{"question SUN [] [YES] [NO]: sun?"}));
    EXPECT_EQ(world.Next("NO"), (Texts{"advice R(2): Two.", "button Close"}));
}

TEST_F(AdvisorDialogTest, reusedAnswersOfOtherTopic_settleGoalWhenItIsLoaded)
{
    world.Open(TwoTopics);
    world.Show("Topic");
    ASSERT_TRUE(Append(world.tables.Answers, world.tables.AnswerCount, Answer{"SUN", "YES", 2, false}, 20));
    world.tables.AnswersOrder = world.book.TopicOrder;
    ASSERT_TRUE(Append(world.tables.Answers, world.tables.AnswerCount, Answer{"MOOD", "GOOD", 3, false}, 20));
    world.seams.messages.replies = {Reply::Yes};
    world.Advise();
    // SUN=YES belongs to the loaded topic. Its rules conclude MOOD, but MOOD is not a goal yet.
    EXPECT_EQ(world.view.Take(), (Texts{"question MOOD derived [] [? - unsure] [GOOD] [BAD]: mood?"}));
    Boxes();
    world.tables.Answers(2).Topic = 2;
    world.seams.messages.replies = {Reply::Yes};
    world.Advise();
    EXPECT_EQ(world.view.Take(), (Texts{"advice R(1): One.", "button Close"}));
    Boxes();
}

TEST_F(AdvisorDialogTest, malformedRule_stopsAssertionsOnly)
{
    Open({"AV1)=Q(X)", "AV(1)=A(X)B(X)", "AV(2)=A(X)B(Y)", "AV(3)=A(Y)"},
         {"<Q ID=A>a?</Q>", "<Q ID=B>b?</Q>"});
    const std::string box = "exclamation|Lodestar Advisor|A LHS variable was found that is not in format "
                            "Varname(Value): AV1)=Q(X) -- processing stopped";
    EXPECT_EQ(world.Next("X"), (Texts{"question B [] [X] [Y]: b?"}));
    EXPECT_EQ(Boxes(), (Texts{box}));
    EXPECT_EQ(world.Next("X"), (Texts{"button Close", "text I can't find a question to ask for target AV."}));
    EXPECT_EQ(Boxes(), (Texts{box})); // AV(1) has fired after the malformed rule and is not seen
}

TEST_F(AdvisorDialogTest, overflow_endsTheDialogueWithOneBox)
{
    std::string rule = "AV(1)=A(X)";
    for (int i = 0; i < Count16::Max; ++i) {
        rule += "A(X)";
    }
    EXPECT_EQ(Open({rule.c_str()}, {"<Q ID=A>a?</Q>"}), (Texts{"button Close"}));
    EXPECT_EQ(Boxes(), (Texts{"critical|Lodestar Advisor|Overflow"}));
    EXPECT_EQ(world.Next(""), (Texts{"unload"}));
}

} // namespace
} // namespace ls
