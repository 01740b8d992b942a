#include "platform/windows/WindowsError.h"

namespace ls {

namespace {

// Codes that the compiler's headers lack.
constexpr DWORD VirusInfected = 225;
constexpr DWORD NoSuchDevice = 433;
constexpr DWORD ElevationRequired = 740;
constexpr DWORD DiskQuotaExceeded = 1295;

// The error for a code of a drive, a disk or a connection; 0 for every other code.
int NumberOfDeviceCode(DWORD code)
{
    switch (code) {
    case ERROR_NOT_READY:
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_MEDIA_CHANGED:
    case ERROR_WRONG_DISK:
    case ERROR_UNRECOGNIZED_VOLUME:
        return error::DiskNotReady;
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_UNIT:
    case ERROR_DEV_NOT_EXIST:
    case ERROR_DEVICE_NOT_CONNECTED:
    case NoSuchDevice:
    case ERROR_NOT_CONNECTED:
    case ERROR_NETNAME_DELETED:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_NETWORK_UNREACHABLE:
        return error::DeviceUnavailable;
    case ERROR_CRC:
    case ERROR_SEEK:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_READ_FAULT:
    case ERROR_WRITE_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
    case ERROR_SEM_TIMEOUT:
    case ERROR_DISK_CORRUPT:
    case ERROR_FILE_CORRUPT:
        return error::DeviceIo;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case DiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
        return error::DiskFull;
    default:
        return 0;
    }
}

int NumberOfCode(DWORD code)
{
    switch (code) {
    case ERROR_SUCCESS:
        return 0;
    case ERROR_FILE_NOT_FOUND:
        return error::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY: // a file used as a folder
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
        return error::PathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
    case ERROR_DELETE_PENDING:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_PRIVILEGE_NOT_HELD:
    case ElevationRequired:
    case ERROR_ACCESS_DISABLED_BY_POLICY:
    case VirusInfected:
        return error::PermissionDenied;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS:
        return error::FileAlreadyExists;
    case ERROR_TOO_MANY_OPEN_FILES:
        return error::TooManyFiles;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
    case ERROR_NO_UNICODE_TRANSLATION:
    case ERROR_INVALID_HANDLE:
        return error::BadFileNumber;
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
    case ERROR_NO_SYSTEM_RESOURCES:
    case ERROR_COMMITMENT_LIMIT:
        return error::OutOfMemory;
    case ERROR_INVALID_PARAMETER:
    case ERROR_BAD_EXE_FORMAT:
    case ERROR_EXE_MACHINE_TYPE_MISMATCH:
        return error::InvalidCall;
    default: // a rename across disks, a link that leads nowhere, a folder that is not empty ...
        return error::PathFileAccess;
    }
}

// For a path that was not found: 68 if its drive does not exist, 71 if the drive holds no disk, 0 for any
// other reason. Windows reports these itself, Wine does not. In the long form the drive's letter follows
// "\\?\".
int NumberOfDrive(const std::wstring& path)
{
    const std::size_t at = path.starts_with(L"\\\\?\\") ? 4 : 0;
    if (path.size() < at + 2 || path[at + 1] != L':') {
        return 0;
    }
    const std::wstring root = path.substr(at, 2) + L'\\';
    const UINT type = ::GetDriveTypeW(root.c_str());
    if (type == DRIVE_NO_ROOT_DIR) {
        return error::DeviceUnavailable;
    }
    const bool disksChange = type == DRIVE_REMOVABLE || type == DRIVE_CDROM;
    return disksChange && !IsFolder(root) ? error::DiskNotReady : 0;
}

} // namespace

FileError ErrorOfCode(DWORD code)
{
    const int number = NumberOfDeviceCode(code);
    return MakeFileError(number != 0 ? number : NumberOfCode(code));
}

FileError ErrorOfPath(DWORD code, const std::wstring& path)
{
    const bool maybeFolder =
        code == ERROR_ACCESS_DENIED || code == ERROR_PATH_NOT_FOUND || code == ERROR_INVALID_NAME;
    if (maybeFolder && IsFolder(path)) {
        return MakeFileError(error::PathFileAccess);
    }
    // A path gives this code only if it is the console's name and the program has no console.
    if (code == ERROR_INVALID_HANDLE) {
        return MakeFileError(error::DeviceUnavailable);
    }
    const bool missing = code == ERROR_PATH_NOT_FOUND || code == ERROR_FILE_NOT_FOUND;
    const int number = missing ? NumberOfDrive(path) : 0;
    return number != 0 ? MakeFileError(number) : ErrorOfCode(code);
}

bool IsFolder(const std::wstring& path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace ls
