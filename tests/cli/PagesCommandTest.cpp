#include "CliFixture.h"

#include <algorithm>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

class Pages : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }

    // "printable_width printable_height chars_per_line lines_per_page left_margin_chars top_margin_lines".
    std::string SetupOf(const Strings& options)
    {
        Strings arguments = {"pages", "a.IDA", "Start"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        const test::Json json = OutJson(arguments);
        std::string text;
        for (const char* key : {"printable_width", "printable_height", "chars_per_line", "lines_per_page",
                                "left_margin_chars", "top_margin_lines"}) {
            text += (text.empty() ? "" : " ") + std::to_string(json["setup"][key].Int());
        }
        return text;
    }
};

TEST_F(Pages, topicInAPipe_isPlainTextAndEndsItsPage)
{
    EXPECT_EQ(Out({"pages", "a.IDA", "Start"}), "\n\n\n"
                                                "      Start\n\n"
                                                "      Café at the weir\n"
                                                "      10 < 20\n"
                                                "\f");
}

TEST_F(Pages, topicOnATerminal_hasPageNumbersAndStyles)
{
    outIsTerminal = true;
    EXPECT_EQ(Out({"pages", "a.IDA", "Start", "--colour"}),
              "--- page 1 of 1 ---\n\n\n\n"
              "      \033[1;3;4;31mStart\033[0m\n\n"
              "      \033[1;4;31mCafé\033[0m at the \033[1mweir\033[0m\n"
              "      10 < 20\n");
}

TEST_F(Pages, json_hasTheSetupAndEveryRun)
{
    EXPECT_EQ(
        Out({"pages", "a.IDA", "--number", "2", "--json", "--colour", "--page", "12240", "3000"}),
        "{\n"
        "  \"setup\": {\"printable_width\": 10368, \"printable_height\": 1272, \"chars_per_line\": 72, "
        "\"lines_per_page\": 4, \"left_margin_chars\": 6, \"top_margin_lines\": 3},\n"
        "  \"pages\": [\n"
        "    [{\"text\": \"\", \"bold\": false, \"italic\": false, \"underline\": false, \"colour\": [0, 0, "
        "0], "
        "\"end_row\": true}, "
        "{\"text\": \"\", \"bold\": false, \"italic\": false, \"underline\": false, \"colour\": [0, 0, 0], "
        "\"end_row\": true}, "
        "{\"text\": \"\", \"bold\": false, \"italic\": false, \"underline\": false, \"colour\": [0, 0, 0], "
        "\"end_row\": true}, "
        "{\"text\": \"      \", \"bold\": false, \"italic\": false, \"underline\": false, "
        "\"colour\": [0, 0, 0], \"end_row\": false}, "
        "{\"text\": \"Café\", \"bold\": true, \"italic\": true, \"underline\": true, "
        "\"colour\": [127, 0, 127], \"end_row\": true}, "
        "{\"text\": \"\", \"bold\": false, \"italic\": false, \"underline\": false, \"colour\": [0, 0, 0], "
        "\"end_row\": true}, "
        "{\"text\": \"      \", \"bold\": false, \"italic\": false, \"underline\": false, "
        "\"colour\": [0, 0, 0], \"end_row\": false}, "
        "{\"text\": \"- one two three four five six\", \"bold\": false, \"italic\": false, "
        "\"underline\": false, \"colour\": [0, 0, 0], \"end_row\": true}]\n"
        "  ]\n"
        "}\n");
}

TEST_F(Pages, longTopic_isSplitIntoPages)
{
    std::string book = "LODESTAR BOOK V5.3\r\n[A]\r\n";
    for (int line = 0; line < 100; ++line) {
        book += "x\r\n";
    }
    files["/work/b.IDA"] = book;
    const test::Json json = OutJson({"pages", "b.IDA", "A"});
    ASSERT_EQ(json["pages"].Items().size(), 2U + 1U) << "49 lines and the title, 51 lines, none";
    EXPECT_EQ(json["pages"].Items()[2].Items().size(), 3U) << "only the top margin";
    Run({"pages", "b.IDA", "A"});
    EXPECT_EQ(std::count(out.begin(), out.end(), 'x'), 100);
    EXPECT_EQ(std::count(out.begin(), out.end(), '\f'), 3);
}

TEST_F(Pages, options_setThePage)
{
    EXPECT_EQ(SetupOf({}), "10368 14112 72 51 6 3");
    EXPECT_EQ(SetupOf({"--cpi", "12"}), "10368 14112 86 62 8 4");
    EXPECT_EQ(SetupOf({"--landscape"}), "14400 10368 100 38 5 3");
    EXPECT_EQ(SetupOf({"--line-height", "300"}), "10368 14112 72 47 6 3");
    EXPECT_EQ(SetupOf({"--page", "11906", "16838"}), "10034 15110 69 55 6 3");
    EXPECT_EQ(SetupOf({"--page", "11906", "16838", "--landscape"}), "10466 14966 72 55 5 3")
        << "a given size is not turned";
    EXPECT_EQ(SetupOf({"--printable", "10800", "12960"}), "10368 12960 72 47 2 0");
}

TEST_F(Pages, plainText_hasNoTitle)
{
    files["/work/b.TXT"] = "one\r\n<IXML>\r\n[x]\r\n";
    EXPECT_EQ(Run({"pages", "b.TXT", "--plain"}), 0);
    EXPECT_EQ(out, "\n\n\n      one\n      <IXML>\n      [x]\n\f");
}

TEST_F(Pages, unknownTitle_writesThePageThatSaysSoAndEndsWithAFault)
{
    EXPECT_EQ(Run({"pages", "a.IDA", "Nowhere"}), 1);
    EXPECT_EQ(out, "Error on lookup of topic.\n\f");
    EXPECT_EQ(err, "warning: Topic [Nowhere] was not found.\n");
}

TEST_F(Pages, wrongUsage_isNamed)
{
    struct Row
    {
        Strings options;
        const char* said;
    };
    const Row rows[] = {
        {{"--cpi", "11"}, "--cpi is 10 or 12"},
        {{"--printable", "12241", "100"}, "--printable is larger than the page"},
        {{"--printable", "100", "15841"}, "--printable is larger than the page"},
        {{"--number", "1"}, "TITLE and --number exclude each other"},
    };
    for (const Row& row : rows) {
        Strings arguments = {"pages", "a.IDA", "Start"};
        arguments.insert(arguments.end(), row.options.begin(), row.options.end());
        EXPECT_EQ(Run(arguments), 2) << row.said;
        EXPECT_EQ(err, std::string("lsbook pages: ") + row.said + "\nTry \"lsbook help pages\".\n");
        EXPECT_EQ(out, "");
    }
    EXPECT_EQ(Run({"pages", "a.IDA", "Start", "--page", "0", "100"}), 2);
    EXPECT_EQ(Run({"pages", "a.IDA", "Start", "--page", "100"}), 2);
}

} // namespace
} // namespace ls
