#include "CliFixture.h"
#include "EventLines.h"
#include "support/TestSeams.h"

namespace ls {
namespace {

using test::Json;
using Strings = std::vector<std::string>;

std::string LightsBook()
{
    return test::CrLf({
        "LODESTAR BOOK V5.3",
        "[Car Trouble]",
        "text",
        "<IXML>",
        "<LOGIC>",
        "TARGET CAUSE",
        "CAUSE(BATTERY) = LIGHTS(NO)",
        "CAUSE(FUEL) = LIGHTS(YES) TANK(EMPTY)",
        "CAUSE(\xC9T\xC9) = LIGHTS(YES) TANK(FULL)",
        "TANK(EMPTY) = GAUGE(LOW)",
        "TANK(FULL) = GAUGE(HIGH)",
        "<DEFINITIONS>",
        "<Q ID=CAUSE>",
        "</Q>",
        "<Q ID=LIGHTS>Do the lights",
        "come on?</Q>",
        "<Q ID=TANK>Is the tank full?</Q>",
        "<Q ID=GAUGE>What does the gauge show?</Q>",
        "<AV ID=CAUSE(BATTERY)>Charge the battery.</AV>",
        "<AV ID=CAUSE(FUEL)>Fill up.</AV>",
        "</DEFINITIONS>",
        "</IXML>",
        "[Plain]",
        "text",
        "[Broken]",
        "<IXML>",
        "<LOGIC>",
        "NONSENSE",
        "[Circle]",
        "<IXML>",
        "<LOGIC>",
        "AV(1)=AV(2)",
        "<DEFINITIONS>",
    });
}

class Advise : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = LightsBook(); }
};

TEST_F(Advise, answers_leadToAdvice)
{
    EXPECT_EQ(Out({"advise", "a.IDA", "Car Trouble", "--answers", "NO"}), "Advisor: Car Trouble\n"
                                                                          "\n"
                                                                          "Do the lights\n"
                                                                          "come on?\n"
                                                                          "  1) NO\n"
                                                                          "  2) YES\n"
                                                                          "> NO\n"
                                                                          "\n"
                                                                          "Advice CAUSE(BATTERY):\n"
                                                                          "Charge the battery.\n");
}

TEST_F(Advise, answersInJson_areTheEvents)
{
    EXPECT_EQ(Run({"advise", "a.IDA", "Car Trouble", "--answers", ",#2,?,LOW", "--json"}), 0);
    EXPECT_EQ(err, "Please select an answer before pressing NEXT\n");
    EXPECT_EQ(
        out,
        "[\n"
        "  {\"run\": 1, \"topic\": \"Car Trouble\"},\n"
        "  {\"question\": \"LIGHTS\", \"text\": \"Do the lights\\r\\ncome on?\", \"choices\": [\"NO\", "
        "\"YES\"], \"derived\": false},\n"
        "  {\"answer\": \"\"},\n"
        "  {\"box\": \"Please select an answer before pressing NEXT\", \"icon\": null, \"reply\": \"OK\"},\n"
        "  {\"answer\": \"YES\"},\n"
        "  {\"question\": \"TANK\", \"text\": \"Is the tank full?\", \"choices\": [\"? - unsure\", "
        "\"EMPTY\", "
        "\"FULL\"], \"derived\": true},\n"
        "  {\"answer\": \"? - unsure\"},\n"
        "  {\"question\": \"GAUGE\", \"text\": \"What does the gauge show?\", \"choices\": [\"LOW\", "
        "\"HIGH\"], \"derived\": false},\n"
        "  {\"answer\": \"LOW\"},\n"
        "  {\"advice\": \"CAUSE(FUEL)\", \"text\": \"Fill up.\"},\n"
        "  {\"button\": \"Close\"}\n"
        "]\n");
}

