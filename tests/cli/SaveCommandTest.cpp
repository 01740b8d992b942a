#include "CliFixture.h"

namespace ls {
namespace {

class Save : public test::CliFixture
{
protected:
    void SetUp() override { files["/work/a.IDA"] = Book; }

    const std::string Book = "LODESTAR BOOK V5.3\r\n[A]\r\na\r\n";
};

TEST_F(Save, newName_isWrittenAndItsSizeTold)
{
    EXPECT_EQ(Out({"save", "a.IDA", "b.IDA"}), "File saved: 28 bytes\n");
    EXPECT_EQ(files["/work/b.IDA"], Book);
}

TEST_F(Save, json_hasTheSize)
{
    EXPECT_EQ(Out({"save", "a.IDA", "b.IDA", "--json"}), "{\n  \"size\": 28\n}\n");
}

TEST_F(Save, existingName_isRefusedAndKept)
{
    files["/work/b.IDA"] = "kept";
    EXPECT_EQ(Run({"save", "a.IDA", "b.IDA"}), 1);
    EXPECT_EQ(err,
              "warning: The output file already exists, so I cannot save your book with this filename.\n");
    EXPECT_EQ(files["/work/b.IDA"], "kept");
}

TEST_F(Save, existingNameForced_isReplaced)
{
    files["/work/b.IDA"] = "old";
    EXPECT_EQ(Out({"save", "a.IDA", "b.IDA", "--force"}), "File saved: 28 bytes\n");
    EXPECT_EQ(files["/work/b.IDA"], Book);
    EXPECT_FALSE(files.Has("/work/b.IDA.new"));
}

TEST_F(Save, inputItself_isNeverWrittenOver)
{
    for (const char* force : {"--json", "--force"}) {
        EXPECT_EQ(Run({"save", "a.IDA", "/work/a.IDA", force}), 3);
        EXPECT_EQ(err, "warning: Failed to open output file due to error #55: File already open\n");
        EXPECT_EQ(files["/work/a.IDA"], Book);
    }
}

TEST_F(Save, bookWithoutTopics_hasNothingToSave)
{
    files["/work/empty.IDA"] = "LODESTAR BOOK V5.3\r\n";
    EXPECT_EQ(Run({"save", "empty.IDA", "b.IDA"}), 1);
    EXPECT_EQ(err, "exclamation: I have nothing to save.\n");
    EXPECT_FALSE(files.Has("/work/b.IDA"));
}

TEST_F(Save, plainText_hasNothingToSave)
{
    files["/work/a.TXT"] = "text\r\n";
    EXPECT_EQ(Run({"save", "a.TXT", "b.IDA", "--plain"}), 1);
    EXPECT_TRUE(err.ends_with("\nexclamation: I have nothing to save.\n")) << err;
    EXPECT_FALSE(files.Has("/work/b.IDA"));
}

TEST_F(Save, oneOperand_isWrongUsage)
{
    EXPECT_EQ(Run({"save", "a.IDA"}), 2);
}

} // namespace
} // namespace ls
