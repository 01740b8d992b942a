#include "CliFixture.h"

namespace ls {
namespace {

class Convert : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.txt"] = "caf\xC3\xA9\nb\r\nc\n"; }

    const std::string Converted = "caf\xE9\r\nb\r\nc\r\n";
};

TEST_F(Convert, text_isWrittenAndItsLinesCounted)
{
    EXPECT_EQ(Out({"convert", "a.txt", "b.IDA"}), "File saved: 3 lines, 2 converted\n");
    EXPECT_EQ(files["/work/b.IDA"], Converted);
    EXPECT_FALSE(files.Has("/work/b.IDA.new"));
    EXPECT_EQ(files["/work/a.txt"], "caf\xC3\xA9\nb\r\nc\n");
}

TEST_F(Convert, json_hasTheTwoCounts)
{
    EXPECT_EQ(Out({"convert", "a.txt", "b.IDA", "--json"}), "{\n  \"lines\": 3,\n  \"converted\": 2\n}\n");
}

TEST_F(Convert, convertedText_needsNoMore)
{
    files["/work/c.IDA"] = Converted;
    EXPECT_EQ(Out({"convert", "c.IDA", "d.IDA"}),
              "File saved: 3 lines, 0 converted\n"
              "The text is no UTF-8: its bytes were kept as Windows-1252.\n");
    EXPECT_EQ(files["/work/d.IDA"], Converted);
}

TEST_F(Convert, charactersWithoutAPlace_areAllNamedAndNothingIsWritten)
{
    files["/work/a.txt"] = "\xE2\x86\x92\nx \xE2\x86\x92\n\xD0\x96\n\xC2\x80\n\xF0\x9F\x98\x80\xE2\x86\x92\n";
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA"}), 1);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, "exclamation: The code page of books has no \xE2\x86\x92 (U+2192): lines 1, 2 and 5.\n"
                   "exclamation: The code page of books has no \xD0\x96 (U+0416): line 3.\n"
                   "exclamation: The code page of books has no U+0080: line 4.\n"
                   "exclamation: The code page of books has no \xF0\x9F\x98\x80 (U+1F600): line 5.\n");
    EXPECT_FALSE(files.Has("/work/b.IDA"));
}

TEST_F(Convert, characterInManyLines_namesTenOfThem)
{
    files["/work/a.txt"].clear();
    for (int line = 1; line <= 13; ++line) {
        files["/work/a.txt"] += "\xE2\x86\x92\n";
    }
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA"}), 1);
    EXPECT_EQ(err, "exclamation: The code page of books has no \xE2\x86\x92 (U+2192): lines 1, 2, 3, 4, 5, "
                   "6, 7, 8, 9, 10 and 3 more.\n");
}

TEST_F(Convert, charactersWithoutAPlaceAsJson_areTheMessages)
{
    files["/work/a.txt"] = "\xE2\x86\x92\n\xD0\x96\n";
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA", "--json"}), 1);
    const std::vector<test::Json> messages = test::Json::Parse(out)["messages"].Items();
    ASSERT_EQ(messages.size(), 2U);
    EXPECT_EQ(messages[1]["text"].String(), "The code page of books has no \xD0\x96 (U+0416): line 2.");
}

TEST_F(Convert, existingName_isRefusedAndKept)
{
    files["/work/b.IDA"] = "kept";
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA"}), 1);
    EXPECT_EQ(err, "warning: The output file already exists; --force replaces it.\n");
    EXPECT_EQ(files["/work/b.IDA"], "kept");
}

TEST_F(Convert, existingNameForced_isReplaced)
{
    files["/work/b.IDA"] = "old";
    EXPECT_EQ(Out({"convert", "a.txt", "b.IDA", "--force"}), "File saved: 3 lines, 2 converted\n");
    EXPECT_EQ(files["/work/b.IDA"], Converted);
    EXPECT_FALSE(files.Has("/work/b.IDA.new"));
}

TEST_F(Convert, inputItself_isNeverWrittenOver)
{
    for (const char* option : {"--json", "--force"}) {
        EXPECT_EQ(Run({"convert", "a.txt", "/work/a.txt", option}), 3);
        EXPECT_EQ(err, "warning: Failed to open output file due to error #55: File already open\n");
        EXPECT_EQ(files["/work/a.txt"], "caf\xC3\xA9\nb\r\nc\n");
    }
}

TEST_F(Convert, utf16_isRefused)
{
    files["/work/a.txt"] = "\xFF\xFEx";
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA"}), 1);
    EXPECT_EQ(err, "exclamation: The file is UTF-16. Save it as UTF-8 first.\n");
    EXPECT_FALSE(files.Has("/work/b.IDA"));
}

TEST_F(Convert, brokenUtf8BehindItsMark_isRefused)
{
    files["/work/a.txt"] = "\xEF\xBB\xBF"
                           "a\n\xE9\n";
    EXPECT_EQ(Run({"convert", "a.txt", "b.IDA"}), 1);
    EXPECT_EQ(err, "exclamation: The file begins with the mark of UTF-8, but line 2 is no UTF-8.\n");
}

TEST_F(Convert, oneOperand_isWrongUsage)
{
    EXPECT_EQ(Run({"convert", "a.txt"}), 2);
}

} // namespace
} // namespace ls
