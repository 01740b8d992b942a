// The replacements of this system's calls.

#include "../FailingCalls.h"

#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ls::test {

std::vector<SystemFault> SystemFaults()
{
    return {{"ioOnce", EIO, false},        {"ioForGood", EIO, true},      {"fullOnce", ENOSPC, false},
            {"fullForGood", ENOSPC, true}, {"deniedOnce", EACCES, false}, {"tooManyForGood", EMFILE, true}};
}

std::vector<std::string> CallsOfSaving()
{
    return {"open", "pread", "write", "fsync", "close", "renameat2"};
}

std::string CallOfRemoving()
{
    return "unlink";
}

namespace {

std::string opened; ///< the path opened last

// Whether this call must fail; sets `errno` then. A call without a path uses the path opened last.
bool Fails(const char* call, const char* path = nullptr)
{
    const std::optional<int> code = CodeOfFailing(call, path == nullptr ? opened : path);
    errno = code.value_or(errno);
    return code.has_value();
}

bool FailsToOpen(const char* call, const char* path)
{
    opened = path;
    return Fails(call, path);
}

} // namespace

} // namespace ls::test

using ls::test::Fails;
using ls::test::FailsToOpen;

// The linker's names: __real_ is the system's call, __wrap_ its replacement.
extern "C" {
int __real_open(const char* path, int flags, ...);
int __real_stat(const char* path, struct stat* status);
int __real_lstat(const char* path, struct stat* status);
int __real_fstat(int descriptor, struct stat* status);
int __real_flock(int descriptor, int operation);
ssize_t __real_pread(int descriptor, void* buffer, size_t size, off_t offset);
ssize_t __real_write(int descriptor, const void* buffer, size_t size);
int __real_fsync(int descriptor);
int __real_close(int descriptor);
int __real_rename(const char* from, const char* to);
int __real_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
int __real_access(const char* path, int mode);
int __real_unlink(const char* path);
DIR* __real_opendir(const char* path);
struct dirent* __real_readdir(DIR* stream);

int __wrap_open(const char* path, int flags, mode_t mode);
int __wrap_stat(const char* path, struct stat* status);
int __wrap_lstat(const char* path, struct stat* status);
int __wrap_fstat(int descriptor, struct stat* status);
int __wrap_flock(int descriptor, int operation);
ssize_t __wrap_pread(int descriptor, void* buffer, size_t size, off_t offset);
ssize_t __wrap_write(int descriptor, const void* buffer, size_t size);
int __wrap_fsync(int descriptor);
int __wrap_close(int descriptor);
int __wrap_rename(const char* from, const char* to);
int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
int __wrap_access(const char* path, int mode);
int __wrap_unlink(const char* path);
DIR* __wrap_opendir(const char* path);
struct dirent* __wrap_readdir(DIR* stream);

int __wrap_open(const char* path, int flags, mode_t mode)
{
    return FailsToOpen("open", path) ? -1 : __real_open(path, flags, mode);
}
int __wrap_stat(const char* path, struct stat* status)
{
    return Fails("stat", path) ? -1 : __real_stat(path, status);
}
int __wrap_lstat(const char* path, struct stat* status)
{
    return Fails("lstat", path) ? -1 : __real_lstat(path, status);
}
int __wrap_fstat(int descriptor, struct stat* status)
{
    return Fails("fstat") ? -1 : __real_fstat(descriptor, status);
}
int __wrap_flock(int descriptor, int operation)
{
    return Fails("flock") ? -1 : __real_flock(descriptor, operation);
}
ssize_t __wrap_pread(int descriptor, void* buffer, size_t size, off_t offset)
{
    return Fails("pread") ? -1 : __real_pread(descriptor, buffer, size, offset);
}
ssize_t __wrap_write(int descriptor, const void* buffer, size_t size)
{
    return Fails("write") ? -1 : __real_write(descriptor, buffer, size);
}
int __wrap_fsync(int descriptor)
{
    return Fails("fsync") ? -1 : __real_fsync(descriptor);
}
// A close that reports an error closes the file too.
int __wrap_close(int descriptor)
{
    const bool fails = Fails("close");
    const int errnoValue = errno;
    const int result = __real_close(descriptor);
    errno = fails ? errnoValue : errno;
    return fails ? -1 : result;
}
int __wrap_rename(const char* from, const char* to)
{
    return Fails("rename", from) ? -1 : __real_rename(from, to);
}
int __wrap_renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags)
{
    return Fails("renameat2", from) ? -1 : __real_renameat2(fromFolder, from, toFolder, to, flags);
}
int __wrap_access(const char* path, int mode)
{
    return Fails("access", path) ? -1 : __real_access(path, mode);
}
int __wrap_unlink(const char* path)
{
    return Fails("unlink", path) ? -1 : __real_unlink(path);
}
DIR* __wrap_opendir(const char* path)
{
    return FailsToOpen("opendir", path) ? nullptr : __real_opendir(path);
}
struct dirent* __wrap_readdir(DIR* stream)
{
    return Fails("readdir") ? nullptr : __real_readdir(stream);
}
}
