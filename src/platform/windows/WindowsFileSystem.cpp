#include "platform/windows/WindowsFileSystem.h"

#include "base/PathRules.h"
#include "platform/windows/GrownText.h"
#include "platform/windows/WidePath.h"
#include "platform/windows/WideText.h"
#include "platform/windows/WindowsBookFile.h"
#include "platform/windows/WindowsError.h"
#include "platform/windows/WindowsHandle.h"
#include "platform/windows/WindowsOutputFile.h"

#include <string_view>

namespace ls {

namespace {

// A virus scanner or an indexer may briefly open a file that was just closed, which blocks its renaming and
// replacing. So a rename is repeated for about a second.
constexpr int RenameTries = 20;
constexpr DWORD RenamePause = 50;

// Refuses anything but a file on a disk; reading from it could wait for ever.
FileError CheckKind(const WindowsHandle& handle)
{
    ::SetLastError(ERROR_SUCCESS);
    switch (::GetFileType(handle.Get())) {
    case FILE_TYPE_DISK:
        return {};
    case FILE_TYPE_UNKNOWN: // also the result of a failure
        if (const DWORD code = ::GetLastError(); code != ERROR_SUCCESS) {
            return ErrorOfCode(code);
        }
        [[fallthrough]];
    default:
        return MakeFileError(error::DeviceUnavailable);
    }
}

// Opens or creates the file; `handle` is open only on success.
FileError OpenFile(const std::string& path, DWORD access, DWORD sharing, DWORD disposition,
                   WindowsHandle& handle)
{
    std::wstring wide;
    if (FileError bad = ToWidePath(path, wide); !bad.Ok()) {
        return bad;
    }
    // Stops the server of a named pipe from acting in this user's name.
    constexpr DWORD flags = FILE_ATTRIBUTE_NORMAL | SECURITY_SQOS_PRESENT | SECURITY_IDENTIFICATION;
    handle =
        WindowsHandle(::CreateFileW(wide.c_str(), access, sharing, nullptr, disposition, flags, nullptr));
    if (!handle.IsOpen()) {
        return ErrorOfPath(::GetLastError(), wide);
    }
    FileError kind = CheckKind(handle);
    if (!kind.Ok()) {
        handle.Close();
        if (disposition == CREATE_NEW) {
            // Removes the file that was just created. A device has no file to remove.
            ::DeleteFileW(wide.c_str());
        }
    }
    return kind;
}

// The error of a failed rename. "Access denied" is 75 when the new name is a folder, else 70. "Not found"
// refers to the old file, or to the new name's folder if the old file exists.
FileError ErrorOfRename(DWORD code, const std::wstring& from, const std::wstring& to)
{
    const bool oldIsMissing =
        code == ERROR_FILE_NOT_FOUND && ::GetFileAttributesW(from.c_str()) == INVALID_FILE_ATTRIBUTES;
    return ErrorOfPath(code, oldIsMissing ? from : to);
}

// Whether a rename failed because another program has one of the two files open. For a file that would be
// replaced, the system reports "access denied", just as for a folder.
bool MayBeInUse(DWORD code, const std::wstring& to, DWORD flags)
{
    const bool replaces = (flags & MOVEFILE_REPLACE_EXISTING) != 0;
    return code == ERROR_SHARING_VIOLATION || (replaces && code == ERROR_ACCESS_DENIED && !IsFolder(to));
}

FileError Rename(const std::string& from, const std::string& to, DWORD flags)
{
    std::wstring wideFrom;
    std::wstring wideTo;
    if (FileError bad = ToWidePath(from, wideFrom); !bad.Ok()) {
        return bad;
    }
    if (FileError bad = ToWidePath(to, wideTo); !bad.Ok()) {
        return bad;
    }
    DWORD code = ERROR_SHARING_VIOLATION;
    for (int tries = 0; MayBeInUse(code, wideTo, flags) && tries < RenameTries; ++tries) {
        ::Sleep(tries == 0 ? 0 : RenamePause);
        code = ::MoveFileExW(wideFrom.c_str(), wideTo.c_str(), flags) != 0 ? 0 : ::GetLastError();
    }
    return code == 0 ? FileError{} : ErrorOfRename(code, wideFrom, wideTo);
}

// The identity of a file. Opening it without any access succeeds even if it is locked.
bool Identify(const std::string& path, BY_HANDLE_FILE_INFORMATION& information)
{
    std::wstring wide;
    if (!ToWidePath(path, wide).Ok()) {
        return false;
    }
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const WindowsHandle handle(
        ::CreateFileW(wide.c_str(), 0, sharing, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    return handle.IsOpen() && ::GetFileInformationByHandle(handle.Get(), &information) != 0;
}

// "C:\BOOKS" and "C:\" are searched for "*" below them; "C:" for "*" in its current folder.
std::string SearchPattern(const std::string& folder)
{
    const bool complete =
        folder.empty() || folder.back() == '\\' || folder.back() == '/' || folder.back() == ':';
    return folder + (complete ? "*" : "\\*");
}

// For a search below a file, versions of the system report different codes: "no folder" or "bad name".
FileError ErrorOfSearch(DWORD code, const std::string& folder, const std::wstring& pattern)
{
    std::wstring wide;
    if (code == ERROR_INVALID_NAME && ToWidePath(folder, wide).Ok() &&
        ::GetFileAttributesW(wide.c_str()) != INVALID_FILE_ATTRIBUTES) {
        return MakeFileError(error::PathNotFound);
    }
    return ErrorOfPath(code, pattern);
}

class Search
{
public:
    explicit Search(const std::wstring& pattern)
        : m_handle(::FindFirstFileExW(pattern.c_str(), FindExInfoBasic, &m_found, FindExSearchNameMatch,
                                      nullptr, FIND_FIRST_EX_LARGE_FETCH))
    {
    }
    ~Search()
    {
        if (IsOpen()) {
            ::FindClose(m_handle);
        }
    }
    Search(const Search&) = delete;
    Search& operator=(const Search&) = delete;

    [[nodiscard]] bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& Found() const { return m_found; }
    bool Next() { return ::FindNextFileW(m_handle, &m_found) != 0; }

private:
    WIN32_FIND_DATAW m_found = {};
    HANDLE m_handle;
};

void AddEntry(const WIN32_FIND_DATAW& found, std::vector<FolderEntry>& entries)
{
    const std::wstring_view name = found.cFileName;
    if (name != L"." && name != L"..") {
        entries.push_back({FromWide(name), (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0,
                           (found.dwFileAttributes & FILE_ATTRIBUTE_HIDDEN) != 0});
    }
}

} // namespace

WindowsFileSystem::WindowsFileSystem()
{
    // Stops the system's own box for a drive without a disk, which would hide under the window; the program
    // reports the error.
    ::SetErrorMode(::GetErrorMode() | SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

FileError WindowsFileSystem::OpenForReading(const std::string& path, Sharing sharing,
                                            std::unique_ptr<BookFile>& file)
{
    file.reset();
    const DWORD mode =
        sharing == Sharing::Locked ? 0 : FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    WindowsHandle handle;
    if (FileError error = OpenFile(path, GENERIC_READ, mode, OPEN_EXISTING, handle); !error.Ok()) {
        return error;
    }
    file = std::make_unique<WindowsBookFile>(std::move(handle));
    return {};
}

FileError WindowsFileSystem::CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file)
{
    file.reset();
    WindowsHandle handle;
    if (FileError error = OpenFile(path, GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW, handle); !error.Ok()) {
        return error;
    }
    file = std::make_unique<WindowsOutputFile>(std::move(handle));
    return {};
}

FileError WindowsFileSystem::RenameToNew(const std::string& from, const std::string& to)
{
    return Rename(from, to, MOVEFILE_WRITE_THROUGH);
}

FileError WindowsFileSystem::RenameOver(const std::string& from, const std::string& to)
{
    return Rename(from, to, MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
}

FileError WindowsFileSystem::Remove(const std::string& path)
{
    std::wstring wide;
    if (FileError bad = ToWidePath(path, wide); !bad.Ok()) {
        return bad;
    }
    return ::DeleteFileW(wide.c_str()) != 0 ? FileError{} : ErrorOfPath(::GetLastError(), wide);
}

FileError WindowsFileSystem::CheckWritable(const std::string& path)
{
    std::wstring wide;
    if (FileError bad = ToWidePath(path, wide); !bad.Ok()) {
        return bad;
    }
    const DWORD attributes = ::GetFileAttributesW(wide.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES) {
        return ErrorOfPath(::GetLastError(), wide);
    }
    return MakeFileError((attributes & FILE_ATTRIBUTE_READONLY) != 0 ? error::PermissionDenied : 0);
}

bool WindowsFileSystem::Exists(const std::string& path)
{
    std::wstring wide;
    if (!ToWidePath(path, wide).Ok()) {
        return false;
    }
    // A file that the system itself uses gives no attributes, but it exists.
    return ::GetFileAttributesW(wide.c_str()) != INVALID_FILE_ATTRIBUTES ||
           ::GetLastError() == ERROR_SHARING_VIOLATION;
}

bool WindowsFileSystem::SameFile(const std::string& a, const std::string& b)
{
    BY_HANDLE_FILE_INFORMATION ofA = {};
    BY_HANDLE_FILE_INFORMATION ofB = {};
    return Identify(a, ofA) && Identify(b, ofB) && ofA.dwVolumeSerialNumber == ofB.dwVolumeSerialNumber &&
           ofA.nFileIndexHigh == ofB.nFileIndexHigh && ofA.nFileIndexLow == ofB.nFileIndexLow;
}

FileError WindowsFileSystem::List(const std::string& folder, std::vector<FolderEntry>& entries)
{
    entries.clear();
    std::wstring pattern;
    if (FileError bad = ToWidePath(SearchPattern(folder), pattern); !bad.Ok()) {
        return bad;
    }
    Search search(pattern);
    if (!search.IsOpen()) {
        // Every folder lists at least "."; only a drive's root can be empty.
        const DWORD code = ::GetLastError();
        return code == ERROR_FILE_NOT_FOUND ? FileError{} : ErrorOfSearch(code, folder, pattern);
    }
    do {
        AddEntry(search.Found(), entries);
    } while (search.Next());
    const DWORD code = ::GetLastError();
    return code == ERROR_NO_MORE_FILES ? FileError{} : ErrorOfPath(code, pattern);
}

// A new folder inherits its parent's rights; below the user's own folder only the user may look into it.
FileError WindowsFileSystem::MakeFolder(const std::string& folder)
{
    std::wstring wide;
    if (FileError bad = ToWidePath(folder, wide); !bad.Ok()) {
        return bad;
    }
    const auto isFolder = [&wide] {
        const DWORD attributes = ::GetFileAttributesW(wide.c_str());
        return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    };
    if (isFolder()) {
        return {};
    }
    const std::string above = FolderOf(WindowsPaths, folder);
    if (!above.empty() && above != folder) {
        if (FileError error = MakeFolder(above); !error.Ok()) {
            return error;
        }
    }
    if (::CreateDirectoryW(wide.c_str(), nullptr) != 0) {
        return {};
    }
    const DWORD code = ::GetLastError();
    if (isFolder()) { // another program made it at the same moment
        return {};
    }
    return code == ERROR_ALREADY_EXISTS ? MakeFileError(error::PathFileAccess) : ErrorOfPath(code, wide);
}

std::string WindowsFileSystem::CurrentFolder()
{
    return FromWide(
        GrownText([](wchar_t* buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); }));
}

} // namespace ls
