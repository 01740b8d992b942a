#include "platform/windows/WindowsError.h"

#include <gtest/gtest.h>

namespace ls {
namespace {

struct CodeRow
{
    const char* name;
    DWORD code;
    int expected;
};

struct WindowsErrorTest : testing::TestWithParam<CodeRow>
{
};

TEST_P(WindowsErrorTest, errorOfCode_isTheProgramsOwn)
{
    EXPECT_EQ(ErrorOfCode(GetParam().code), MakeFileError(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(
    Table, WindowsErrorTest,
    testing::Values(
        CodeRow{"success", ERROR_SUCCESS, 0}, CodeRow{"notReady", ERROR_NOT_READY, 71},
        CodeRow{"noMedia", ERROR_NO_MEDIA_IN_DRIVE, 71}, CodeRow{"wrongDisk", ERROR_WRONG_DISK, 71},
        CodeRow{"unformatted", ERROR_UNRECOGNIZED_VOLUME, 71},
        CodeRow{"invalidDrive", ERROR_INVALID_DRIVE, 68}, CodeRow{"networkGone", ERROR_NETNAME_DELETED, 68},
        CodeRow{"checksum", ERROR_CRC, 57}, CodeRow{"readFault", ERROR_READ_FAULT, 57},
        CodeRow{"writeFault", ERROR_WRITE_FAULT, 57}, CodeRow{"device", ERROR_IO_DEVICE, 57},
        CodeRow{"diskFull", ERROR_DISK_FULL, 61}, CodeRow{"handleDiskFull", ERROR_HANDLE_DISK_FULL, 61},
        CodeRow{"quota", 1295, 61}, CodeRow{"fileTooLarge", ERROR_FILE_TOO_LARGE, 61},
        CodeRow{"fileMissing", ERROR_FILE_NOT_FOUND, 53}, CodeRow{"pathMissing", ERROR_PATH_NOT_FOUND, 76},
        CodeRow{"serverMissing", ERROR_BAD_NETPATH, 76}, CodeRow{"denied", ERROR_ACCESS_DENIED, 70},
        CodeRow{"sharing", ERROR_SHARING_VIOLATION, 70}, CodeRow{"lock", ERROR_LOCK_VIOLATION, 70},
        CodeRow{"writeProtected", ERROR_WRITE_PROTECT, 70}, CodeRow{"exists", ERROR_FILE_EXISTS, 58},
        CodeRow{"alreadyExists", ERROR_ALREADY_EXISTS, 58},
        CodeRow{"tooManyFiles", ERROR_TOO_MANY_OPEN_FILES, 67},
        CodeRow{"invalidName", ERROR_INVALID_NAME, 52}, CodeRow{"badPath", ERROR_BAD_PATHNAME, 52},
        CodeRow{"handle", ERROR_INVALID_HANDLE, 52}, CodeRow{"memory", ERROR_NOT_ENOUGH_MEMORY, 7},
        CodeRow{"parameter", ERROR_INVALID_PARAMETER, 5}, CodeRow{"noProgram", ERROR_BAD_EXE_FORMAT, 5},
        CodeRow{"otherDisk", ERROR_NOT_SAME_DEVICE, 75}, CodeRow{"anythingElse", 99999, 75}),
    [](const auto& row) { return row.param.name; });

TEST(WindowsError, errorOfPath_tellsFoldersAndMissingDrives)
{
    EXPECT_EQ(ErrorOfPath(ERROR_ACCESS_DENIED, L"C:\\windows").number, 75);
    EXPECT_EQ(ErrorOfPath(ERROR_ACCESS_DENIED, L"C:\\windows\\none").number, 70);
    EXPECT_EQ(ErrorOfPath(ERROR_PATH_NOT_FOUND, L"Q:\\a").number, 68);
    EXPECT_EQ(ErrorOfPath(ERROR_PATH_NOT_FOUND, L"\\\\?\\Q:\\a").number, 68);
    EXPECT_EQ(ErrorOfPath(ERROR_PATH_NOT_FOUND, L"C:\\none\\a").number, 76);
    EXPECT_EQ(ErrorOfPath(ERROR_FILE_NOT_FOUND, L"none").number, 53);
    EXPECT_EQ(ErrorOfPath(ERROR_NOT_READY, L"D:\\a").number, 71) << "a drive without a disk";
}

} // namespace
} // namespace ls
