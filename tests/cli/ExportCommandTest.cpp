#include "CliFixture.h"

#include "support/TestSeams.h"

namespace ls {
namespace {

const std::string Complete = "information: The export is complete.\n";

class Export : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = test::SmallBook(); }

    const std::string Cafe =
        test::CrLf({"<HTML>", "<HEAD>", "<TITLE>Caf\xE9</TITLE>", "</HEAD>", "<BODY>", "<UL>",
                    "<LI>one two three four five six</LI>", "</BODY>", "</HTML>"});
};

TEST_F(Export, withoutAFile_writesTheBytesToStandardOutput)
{
    EXPECT_EQ(Run({"export", "a.IDA", "Café"}), 0);
    EXPECT_EQ(out, Cafe);
    EXPECT_EQ(err, Complete);
    EXPECT_EQ(Run({"export", "a.IDA", "--number", "2"}), 0);
    EXPECT_EQ(out, Cafe);
}

TEST_F(Export, terminal_getsTextItCanShow)
{
    outIsTerminal = true;
    EXPECT_EQ(Run({"export", "a.IDA", "Café"}), 0);
    EXPECT_TRUE(out.starts_with("<HTML>\n<HEAD>\n<TITLE>Café</TITLE>\n")) << out;
}

TEST_F(Export, file_getsTheSameBytes)
{
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "x.htm"}), 0);
    EXPECT_EQ(files["/work/x.htm"], Cafe);
    EXPECT_EQ(out, "");
    EXPECT_EQ(err, Complete);
    EXPECT_FALSE(files.Has("/work/x.htm.new"));
}

TEST_F(Export, json_hasTheDocumentAsUnicode)
{
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "--json"}), 0);
    const test::Json json = test::Json::Parse(out);
    EXPECT_TRUE(json["html"].String().starts_with("<HTML>\r\n<HEAD>\r\n<TITLE>Café</TITLE>\r\n"));
    ASSERT_EQ(json["messages"].Items().size(), 1U);
    EXPECT_EQ(json["messages"].Items()[0]["text"].String(), "The export is complete.");
}

TEST_F(Export, jsonWithAFile_givesBoth)
{
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "x.htm", "--json"}), 0);
    EXPECT_TRUE(test::Json::Parse(out)["html"].String().starts_with("<HTML>\r\n"));
    EXPECT_EQ(files["/work/x.htm"], Cafe);
    EXPECT_EQ(err, Complete) << "reported once";
}

TEST_F(Export, existingFile_isRefusedAndKept)
{
    files["/work/x.htm"] = "kept";
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "x.htm"}), 1);
    EXPECT_EQ(err, "warning: The output file already exists; --force replaces it.\n");
    EXPECT_EQ(files["/work/x.htm"], "kept");
    EXPECT_EQ(out, "");
}

TEST_F(Export, fileThatComesMeanwhile_isKept)
{
    files.fail = [this](const std::string& operation) {
        if (operation.starts_with("finish")) {
            files["/work/x.htm"] = "somebody else's";
        }
        return 0;
    };
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "x.htm"}), 3);
    EXPECT_EQ(err, "warning: Failed to write due to error #58: File already exists\n");
    EXPECT_EQ(files["/work/x.htm"], "somebody else's");
    EXPECT_FALSE(files.Has("/work/x.htm.new"));
    EXPECT_EQ(out, "");
}

TEST_F(Export, existingFileForced_isReplaced)
{
    files["/work/x.htm"] = "old";
    EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "x.htm", "--force"}), 0);
    EXPECT_EQ(files["/work/x.htm"], Cafe);
}

TEST_F(Export, inputItself_isNeverWrittenOver)
{
    for (const char* option : {"--force", "--json"}) {
        EXPECT_EQ(Run({"export", "a.IDA", "Café", "-o", "/work/a.IDA", option}), 3);
        EXPECT_EQ(err, "warning: Failed to open <</work/a.IDA>> due to error #55: File already open.\n");
        EXPECT_EQ(files["/work/a.IDA"], test::SmallBook());
    }
}

TEST_F(Export, unknownTitle_isToldAndMakesNoFile)
{
    EXPECT_EQ(Run({"export", "a.IDA", "cafe", "-o", "x.htm"}), 1);
    EXPECT_EQ(err, "warning: Topic [cafe] was not found.\n");
    EXPECT_FALSE(files.Has("/work/x.htm"));
    EXPECT_EQ(Run({"export", "a.IDA", "cafe", "--json"}), 1);
    EXPECT_EQ(test::Json::Parse(out)["messages"].Items().size(), 1U);
}

TEST_F(Export, fileThatIsNoBook_isAFaultAndNoOptionIsPromised)
{
    files["/work/a.txt"] = "text\r\n";
    EXPECT_EQ(Run({"export", "a.txt", "A"}), 1);
    EXPECT_EQ(err,
              "question: The file you opened is not a Lodestar Book or Advice file. Do you want to view it "
              "as a single topic text file?\n");
}

TEST_F(Export, withoutATitle_isWrongUsage)
{
    EXPECT_EQ(Run({"export", "a.IDA"}), 2);
    EXPECT_EQ(err, "lsbook export: TITLE is missing (or --number N)\nTry \"lsbook help export\".\n");
    EXPECT_EQ(Run({"export", "a.IDA", "Start", "-o"}), 2);
    EXPECT_EQ(err, "lsbook export: -o needs FILE\nTry \"lsbook help export\".\n");
}

} // namespace
} // namespace ls
