#include "platform/linux/KeyFile.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace ls {
namespace {

using Strings = std::vector<std::string>;

const char* const Text = "Key=before any group\n"
                         "[One]\n"
                         "# Key=comment\n"
                         "Key=first\n"
                         "  Spaced Key \t= a value \r\n"
                         "Key[de]=translated\n"
                         "Empty=\n"
                         "Equals=a=b\n"
                         "no assignment\n"
                         "[Two]\n"
                         "Key=two\n"
                         "[broken\n"
                         "Key=in no group\n"
                         "[One]\n"
                         "Again=again\n"
                         "Key=last";

struct Row
{
    const char* name;
    const char* group;
    const char* key;
    std::optional<std::string> expected;
};

struct KeyFileValueTest : testing::TestWithParam<Row>
{
};

TEST_P(KeyFileValueTest, keyFileValue_key_hasValue)
{
    EXPECT_EQ(KeyFileValue(Text, GetParam().group, GetParam().key), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, KeyFileValueTest,
    testing::Values(Row{"lastOfSeveral", "One", "Key", "last"}, Row{"otherGroup", "Two", "Key", "two"},
                    Row{"spacesAround", "One", "Spaced Key", "a value"},
                    Row{"translated", "One", "Key[de]", "translated"}, Row{"empty", "One", "Empty", ""},
                    Row{"equals", "One", "Equals", "a=b"}, Row{"groupAgain", "One", "Again", "again"},
                    Row{"missing", "One", "None", std::nullopt},
                    Row{"missingGroup", "Three", "Key", std::nullopt},
                    Row{"beforeAnyGroup", "", "Key", std::nullopt},
                    Row{"brokenGroup", "broken", "Key", std::nullopt},
                    Row{"otherCase", "one", "key", std::nullopt}),
    [](const auto& row) { return row.param.name; });

TEST(SplitListTest, splitList_parts_areTrimmedAndNotEmpty)
{
    EXPECT_EQ(SplitList("a;b ;; c;"), (Strings{"a", "b", "c"}));
    EXPECT_EQ(SplitList("a"), Strings{"a"});
    EXPECT_EQ(SplitList(""), Strings{});
    EXPECT_EQ(SplitList(";;"), Strings{});
    EXPECT_EQ(SplitList("/a:/b;c", ':'), (Strings{"/a", "/b;c"}));
}

TEST(ReadSmallFileTest, readSmallFile_regularFile_isItsText)
{
    test::ScratchFolder folder;
    EXPECT_EQ(ReadSmallFile(folder.Write("a", "text\n")), "text\n");
    EXPECT_EQ(ReadSmallFile(folder.Write("b", "")), "");
    EXPECT_EQ(ReadSmallFile(folder / "none"), std::nullopt);
    EXPECT_EQ(ReadSmallFile(folder.Path()), std::nullopt);
}

TEST(ReadSmallFileTest, readSmallFile_pipeOrDevice_doesNotWait)
{
    test::ScratchFolder folder;
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
    EXPECT_EQ(ReadSmallFile(folder / "pipe"), std::nullopt);
    EXPECT_EQ(ReadSmallFile("/dev/zero"), std::nullopt);
}

TEST(ReadSmallFileTest, readSmallFile_size_endsAtFourMebibytes)
{
    test::ScratchFolder folder;
    const std::string path = folder.Write("a", "");
    std::filesystem::resize_file(path, 4 * 1024 * 1024);
    ASSERT_TRUE(ReadSmallFile(path).has_value());
    EXPECT_EQ(ReadSmallFile(path)->size(), 4U * 1024 * 1024);
    std::filesystem::resize_file(path, 4 * 1024 * 1024 + 1);
    EXPECT_EQ(ReadSmallFile(path), std::nullopt);
    std::filesystem::resize_file(path, 1024 * 1024 * 1024);
    EXPECT_EQ(ReadSmallFile(path), std::nullopt);
}

} // namespace
} // namespace ls
