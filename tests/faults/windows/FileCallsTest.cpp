// How the program handles the system's errors when a file cannot be opened, read, written or renamed.

#include "../FailingCalls.h"
#include "platform/windows/WindowsFileSystem.h"
#include "support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <windows.h>

namespace ls {
namespace {

using test::FailingCalls;

struct CodeRow
{
    const char* name;
    DWORD code;
    int expected;
};

struct FileCalls : testing::TestWithParam<CodeRow>
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
    test::SystemFault fault{GetParam().name, static_cast<int>(GetParam().code), false};
    FileError expected = MakeFileError(GetParam().expected);

    FileError ReadAll(std::string& text)
    {
        std::unique_ptr<BookFile> file;
        EXPECT_EQ(files.OpenForReading(folder.Write("a", "book"), Sharing::Locked, file), FileError{});
        const FailingCalls failing(1, fault);
        std::size_t got = 7;
        text.assign(10, '?');
        const FileError error = file->ReadAt(1, text.data(), text.size(), got);
        EXPECT_EQ(failing.Error(), "ReadFile");
        text.resize(got);
        return error;
    }
};

TEST_P(FileCalls, read_thatFails_isTold)
{
    std::string text;
    EXPECT_EQ(ReadAll(text), expected);
    EXPECT_EQ(text, "");
}

TEST_P(FileCalls, size_thatFails_isTold)
{
    std::unique_ptr<BookFile> file;
    ASSERT_EQ(files.OpenForReading(folder.Write("a", "book"), Sharing::Shared, file), FileError{});
    const FailingCalls failing(1, fault);
    FilePos size = 0;
    EXPECT_EQ(file->Size(size), expected);
    EXPECT_EQ(failing.Error(), "GetFileSizeEx");
}

TEST_P(FileCalls, open_thatFails_isTold)
{
    const std::string path = folder.Write("a", "book");
    for (int call = 1; call <= 2; ++call) {
        const FailingCalls failing(call, fault);
        std::unique_ptr<BookFile> file;
        EXPECT_EQ(files.OpenForReading(path, Sharing::Shared, file), expected);
        EXPECT_EQ(file, nullptr);
        EXPECT_EQ(failing.Error(), call == 1 ? "CreateFileW" : "GetFileType");
    }
}

TEST_P(FileCalls, create_thatFails_isToldAndLeavesNothing)
{
    for (int call = 1; call <= 2; ++call) {
        {
            const FailingCalls failing(call, fault);
            std::unique_ptr<OutputFile> file;
            EXPECT_EQ(files.CreateNew(folder / "a", file), expected);
            EXPECT_EQ(file, nullptr);
            EXPECT_EQ(failing.Error(), call == 1 ? "CreateFileW" : "GetFileType");
        }
        EXPECT_FALSE(folder.Has("a"));
    }
}

TEST_P(FileCalls, eachStepOfWriting_thatFails_isToldByFinish)
{
    const char* const steps[] = {"WriteFile", "FlushFileBuffers", "CloseHandle"};
    for (int step = 1; step <= 3; ++step) {
        SCOPED_TRACE(steps[step - 1]);
        std::unique_ptr<OutputFile> file;
        ASSERT_EQ(files.CreateNew(folder / std::to_string(step), file), FileError{});
        const FailingCalls failing(step, fault);
        EXPECT_EQ(file->Write("book"), step == 1 ? expected : FileError{});
        EXPECT_EQ(file->Finish(), expected);
        EXPECT_EQ(failing.Error(), steps[step - 1]);
    }
}

TEST_P(FileCalls, renameAndRemove_thatFail_areToldAndKeepTheNames)
{
    const std::string from = folder.Write("from", "book");
    const test::SystemFault forGood{fault.name, fault.code, true};
    {
        const FailingCalls failing(1, forGood);
        EXPECT_EQ(files.RenameToNew(from, folder / "to"), expected);
        EXPECT_EQ(files.RenameOver(from, folder / "to"), expected);
        EXPECT_EQ(files.Remove(from), expected);
    }
    EXPECT_EQ(folder.Read("from"), "book");
    EXPECT_FALSE(folder.Has("to"));
}

TEST_P(FileCalls, list_thatFails_isTold)
{
    folder.Write("a", "");
    for (int call = 1; call <= 2; ++call) {
        const FailingCalls failing(call, fault);
        std::vector<FolderEntry> entries;
        EXPECT_EQ(files.List(folder.Path(), entries), expected);
        EXPECT_EQ(failing.Error(), call == 1 ? "FindFirstFileExW" : "FindNextFileW");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table, FileCalls,
    testing::Values(
        CodeRow{"noDisk", ERROR_NOT_READY, 71}, CodeRow{"noMedia", ERROR_NO_MEDIA_IN_DRIVE, 71},
        CodeRow{"otherDisk", ERROR_WRONG_DISK, 71}, CodeRow{"networkGone", ERROR_NETNAME_DELETED, 68},
        CodeRow{"stickPulledOut", ERROR_DEV_NOT_EXIST, 68}, CodeRow{"checksum", ERROR_CRC, 57},
        CodeRow{"device", ERROR_IO_DEVICE, 57}, CodeRow{"full", ERROR_DISK_FULL, 61},
        CodeRow{"handleFull", ERROR_HANDLE_DISK_FULL, 61}, CodeRow{"tooLarge", ERROR_FILE_TOO_LARGE, 61},
        CodeRow{"denied", ERROR_ACCESS_DENIED, 70}, CodeRow{"usedElsewhere", ERROR_SHARING_VIOLATION, 70},
        CodeRow{"lockedElsewhere", ERROR_LOCK_VIOLATION, 70},
        CodeRow{"writeProtected", ERROR_WRITE_PROTECT, 70}, CodeRow{"tooMany", ERROR_TOO_MANY_OPEN_FILES, 67},
        CodeRow{"memory", ERROR_NOT_ENOUGH_MEMORY, 7}),
    [](const auto& row) { return row.param.name; });

struct FileCallsOnce : testing::Test
{
    test::ScratchFolder folder;
    WindowsFileSystem files;
};

TEST_F(FileCallsOnce, read_endOfFileAsACode_isNoFault)
{
    std::unique_ptr<BookFile> file;
    ASSERT_EQ(files.OpenForReading(folder.Write("a", "book"), Sharing::Shared, file), FileError{});
    const FailingCalls failing(1, {"end", ERROR_HANDLE_EOF, false});
    char byte = 0;
    std::size_t got = 7;
    EXPECT_EQ(file->ReadAt(1, &byte, 1, got), FileError{});
    EXPECT_EQ(got, 0U);
}

TEST_F(FileCallsOnce, finish_whereNothingCanBeFlushed_isWell)
{
    for (const DWORD code : std::initializer_list<DWORD>{ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED}) {
        std::unique_ptr<OutputFile> file;
        ASSERT_EQ(files.CreateNew(folder / std::to_string(code), file), FileError{});
        const FailingCalls failing(1, {"flush", static_cast<int>(code), false});
        EXPECT_EQ(file->Finish(), FileError{});
        EXPECT_EQ(failing.Error(), "FlushFileBuffers");
    }
}

// A file that is open in another program cannot be renamed ("in use") or replaced ("denied").
TEST_F(FileCallsOnce, rename_filesInUseForAMoment_isTriedAgain)
{
    for (const DWORD code : std::initializer_list<DWORD>{ERROR_SHARING_VIOLATION, ERROR_ACCESS_DENIED}) {
        folder.Write("to", "older");
        const std::string from = folder.Write("from", "newer");
        const FailingCalls failing(1, {"moment", static_cast<int>(code), false});
        EXPECT_EQ(files.RenameOver(from, folder / "to"), FileError{});
        EXPECT_EQ(failing.Error(), "MoveFileExW");
        EXPECT_EQ(folder.Read("to"), "newer");
    }
    const std::string from = folder.Write("from", "newer");
    {
        const FailingCalls failing(1, {"moment", ERROR_SHARING_VIOLATION, false});
        EXPECT_EQ(files.RenameToNew(from, folder / "free"), FileError{});
    }
    EXPECT_EQ(folder.Read("free"), "newer");
}

} // namespace
} // namespace ls
