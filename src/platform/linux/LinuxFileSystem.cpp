#include "platform/linux/LinuxFileSystem.h"

#include "base/PathRules.h"
#include "platform/linux/ErrnoError.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/LinuxBookFile.h"
#include "platform/linux/LinuxOutputFile.h"
#include "platform/linux/RenameToNewName.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ls {

namespace {

// The rights of a new file; the user's mask reduces them.
constexpr mode_t EverybodysMode = 0666;
constexpr mode_t PrivateMode = 0600;

int OpenFile(const std::string& path, int flags, mode_t mode = EverybodysMode)
{
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC, mode);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

// Error 75 for a folder; 68 for a pipe, a socket or a device.
FileError ErrorOfKind(mode_t mode)
{
    if (S_ISREG(mode)) {
        return {};
    }
    return MakeFileError(S_ISDIR(mode) ? error::PathFileAccess : error::DeviceUnavailable);
}

// Network file systems grant an exclusive lock only to a descriptor that can write. So Locked opens for
// writing, or for reading when the file may not be written.
FileDescriptor OpenRegular(const std::string& path, Sharing sharing)
{
    // The flag against waiting: since the check a pipe may have taken the name, and opening it could block.
    if (sharing == Sharing::Locked) {
        FileDescriptor writable(OpenFile(path, O_RDWR | O_NONBLOCK | O_NOCTTY));
        if (writable.IsOpen()) {
            return writable;
        }
    }
    return FileDescriptor(OpenFile(path, O_RDONLY | O_NONBLOCK | O_NOCTTY));
}

FileError TakeLock(int descriptor, Sharing sharing)
{
    int result = 0;
    do {
        result = ::flock(descriptor, (sharing == Sharing::Locked ? LOCK_EX : LOCK_SH) | LOCK_NB);
    } while (result != 0 && errno == EINTR);
    // Every other failure means that this file system has no locks.
    return result != 0 && errno == EWOULDBLOCK ? MakeFileError(error::PermissionDenied) : FileError{};
}

// A new name is safe on the disk only after its folder is flushed. Failures are ignored: some file systems
// cannot flush a folder, and the rename itself has succeeded.
void FlushFolder(const std::string& folder)
{
    const FileDescriptor descriptor(OpenFile(folder, O_RDONLY | O_DIRECTORY));
    if (descriptor.IsOpen()) {
        ::fsync(descriptor.Get());
    }
}

// ENOENT of a rename: the old name is missing (53), its folder is missing (76), or the new name's folder is
// missing (76).
FileError ErrorOfRename(int errnoValue, const std::string& from)
{
    struct stat status = {};
    if (errnoValue == ENOENT && ::lstat(from.c_str(), &status) == 0) {
        return MakeFileError(error::PathNotFound);
    }
    return ErrorOfPath(errnoValue, from);
}

FileError MakeFile(const std::string& path, mode_t mode, std::unique_ptr<OutputFile>& file)
{
    file.reset();
    if (const FileError bad = CheckPath(path); !bad.Ok()) {
        return bad;
    }
    FileDescriptor descriptor(OpenFile(path, O_WRONLY | O_CREAT | O_EXCL, mode));
    if (!descriptor.IsOpen()) {
        return ErrorOfPath(errno, path);
    }
    file = std::make_unique<LinuxOutputFile>(std::move(descriptor));
    return {};
}

bool LeadsToFolder(DIR* stream, const dirent& entry)
{
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) {
        return entry.d_type == DT_DIR;
    }
    struct stat status = {};
    return ::fstatat(::dirfd(stream), entry.d_name, &status, 0) == 0 && S_ISDIR(status.st_mode);
}

struct CloseFolder
{
    void operator()(DIR* stream) const { ::closedir(stream); }
};

} // namespace

LinuxFileSystem::LinuxFileSystem()
{
    // A file that passes the user's size limit must fail with "Disk full", not end the program and lose its
    // edits.
    std::signal(SIGXFSZ, SIG_IGN);
}

FileError LinuxFileSystem::OpenForReading(const std::string& path, Sharing sharing,
                                          std::unique_ptr<BookFile>& file)
{
    file.reset();
    if (const FileError bad = CheckPath(path); !bad.Ok()) {
        return bad;
    }
    // Checked before opening, because opening a device can start it.
    struct stat status = {};
    if (::stat(path.c_str(), &status) != 0) {
        return ErrorOfPath(errno, path);
    }
    if (const FileError kind = ErrorOfKind(status.st_mode); !kind.Ok()) {
        return kind;
    }
    FileDescriptor descriptor = OpenRegular(path, sharing);
    if (!descriptor.IsOpen() || ::fstat(descriptor.Get(), &status) != 0) {
        return ErrorOfPath(errno, path);
    }
    if (const FileError kind = ErrorOfKind(status.st_mode); !kind.Ok()) {
        return kind;
    }
    if (const FileError refused = TakeLock(descriptor.Get(), sharing); !refused.Ok()) {
        return refused;
    }
    file = std::make_unique<LinuxBookFile>(std::move(descriptor));
    return {};
}

