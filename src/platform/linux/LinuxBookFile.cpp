#include "platform/linux/LinuxBookFile.h"

#include "platform/linux/ErrnoError.h"

#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace ls {

FileError LinuxBookFile::ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got)
{
    got = 0;
    while (got < size) {
        const auto at = static_cast<off_t>(pos - 1 + static_cast<FilePos>(got));
        const ssize_t count = ::pread(m_descriptor.Get(), buffer + got, size - got, at);
        if (count > 0) {
            got += static_cast<std::size_t>(count);
        } else if (count == 0) {
            return {};
        } else if (errno != EINTR) {
            return ErrorOfErrno(errno);
        }
    }
    return {};
}

FileError LinuxBookFile::Size(FilePos& size)
{
    struct stat status = {};
    if (::fstat(m_descriptor.Get(), &status) != 0) {
        return ErrorOfErrno(errno);
    }
    size = status.st_size;
    return {};
}

} // namespace ls
