#include "CliFixture.h"

namespace ls {
namespace {

class Show : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }
};

TEST_F(Show, topicInAPipe_isPlainText)
{
    EXPECT_EQ(Out({"show", "a.IDA", "Start"}), "Café at the weir\n10 < 20\n");
}

TEST_F(Show, topicOnATerminal_hasItsStyles)
{
    outIsTerminal = true;
    EXPECT_EQ(Out({"show", "a.IDA", "Start"}),
              "\033[1;4;31mCafé\033[0m at the \033[1mweir\033[0m\n10 < 20\n");
}

TEST_F(Show, headingsAndItalics_haveCodesOfTheirOwn)
{
    files["/work/b.IDA"] =
        "LODESTAR BOOK V5.3\r\n[A]\r\n<H2>two</H2>\r\n<H3>three</H3>\r\n<I>i</I><U>u</U>\r\n";
    outIsTerminal = true;
    EXPECT_EQ(Out({"show", "b.IDA", "A"}),
              "\033[1;32mtwo\033[0m\n\033[3;34mthree\033[0m\n\033[3mi\033[0m\033[4mu\033[0m\n");
}

TEST_F(Show, terminalWithoutColour_isPlain)
{
    outIsTerminal = true;
    processes.environment["NO_COLOR"] = "1";
    EXPECT_EQ(Out({"show", "a.IDA", "Start"}), "Café at the weir\n10 < 20\n");
    processes.environment = {{"TERM", "dumb"}};
    EXPECT_EQ(Out({"show", "a.IDA", "Start"}), "Café at the weir\n10 < 20\n");
}

TEST_F(Show, escapeInATopicOnATerminal_isShownAndNotSent)
{
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\na\033]0;x\007b\nc\r\n";
    outIsTerminal = true;
    EXPECT_EQ(Out({"show", "b.IDA", "A"}), "a\xE2\x90\x9B]0;x\xE2\x90\x87"
                                           "b\xE2\x90\x8A"
                                           "c\n");
}

TEST_F(Show, rowThatDoesNotBreak_isWholeHoweverLongItIs)
{
    std::string row = "a < b";
    std::string shown = row;
    for (int i = 0; i < 20000; ++i) {
        row += " caf\xE9";
        shown += " café";
    }
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n" + row + "\r\n<U>" + row + "\r\n";
    EXPECT_TRUE(Out({"show", "b.IDA", "A"}) == shown + "\n" + shown + "\n");
    outIsTerminal = true;
    EXPECT_TRUE(Out({"show", "b.IDA", "A"}) == shown + "\n\033[4m" + shown + "\033[0m\n");
}

TEST_F(Show, width_wrapsWithTheHangingIndent)
{
    EXPECT_EQ(Out({"show", "a.IDA", "Café", "--width", "14"}), "- one two\n  three four\n  five six\n");
}

TEST_F(Show, width_comesFromTheTerminalElseEighty)
{
    columns = 14;
    EXPECT_EQ(Out({"show", "a.IDA", "Café"}), "- one two\n  three four\n  five six\n");
    columns = 0;
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n" + std::string(100, 'x') + "\r\n";
    EXPECT_EQ(Out({"show", "b.IDA", "A"}), std::string(80, 'x') + "\n" + std::string(20, 'x') + "\n");
}

TEST_F(Show, json_hasTheWrappedLinesWithTheirMarkup)
{
    EXPECT_EQ(Out({"show", "a.IDA", "Start", "--json"}), "{\n"
                                                         "  \"count\": 2,\n"
                                                         "  \"lines\": [\n"
                                                         "    \"<H1>Café</H1> at the <B>weir</B>\",\n"
                                                         "    \"10 &LT; 20\"\n"
                                                         "  ],\n"
                                                         "  \"xref_button\": true,\n"
                                                         "  \"advisor_button\": false,\n"
                                                         "  \"logic_pos\": 0,\n"
                                                         "  \"messages\": []\n"
                                                         "}\n");
}