TEST_F(Advise, trace_showsRulesAndGoalsAfterEachAnswer)
{
    const Json events = OutJson({"advise", "a.IDA", "Car Trouble", "--answers", "YES,?", "--trace"});
    Strings traces;
    for (const Json& event : events.Items()) {
        if (event.Has("trace")) {
            traces.push_back(test::JoinedTexts(event["trace"]["rules"].Strings()) + " " +
                             test::JoinedTexts(event["trace"]["targets"].Strings()));
        }
    }
    EXPECT_EQ(traces, (Strings{"[CAUSE(FUEL)=TANK(EMPTY)][CAUSE(\xC3\x89T\xC3\x89)=TANK(FULL)]"
                               "[TANK(EMPTY)=GAUGE(LOW)][TANK(FULL)=GAUGE(HIGH)] [CAUSE]",
                               "[CAUSE(FUEL)=TANK(EMPTY)][CAUSE(\xC3\x89T\xC3\x89)=TANK(FULL)]"
                               "[TANK(EMPTY)=GAUGE(LOW)][TANK(FULL)=GAUGE(HIGH)] [CAUSE][TANK]"}));
}

TEST_F(Advise, noAnswers_waitsAtTheFirstQuestion)
{
    EXPECT_EQ(Out({"advise", "a.IDA", "Car Trouble", "--answers", "-"}),
              Out({"advise", "a.IDA", "Car Trouble"}));
    EXPECT_TRUE(out.ends_with("  2) YES\nNo answer is left for this question.\n")) << out;
}

TEST_F(Advise, answerNotOffered_endsWithTwo)
{
    const Json events = OutJson({"advise", "a.IDA", "Car Trouble", "--answers", "MAYBE"}, 2);
    EXPECT_EQ(test::EventLine(events.Items().back()), "invalid answer MAYBE [NO][YES]");
    const Json unmapped = OutJson({"advise", "a.IDA", "Car Trouble", "--answers", "\xE6\x97\xA5"}, 2);
    EXPECT_EQ(test::EventLine(unmapped.Items().back()), "invalid answer \xE6\x97\xA5 [NO][YES]");
}

TEST_F(Advise, topicWithoutLogic_endsWithOne)
{
    EXPECT_EQ(Out({"advise", "a.IDA", "Plain"}, 1), "Advisor: Plain\nThe topic has no advisor.\n");
}

TEST_F(Advise, unknownTopic_isTold)
{
    EXPECT_EQ(Run({"advise", "a.IDA", "Nowhere", "--json"}), 1);
    EXPECT_EQ(err, "warning: Topic [Nowhere] was not found.\n");
    EXPECT_EQ(out, "[\n"
                   "  {\"run\": 1, \"topic\": \"Nowhere\"},\n"
                   "  {\"box\": \"Topic [Nowhere] was not found.\", \"icon\": \"warning\", \"reply\": "
                   "\"OK\"},\n"
                   "  {\"no_advisor\": \"Nowhere\"}\n"
                   "]\n");
}

TEST_F(Advise, faultOfTheRules_endsWithFourAndStopsTheRuns)
{
    EXPECT_EQ(Run({"advise", "a.IDA", "Circle", "Plain", "--json"}), 4);
    EXPECT_EQ(err, "critical: Warning--circular definition\n");
    EXPECT_EQ(out, "[\n"
                   "  {\"run\": 1, \"topic\": \"Circle\"},\n"
                   "  {\"box\": \"Warning--circular definition\", \"icon\": \"critical\", \"reply\": "
                   "\"OK\"},\n"
                   "  {\"program_ends\": \"circular definition\"}\n"
                   "]\n");
}

