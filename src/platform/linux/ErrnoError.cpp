#include "platform/linux/ErrnoError.h"

#include "base/PathRules.h"

#include <cerrno>

#include <sys/stat.h>

namespace ls {

namespace {

int NumberOfErrno(int errnoValue)
{
    switch (errnoValue) {
    case 0:
        return 0;
    case ENOENT:
        return error::FileNotFound;
    case ENOTDIR:
    case ESTALE:
        return error::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
    case EWOULDBLOCK:
        return error::PermissionDenied;
    case EEXIST:
        return error::FileAlreadyExists;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return error::DiskFull;
    case EMFILE:
    case ENFILE:
        return error::TooManyFiles;
    case EIO:
    case EREMOTEIO:
    case ETIMEDOUT:
        return error::DeviceIo;
    case ENXIO:
    case ENODEV:
        return error::DeviceUnavailable;
    case ENOMEDIUM:
        return error::DiskNotReady;
    case EBADF:
    case ENAMETOOLONG:
    case EILSEQ:
        return error::BadFileNumber;
    case ENOMEM:
        return error::OutOfMemory;
    case EINVAL:
        return error::InvalidCall;
    // a file used as a folder, a loop of links, a rename across disks, a folder that is not empty ...
    default:
        return error::PathFileAccess;
    }
}

} // namespace

FileError ErrorOfErrno(int errnoValue)
{
    return MakeFileError(NumberOfErrno(errnoValue));
}

FileError ErrorOfPath(int errnoValue, const std::string& path)
{
    if (errnoValue == ENOENT && !IsFolder(HoldingFolder(path))) {
        return MakeFileError(error::PathNotFound);
    }
    return ErrorOfErrno(errnoValue);
}

std::string HoldingFolder(const std::string& path)
{
    const std::string folder = FolderOf(UnixPaths, path);
    return folder.empty() ? "." : folder;
}

bool IsFolder(const std::string& path)
{
    struct stat status = {};
    return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

FileError CheckPath(const std::string& path)
{
    return path.find('\0') == std::string::npos ? FileError{} : MakeFileError(error::BadFileNumber);
}

} // namespace ls