TEST_F(Show, topicWithLogic_tellsItsPlace)
{
    const test::Json shown = OutJson({"show", "a.IDA", "Advice"});
    EXPECT_TRUE(shown["advisor_button"].Bool());
    EXPECT_FALSE(shown["xref_button"].Bool());
    EXPECT_EQ(shown["logic_pos"].Int(),
              static_cast<int>(test::SmallBook().find("<IXML>\r\n") + std::string("<IXML>\r\n").size()) + 1);
}

TEST_F(Show, runsInJson_areWhatThePaneDraws)
{
    EXPECT_EQ(Out({"show", "a.IDA", "Start", "--runs", "--json"}),
              "{\n"
              "  \"runs\": [\n"
              "    {\"text\": \"Café\", \"bold\": true, \"italic\": false, \"underline\": true, "
              "\"colour\": [127, 0, 0], \"end_row\": false},\n"
              "    {\"text\": \" at the \", \"bold\": false, \"italic\": false, \"underline\": false, "
              "\"colour\": [0, 0, 0], \"end_row\": false},\n"
              "    {\"text\": \"weir\", \"bold\": true, \"italic\": false, \"underline\": false, "
              "\"colour\": [0, 0, 0], \"end_row\": true},\n"
              "    {\"text\": \"10 <\", \"bold\": false, \"italic\": false, \"underline\": false, "
              "\"colour\": [0, 0, 0], \"end_row\": false},\n"
              "    {\"text\": \" 20\", \"bold\": false, \"italic\": false, \"underline\": false, "
              "\"colour\": [0, 0, 0], \"end_row\": true}\n"
              "  ]\n"
              "}\n");
}

TEST_F(Show, runsForPeople_haveALineEach)
{
    EXPECT_EQ(Out({"show", "a.IDA", "Start", "--runs"}), "1:1 b-u #7f0000 |Café|\n"
                                                         "1:5 --- #000000 | at the |\n"
                                                         "1:13 b-- #000000 |weir| end\n"
                                                         "2:1 --- #000000 |10 <|\n"
                                                         "2:5 --- #000000 | 20| end\n");
}

TEST_F(Show, firstAndRows_chooseTheDrawnLines)
{
    files["/work/b.IDA"] = "LODESTAR BOOK V5.3\r\n[A]\r\n<B>one\r\ntwo</B>\r\nthree\r\nfour\r\n";
    EXPECT_EQ(Out({"show", "b.IDA", "A", "--first", "2", "--rows", "2"}), "two\nthree\n");
    EXPECT_EQ(Out({"show", "b.IDA", "A", "--first", "4"}), "four\n");
    EXPECT_EQ(Out({"show", "b.IDA", "A", "--first", "5"}), "");
    EXPECT_EQ(Out({"show", "b.IDA", "A", "--first", "9", "--rows", "3", "--runs"}), "");
    const test::Json runs = OutJson({"show", "b.IDA", "A", "--runs", "--first", "2", "--rows", "1"});
    ASSERT_EQ(runs["runs"].Items().size(), 1U);
    EXPECT_EQ(runs["runs"].Items().front()["text"].String(), "two");
    EXPECT_FALSE(runs["runs"].Items().front()["bold"].Bool()) << "<B> is above the first line";
}

TEST_F(Show, firstInJsonWithoutRuns_isWrongUsage)
{
    EXPECT_EQ(Run({"show", "a.IDA", "Start", "--json", "--first", "2"}), 2);
    EXPECT_EQ(err, "lsbook show: --first and --rows go with --runs in JSON, where \"lines\" is the whole "
                   "topic\nTry \"lsbook help show\".\n");
}

TEST_F(Show, widthBelowEleven_isWrongUsage)
{
    EXPECT_EQ(Run({"show", "a.IDA", "Start", "--width", "10"}), 2);
    EXPECT_EQ(err, "lsbook show: --width needs a whole number from 11 to 32767, not \"10\"\n"
                   "Try \"lsbook help show\".\n");
}

TEST_F(Show, plainTextFile_isShownWhole)
{
    files["/work/a.txt"] = "[A]\r\n<B>x</B>\r\n<IXML>\r\n";
    EXPECT_EQ(Run({"show", "a.txt", "--plain"}), 0);
    EXPECT_EQ(out, "[A]\n<B>x</B>\n<IXML>\n");
}

} // namespace
} // namespace ls
