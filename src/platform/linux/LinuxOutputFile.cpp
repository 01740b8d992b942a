#include "platform/linux/LinuxOutputFile.h"

#include "platform/linux/ErrnoError.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace ls {

namespace {

constexpr std::size_t WritebackStep = 8 * 1024 * 1024;

} // namespace

FileError LinuxOutputFile::Write(std::string_view bytes)
{
    if (!m_descriptor.IsOpen()) {
        return MakeFileError(error::BadFileNumber);
    }
    while (!bytes.empty() && m_failure.Ok()) {
        const ssize_t count = ::write(m_descriptor.Get(), bytes.data(), bytes.size());
        if (count > 0) {
            const auto taken = static_cast<std::size_t>(count);
            bytes.remove_prefix(taken);
            StartWriteback(taken);
        } else if (count == 0) {
            // nothing written and no error: must not loop for ever
            m_failure = MakeFileError(error::DiskFull);
        } else if (errno != EINTR) {
            m_failure = ErrorOfErrno(errno);
        }
    }
    return m_failure;
}

// Starts writing to the disk early, so that `Finish` waits less. It is only a hint; `Finish` reports disk
// errors.
void LinuxOutputFile::StartWriteback(std::size_t count)
{
    m_unstarted += count;
    if (m_unstarted >= WritebackStep) {
        m_unstarted = 0;
        ::sync_file_range(m_descriptor.Get(), 0, 0, SYNC_FILE_RANGE_WRITE);
    }
}

FileError LinuxOutputFile::Finish()
{
    if (!m_descriptor.IsOpen()) {
        return MakeFileError(error::BadFileNumber);
    }
    int flushed = 0;
    do {
        flushed = ::fsync(m_descriptor.Get()) == 0 ? 0 : errno;
    } while (flushed == EINTR);
    if (flushed == EINVAL || flushed == EROFS) {
        flushed = 0; // this file system cannot flush; nothing to wait for
    }
    const int closed = m_descriptor.Close();
    if (m_failure.Ok()) {
        m_failure = ErrorOfErrno(flushed != 0 ? flushed : closed);
    }
    return m_failure;
}

} // namespace ls
