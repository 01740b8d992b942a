#include "platform/linux/RenameToNewName.h"

#include "platform/linux/FileDescriptor.h"

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace ls {

namespace {

bool IsUnknownWay(int errnoValue)
{
    return errnoValue == EINVAL || errnoValue == ENOSYS || errnoValue == EOPNOTSUPP;
}

} // namespace

int RenameToNewName(const std::string& from, const std::string& to)
{
    int result = RenameByFlag(from, to);
    if (IsUnknownWay(result)) {
        result = RenameByLink(from, to);
        if (IsUnknownWay(result) || result == EPERM) {
            result = RenameByReservation(from, to);
        }
    }
    return result;
}

int RenameByFlag(const std::string& from, const std::string& to)
{
    return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0 ? 0 : errno;
}

int RenameByLink(const std::string& from, const std::string& to)
{
    if (::link(from.c_str(), to.c_str()) != 0) {
        return errno;
    }
    if (::unlink(from.c_str()) != 0) {
        const int failure = errno;
        ::unlink(to.c_str());
        return failure;
    }
    return 0;
}

int RenameByReservation(const std::string& from, const std::string& to)
{
    FileDescriptor reserved(::open(to.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!reserved.IsOpen()) {
        return errno;
    }
    reserved.Close();
    if (::rename(from.c_str(), to.c_str()) != 0) {
        const int failure = errno;
        ::unlink(to.c_str());
        return failure;
    }
    return 0;
}

} // namespace ls