TEST_F(Advise, runs_repeatTheLastTitleAndReuseAnswers)
{
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "Car Trouble", "--runs", "4", "--answers", "-;NO", "--reuse",
                   "yes", "--json"}),
              1);
    const std::string reuse =
        "You have already answered some questions.  In case your answers are relevant to "
        "this topic, do you wish me to re-use those answers?";
    EXPECT_EQ(err, "question: " + reuse + "\nquestion: " + reuse + "\n");
    Strings lines;
    for (const Json events = Json::Parse(out); const Json& event : events.Items()) {
        lines.push_back(test::EventLine(event));
    }
    const std::string question = "question LIGHTS [NO][YES]: Do the lights\r\ncome on?";
    EXPECT_EQ(lines,
              (Strings{"run 1 Plain", "no advisor Plain", "run 2 Car Trouble", question, "answer NO",
                       "advice CAUSE(BATTERY): Charge the battery.", "button Close", "run 3 Car Trouble",
                       "box question|" + reuse + "|Yes", "advice CAUSE(BATTERY): Charge the battery.",
                       "button Close", "run 4 Car Trouble", "box question|" + reuse + "|No", question,
                       "waiting LIGHTS"}));
}

TEST_F(Advise, wrongUsage_isTold)
{
    EXPECT_EQ(Run({"advise", "a.IDA"}), 2);
    EXPECT_EQ(Run({"advise", "a.IDA", ""}), 2);
    EXPECT_EQ(err, "lsbook advise: TITLE is empty\nTry \"lsbook help advise\".\n");
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "--reuse", "maybe"}), 2);
    EXPECT_EQ(err, "lsbook advise: --reuse takes yes or no, parted by commas\nTry \"lsbook help advise\".\n");
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "--answers", "A", "--answers-json", "x"}), 2);
    files["/work/x"] = "[1]";
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "--answers-json", "x"}), 2);
    EXPECT_EQ(err, "lsbook advise: \"x\" holds no list of lists of texts\nTry \"lsbook help advise\".\n");
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "--answers-json", "missing"}), 3);
}

TEST_F(Advise, atATerminal_asksUntilAChoiceIsGiven)
{
    inIsTerminal = true;
    in = "nothing\n2\n?\n low \n";
    EXPECT_EQ(Run({"advise", "a.IDA", "Car Trouble"}), 0);
    EXPECT_EQ(err, "Give one of the choices, or its number.\n");
    EXPECT_EQ(out, "Advisor: Car Trouble\n\nDo the lights\ncome on?\n  1) NO\n  2) YES\n"
                   "Your Answer: Your Answer: \n"
                   "Is the tank full?\n  1) ? - unsure\n  2) EMPTY\n  3) FULL\nYour Answer: \n"
                   "What does the gauge show?\n  1) LOW\n  2) HIGH\nYour Answer: \n"
                   "Advice CAUSE(FUEL):\nFill up.\n");
}

TEST_F(Advise, atATerminalInJson_asksBesideTheOutput)
{
    inIsTerminal = true;
    in = "no\n";
    EXPECT_EQ(Run({"advise", "a.IDA", "Car Trouble", "--json"}), 0);
    EXPECT_EQ(err, "Do the lights\r\ncome on?\n  1) NO\n  2) YES\nYour Answer: ");
    const std::vector<Json> events = Json::Parse(out).Items();
    ASSERT_EQ(events.size(), 5U) << out;
    EXPECT_EQ(events[1]["question"].String(), "LIGHTS");
    EXPECT_EQ(events[2]["answer"].String(), "NO");
    EXPECT_EQ(events[3]["advice"].String(), "CAUSE(BATTERY)");
}

TEST_F(Advise, atATerminal_endOfInputClosesTheDialogue)
{
    inIsTerminal = true;
    EXPECT_EQ(Run({"advise", "a.IDA", "Car Trouble"}), 0);
    EXPECT_TRUE(out.ends_with("Your Answer: \nNo answer is left for this question.\n")) << out;
}

TEST_F(Advise, atATerminal_reuseIsAsked)
{
    inIsTerminal = true;
    in = "NO\nyes\n";
    EXPECT_EQ(Run({"advise", "a.IDA", "Car Trouble", "--runs", "2"}), 0);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(out.ends_with("do you wish me to re-use those answers? [yes/no] \nAdvice CAUSE(BATTERY):\n"
                              "Charge the battery.\n"))
        << out;
}

} // namespace
} // namespace ls
