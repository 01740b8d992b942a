#include "CliFixture.h"
#include "support/TestSeams.h"

namespace ls {
namespace {

using test::CrLf;

class Explore : public test::CliFixture
{
protected:
    void SetUp() override
    {
        files["/work/a.IDA"] = CrLf({
            "LODESTAR BOOK V5.3",
            "[Car]",
            "<IXML>",
            "<LOGIC>",
            "TARGET CAUSE",
            "CAUSE(\xC9T\xC9) = LIGHTS(NO)",
            "CAUSE(FUEL) = LIGHTS(YES) TANK(EMPTY)",
            "TANK(EMPTY) = CAUSE(X)",
            "TANK(FULL) = GAUGE(HIGH)",
            "<DEFINITIONS>",
            "<Q ID=CAUSE></Q>",
            "<Q ID=LIGHTS>Lights?</Q>",
            "<Q ID=TANK>Tank?</Q>",
            "<AV ID=CAUSE(\xC9T\xC9)>Wait for",
            "summer.</AV>",
            "<AV ID=CAUSE(KEY)>Turn the key.</AV>",
            "</DEFINITIONS>",
            "</IXML>",
            "[Plain]",
            "text",
            "[Broken]",
            "<IXML>",
            "<LOGIC>",
            "NONSENSE",
        });
    }
};

TEST_F(Explore, text_tellsEveryEndAndTheCounts)
{
    EXPECT_EQ(
        Out({"advise", "a.IDA", "Car", "--explore"}, 1),
        "Advisor: Car\n"
        "Advice CAUSE(\xC3\x89T\xC3\x89) after LIGHTS = NO\n"
        "    Wait for summer.\n"
        "Advice CAUSE(FUEL) after LIGHTS = YES, TANK = EMPTY\n"
        "    (without a text)\n"
        "Never reached: CAUSE(KEY)\n"
        "Dead end after LIGHTS = YES, TANK = FULL: no rule left\n"
        "    I can't find a question to ask for target CAUSE.\n"
        "The program ends after LIGHTS = YES, TANK = ? - unsure: circular definition\n"
        "    Box: Warning--circular definition\n"
        "2 pieces of advice reached, 1 not; 1 dead end; 1 fault that would end the program; 2 states of "
        "the dialogue\n");
}

TEST_F(Explore, json_hasAListForEachKind)
{
    EXPECT_EQ(
        Out({"advise", "a.IDA", "Car", "--explore", "--json"}, 1),
        "{\n"
        "  \"topic\": \"Car\",\n"
        "  \"target\": \"CAUSE\",\n"
        "  \"states\": 2,\n"
        "  \"cut\": false,\n"
        "  \"advice\": [\n"
        "    {\"advice\": \"CAUSE(\xC3\x89T\xC3\x89)\", \"text\": \"Wait for\\r\\nsummer.\", \"answers\": "
        "[{\"question\": \"LIGHTS\", \"answer\": \"NO\"}], \"boxes\": []},\n"
        "    {\"advice\": \"CAUSE(FUEL)\", \"text\": \"\", \"answers\": [{\"question\": \"LIGHTS\", "
        "\"answer\": \"YES\"}, {\"question\": \"TANK\", \"answer\": \"EMPTY\"}], \"boxes\": []}\n"
        "  ],\n"
        "  \"never_reached\": [\n"
        "    \"CAUSE(KEY)\"\n"
        "  ],\n"
        "  \"dead_ends\": [\n"
        "    {\"reason\": \"no rule left\", \"text\": \"I can't find a question to ask for target "
        "CAUSE.\", \"answers\": [{\"question\": \"LIGHTS\", \"answer\": \"YES\"}, {\"question\": "
        "\"TANK\", \"answer\": \"FULL\"}], \"boxes\": []}\n"
        "  ],\n"
        "  \"program_ends\": [\n"
        "    {\"reason\": \"circular definition\", \"answers\": [{\"question\": \"LIGHTS\", \"answer\": "
        "\"YES\"}, {\"question\": \"TANK\", \"answer\": \"? - unsure\"}], \"boxes\": "
        "[\"Warning--circular definition\"]}\n"
        "  ]\n"
        "}\n");
}

TEST_F(Explore, limitMet_saysThatTheSearchWasCut)
{
    const std::string text = Out({"advise", "a.IDA", "Car", "--explore", "--limit", "1"});
    EXPECT_NE(text.find("Not reached so far: CAUSE(FUEL)\n"), std::string::npos) << text;
    EXPECT_TRUE(text.ends_with("1 state of the dialogue\nThe search was cut: there may be more. --limit sets "
                               "how many states are looked at.\n"))
        << text;
    EXPECT_TRUE(OutJson({"advise", "a.IDA", "Car", "--explore", "--limit", "1"})["cut"].Bool());
}

TEST_F(Explore, titleBehindTheOption_isTheTopic)
{
    EXPECT_EQ(Out({"advise", "--explore", "a.IDA", "Car"}, 1),
              Out({"advise", "a.IDA", "Car", "--explore"}, 1));
}

TEST_F(Explore, topicWithoutAnAdvisor_isAFault)
{
    EXPECT_EQ(Run({"advise", "a.IDA", "Plain", "--explore"}), 1);
    EXPECT_EQ(err, "exclamation: The topic has no advisor.\n");
    EXPECT_EQ(out, "");
}

TEST_F(Explore, logicThatCannotBeLoaded_isAFault)
{
    EXPECT_EQ(
        Out({"advise", "a.IDA", "Broken", "--explore"}, 1),
        "Advisor: Broken\n"
        "Dead end at once: logic not loaded\n"
        "    Failure loading logic section for topic <<[Broken]>>; I can't proceed.\n"
        "    Box: Invalid command in <LOGIC> section for the current topic\n"
        "0 pieces of advice reached, 0 not; 1 dead end; 0 faults that would end the program; 0 states of "
        "the dialogue\n");
}

TEST_F(Explore, longSearchAtATerminal_countsItsStates)
{
    std::string rules;
    for (int i = 0; i < 150; ++i) {
        const std::string number = std::to_string(i);
        rules += "G(1)=A" + number + "(X)\r\nH(1)=A" + number + "(Y)\r\n";
    }
    std::string questions;
    for (int i = 0; i < 150; ++i) {
        questions += "<Q ID=A" + std::to_string(i) + ">?</Q>\r\n";
    }
    files["/work/long.IDA"] = "LODESTAR BOOK V5.3\r\n[T]\r\n<IXML>\r\n<LOGIC>\r\nTARGET G\r\n" + rules +
                              "<DEFINITIONS>\r\n<Q ID=G></Q>\r\n" + questions +
                              "</DEFINITIONS>\r\n</IXML>\r\n";
    errIsTerminal = true;
    EXPECT_EQ(Run({"advise", "long.IDA", "T", "--explore"}), 0);
    EXPECT_EQ(err, "\r\033[KExploring: 100 states\r\033[K");
    errIsTerminal = false;
    EXPECT_EQ(Run({"advise", "long.IDA", "T", "--explore"}), 0);
    EXPECT_EQ(err, "");
}

TEST_F(Explore, optionsOfDialogues_areWrongUsage)
{
    for (const std::string option : {"--answers", "--answers-json", "--reuse", "--runs"}) {
        EXPECT_EQ(Run({"advise", "a.IDA", "Car", "--explore", option, "1"}), 2);
        EXPECT_EQ(err, "lsbook advise: --explore and " + option +
                           " exclude each other\nTry \"lsbook help advise\".\n");
    }
    EXPECT_EQ(Run({"advise", "a.IDA", "Car", "--explore", "--trace"}), 2);
    EXPECT_EQ(Run({"advise", "a.IDA", "Car", "Car", "--explore"}), 2);
    EXPECT_EQ(Run({"advise", "a.IDA", "", "--explore"}), 2);
    EXPECT_EQ(Run({"advise", "a.IDA", "Car", "--limit", "5"}), 2);
    EXPECT_EQ(err, "lsbook advise: --limit goes with --explore\nTry \"lsbook help advise\".\n");
    EXPECT_EQ(Run({"advise", "a.IDA", "Car", "--explore", "--limit", "0"}), 2);
}

} // namespace
} // namespace ls
