#include "platform/linux/RenameToNewName.h"

#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace ls {
namespace {

using test::ScratchFolder;

struct Way
{
    const char* name;
    int (*rename)(const std::string& from, const std::string& to);
};

struct RenameToNewNameTest : testing::TestWithParam<Way>
{
    ScratchFolder folder;

    int Rename(const std::string& from, const std::string& to)
    {
        return GetParam().rename(folder / from, folder / to);
    }
};

TEST_P(RenameToNewNameTest, rename_freeName_movesTheFile)
{
    folder.Write("a", "bytes");
    EXPECT_EQ(Rename("a", "b"), 0);
    EXPECT_FALSE(folder.Has("a"));
    EXPECT_EQ(folder.Read("b"), "bytes");
}

TEST_P(RenameToNewNameTest, rename_takenName_keepsBoth)
{
    folder.Write("a", "mine");
    folder.Write("b", "another's");
    EXPECT_EQ(Rename("a", "b"), EEXIST);
    EXPECT_EQ(folder.Read("a"), "mine");
    EXPECT_EQ(folder.Read("b"), "another's");
}

TEST_P(RenameToNewNameTest, rename_missingFile_leavesNothingBehind)
{
    EXPECT_EQ(Rename("a", "b"), ENOENT);
    EXPECT_FALSE(folder.Has("b"));
}

TEST_P(RenameToNewNameTest, rename_missingFolder_keepsTheFile)
{
    folder.Write("a", "bytes");
    EXPECT_EQ(Rename("a", "none/b"), ENOENT);
    EXPECT_EQ(folder.Read("a"), "bytes");
}

INSTANTIATE_TEST_SUITE_P(Ways, RenameToNewNameTest,
                         testing::Values(Way{"best", RenameToNewName}, Way{"byFlag", RenameByFlag},
                                         Way{"byLink", RenameByLink},
                                         Way{"byReservation", RenameByReservation}),
                         [](const auto& way) { return way.param.name; });

} // namespace
} // namespace ls
