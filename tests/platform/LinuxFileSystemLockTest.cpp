#include "platform/linux/LinuxFileSystem.h"

#include "ChildProcess.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

using test::RunInChild;

struct Row
{
    const char* name;
    Sharing first;
    Sharing second;
    int expected;
};

struct LinuxFileSystemLockTest : testing::TestWithParam<Row>
{
    test::ScratchFolder folder;
    std::string path = folder.Write("Guide.IDA", "book");
    LinuxFileSystem files;
    std::unique_ptr<BookFile> file;

    // The error number of opening the file in another process.
    int OpenElsewhere(Sharing sharing)
    {
        return RunInChild([this, sharing] {
            std::unique_ptr<BookFile> other;
            return LinuxFileSystem().OpenForReading(path, sharing, other).number;
        });
    }
};

TEST_P(LinuxFileSystemLockTest, open_heldByAnotherProcess_dependsOnBoth)
{
    ASSERT_EQ(files.OpenForReading(path, GetParam().first, file), FileError{});
    EXPECT_EQ(OpenElsewhere(GetParam().second), GetParam().expected);
}

TEST_P(LinuxFileSystemLockTest, open_heldByThisProcess_dependsOnBoth)
{
    ASSERT_EQ(files.OpenForReading(path, GetParam().first, file), FileError{});
    std::unique_ptr<BookFile> other;
    EXPECT_EQ(files.OpenForReading(path, GetParam().second, other), MakeFileError(GetParam().expected));
    EXPECT_EQ(other == nullptr, GetParam().expected != 0);
}

TEST_P(LinuxFileSystemLockTest, open_closedBefore_isGranted)
{
    ASSERT_EQ(files.OpenForReading(path, GetParam().first, file), FileError{});
    file.reset();
    EXPECT_EQ(OpenElsewhere(GetParam().second), 0);
}

INSTANTIATE_TEST_SUITE_P(Table, LinuxFileSystemLockTest,
                         testing::Values(Row{"sharedThenShared", Sharing::Shared, Sharing::Shared, 0},
                                         Row{"sharedThenLocked", Sharing::Shared, Sharing::Locked, 70},
                                         Row{"lockedThenShared", Sharing::Locked, Sharing::Shared, 70},
                                         Row{"lockedThenLocked", Sharing::Locked, Sharing::Locked, 70}),
                         [](const auto& row) { return row.param.name; });

using LinuxFileSystemLockedTest = LinuxFileSystemLockTest;

TEST_F(LinuxFileSystemLockedTest, exists_lockedFile_takesNoLock)
{
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, file), FileError{});
    EXPECT_TRUE(files.Exists(path));
}

TEST_F(LinuxFileSystemLockedTest, renameOver_lockedFile_isDone)
{
    ASSERT_EQ(files.OpenForReading(path, Sharing::Locked, file), FileError{});
    EXPECT_EQ(files.RenameOver(folder.Write("new", "new"), path), FileError{});
    EXPECT_EQ(folder.Read("Guide.IDA"), "new");
}

TEST_F(LinuxFileSystemLockedTest, open_readOnlyKernelFile_isGranted)
{
    EXPECT_EQ(files.OpenForReading("/proc/version", Sharing::Locked, file), FileError{});
    char first[5] = {};
    std::size_t got = 0;
    EXPECT_EQ(file->ReadAt(1, first, sizeof first, got), FileError{});
    EXPECT_EQ(std::string(first, got), "Linux");
}

} // namespace
} // namespace ls