FileError LinuxFileSystem::CreateNew(const std::string& path, std::unique_ptr<OutputFile>& file)
{
    return MakeFile(path, EverybodysMode, file);
}

FileError LinuxFileSystem::CreateNewPrivate(const std::string& path, std::unique_ptr<OutputFile>& file)
{
    return MakeFile(path, PrivateMode, file);
}

FileError LinuxFileSystem::RenameToNew(const std::string& from, const std::string& to)
{
    for (const std::string& path : {from, to}) {
        if (const FileError bad = CheckPath(path); !bad.Ok()) {
            return bad;
        }
    }
    if (const int failure = RenameToNewName(from, to); failure != 0) {
        return ErrorOfRename(failure, from);
    }
    FlushFolder(HoldingFolder(to));
    return {};
}

FileError LinuxFileSystem::RenameOver(const std::string& from, const std::string& to)
{
    for (const std::string& path : {from, to}) {
        if (const FileError bad = CheckPath(path); !bad.Ok()) {
            return bad;
        }
    }
    if (::rename(from.c_str(), to.c_str()) != 0) {
        return ErrorOfRename(errno, from);
    }
    FlushFolder(HoldingFolder(to));
    return {};
}

FileError LinuxFileSystem::Remove(const std::string& path)
{
    if (const FileError bad = CheckPath(path); !bad.Ok()) {
        return bad;
    }
    return ::unlink(path.c_str()) == 0 ? FileError{} : ErrorOfPath(errno, path);
}

FileError LinuxFileSystem::CheckWritable(const std::string& path)
{
    if (const FileError bad = CheckPath(path); !bad.Ok()) {
        return bad;
    }
    return ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) == 0 ? FileError{}
                                                                      : ErrorOfPath(errno, path);
}

bool LinuxFileSystem::Exists(const std::string& path)
{
    struct stat status = {};
    return CheckPath(path).Ok() && ::lstat(path.c_str(), &status) == 0;
}

bool LinuxFileSystem::SameFile(const std::string& a, const std::string& b)
{
    struct stat ofA = {};
    struct stat ofB = {};
    return stat(a.c_str(), &ofA) == 0 && stat(b.c_str(), &ofB) == 0 && ofA.st_dev == ofB.st_dev &&
           ofA.st_ino == ofB.st_ino;
}

FileError LinuxFileSystem::List(const std::string& folder, std::vector<FolderEntry>& entries)
{
    entries.clear();
    if (const FileError bad = CheckPath(folder); !bad.Ok()) {
        return bad;
    }
    const std::unique_ptr<DIR, CloseFolder> stream(::opendir(folder.empty() ? "." : folder.c_str()));
    if (!stream) {
        return errno == ENOENT ? MakeFileError(error::PathNotFound) : ErrorOfErrno(errno);
    }
    errno = 0;
    while (const dirent* entry = ::readdir(stream.get())) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            entries.push_back({name, LeadsToFolder(stream.get(), *entry), name.front() == '.'});
        }
        errno = 0;
    }
    return ErrorOfErrno(errno);
}

FileError LinuxFileSystem::MakeFolder(const std::string& folder)
{
    if (const FileError bad = CheckPath(folder); !bad.Ok()) {
        return bad;
    }
    if (IsFolder(folder)) {
        return {};
    }
    const std::string above = FolderOf(UnixPaths, folder);
    if (!above.empty() && above != folder) {
        if (FileError error = MakeFolder(above); !error.Ok()) {
            return error;
        }
    }
    const int failure = ::mkdir(folder.c_str(), 0700) == 0 ? 0 : errno;
    if (failure == EEXIST) { // another program may have made it just now
        return IsFolder(folder) ? FileError{} : MakeFileError(error::PathFileAccess);
    }
    return ErrorOfPath(failure, folder);
}

std::string LinuxFileSystem::CurrentFolder()
{
    const std::unique_ptr<char, void (*)(void*)> folder(::getcwd(nullptr, 0), std::free);
    return folder ? folder.get() : std::string();
}

} // namespace ls
