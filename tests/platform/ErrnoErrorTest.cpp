#include "platform/linux/ErrnoError.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace ls {
namespace {

struct Row
{
    const char* name;
    int errnoValue;
    FileError expected;
};

struct ErrnoErrorTest : testing::TestWithParam<Row>
{
};

TEST_P(ErrnoErrorTest, errorOfErrno_errno_hasNumberAndDescription)
{
    EXPECT_EQ(ErrorOfErrno(GetParam().errnoValue), GetParam().expected);
}

const Row Rows[] = {
    {"success", 0, {}},
    {"missing", ENOENT, {53, "File not found"}},
    {"fileAsFolder", ENOTDIR, {76, "Path not found"}},
    {"staleHandle", ESTALE, {76, "Path not found"}},
    {"noAccess", EACCES, {70, "Permission denied"}},
    {"notPermitted", EPERM, {70, "Permission denied"}},
    {"readOnlyDisk", EROFS, {70, "Permission denied"}},
    {"busy", EBUSY, {70, "Permission denied"}},
    {"runningProgram", ETXTBSY, {70, "Permission denied"}},
    {"lockRefused", EWOULDBLOCK, {70, "Permission denied"}},
    {"nameTaken", EEXIST, {58, "File already exists"}},
    {"diskFull", ENOSPC, {61, "Disk full"}},
    {"quotaUsedUp", EDQUOT, {61, "Disk full"}},
    {"sizeLimit", EFBIG, {61, "Disk full"}},
    {"ownDescriptorsUsedUp", EMFILE, {67, "Too many files"}},
    {"systemsDescriptorsUsedUp", ENFILE, {67, "Too many files"}},
    {"deviceFault", EIO, {57, "Device I/O error"}},
    {"remoteFault", EREMOTEIO, {57, "Device I/O error"}},
    {"timeout", ETIMEDOUT, {57, "Device I/O error"}},
    {"nobodyBehindPipe", ENXIO, {68, "Device unavailable"}},
    {"noDevice", ENODEV, {68, "Device unavailable"}},
    {"noMedium", ENOMEDIUM, {71, "Disk not ready"}},
    {"badDescriptor", EBADF, {52, "Bad file name or number"}},
    {"longName", ENAMETOOLONG, {52, "Bad file name or number"}},
    {"impossibleName", EILSEQ, {52, "Bad file name or number"}},
    {"noMemory", ENOMEM, {7, "Out of memory"}},
    {"invalid", EINVAL, {5, "Invalid procedure call or argument"}},
    {"folder", EISDIR, {75, "Path/File access error"}},
    {"loopOfLinks", ELOOP, {75, "Path/File access error"}},
    {"otherDisk", EXDEV, {75, "Path/File access error"}},
    {"fullFolder", ENOTEMPTY, {75, "Path/File access error"}},
    {"anyOther", EPROTO, {75, "Path/File access error"}},
};

INSTANTIATE_TEST_SUITE_P(Table, ErrnoErrorTest, testing::ValuesIn(Rows),
                         [](const auto& row) { return row.param.name; });

TEST(ErrnoErrorPathTest, errorOfPath_missingFolder_is76)
{
    EXPECT_EQ(ErrorOfPath(ENOENT, "/no such folder/x").number, 76);
    EXPECT_EQ(ErrorOfPath(ENOENT, "/x").number, 53);
    EXPECT_EQ(ErrorOfPath(ENOENT, "x").number, 53);
}

} // namespace
} // namespace ls
