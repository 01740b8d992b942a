// Books opened by two processes, locked and shared.

#include "platform/windows/WindowsFileSystem.h"
#include "support/RunProgram.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct Row
{
    const char* name;
    Sharing first;
    const char* second;
    int expected; ///< error number for the second process
};

struct SharingTest : testing::TestWithParam<Row>
{
    test::ScratchFolder folder;
    std::string path = folder.Write("Guide.IDA", "book");
    WindowsFileSystem files;
    std::unique_ptr<BookFile> file;

    int OpenElsewhere()
    {
        return test::RunProgram(LS_PEER, {"open", GetParam().second, path}, folder.Path()).status;
    }
};

TEST_P(SharingTest, open_heldByAnotherProcess_dependsOnBoth)
{
    ASSERT_EQ(files.OpenForReading(path, GetParam().first, file), FileError{});
    EXPECT_EQ(OpenElsewhere(), GetParam().expected);
    file.reset();
    EXPECT_EQ(OpenElsewhere(), 0) << "once it is closed";
}

TEST_P(SharingTest, open_heldByThisProcess_dependsOnBoth)
{
    ASSERT_EQ(files.OpenForReading(path, GetParam().first, file), FileError{});
    std::unique_ptr<BookFile> other;
    const Sharing second = GetParam().second == std::string("locked") ? Sharing::Locked : Sharing::Shared;
    EXPECT_EQ(files.OpenForReading(path, second, other), MakeFileError(GetParam().expected));
    EXPECT_EQ(other == nullptr, GetParam().expected != 0);
}

INSTANTIATE_TEST_SUITE_P(Table, SharingTest,
                         testing::Values(Row{"sharedThenShared", Sharing::Shared, "shared", 0},
                                         Row{"sharedThenLocked", Sharing::Shared, "locked", 70},
                                         Row{"lockedThenShared", Sharing::Locked, "shared", 70},
                                         Row{"lockedThenLocked", Sharing::Locked, "locked", 70}),
                         [](const auto& row) { return row.param.name; });

struct ForeignProgram : testing::Test
{
    test::ScratchFolder folder;
    std::string path = folder.Write("Guide.IDA", "book");
    WindowsFileSystem files;
    std::unique_ptr<BookFile> file;

    int WriteElsewhere() { return test::RunProgram(LS_PEER, {"write", path}, folder.Path()).status; }
};

TEST_F(ForeignProgram, write_lockedBook_isRefusedByTheSystem)
{
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, file), FileError{});
    EXPECT_EQ(WriteElsewhere(), 70);
    EXPECT_TRUE(files.Exists(path)) << "Exists takes no lock";
    EXPECT_EQ(files.CheckWritable(path), FileError{});
    EXPECT_TRUE(files.SameFile(path, path));
}

TEST_F(ForeignProgram, write_sharedBook_isAllowed)
{
    ASSERT_EQ(files.OpenForReading(path, Sharing::Shared, file), FileError{});
    EXPECT_EQ(WriteElsewhere(), 0);
}

} // namespace
} // namespace ls
