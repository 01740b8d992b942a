#include "platform/windows/WindowsOutputFile.h"

#include "platform/windows/WindowsError.h"

#include <algorithm>

namespace ls {

namespace {

// Servers on a network refuse far less than the system's own limit.
constexpr std::size_t LargestPiece = std::size_t{1} << 20;

// Whether the code says that there is no way to flush here, so that there is nothing to wait for.
bool CannotFlush(DWORD code)
{
    return code == ERROR_INVALID_FUNCTION || code == ERROR_NOT_SUPPORTED;
}

} // namespace

FileError WindowsOutputFile::Write(std::string_view bytes)
{
    if (!m_handle.IsOpen()) {
        return MakeFileError(error::BadFileNumber);
    }
    while (!bytes.empty() && m_failure.Ok()) {
        const auto piece = static_cast<DWORD>(std::min(bytes.size(), LargestPiece));
        DWORD count = 0;
        if (::WriteFile(m_handle.Get(), bytes.data(), piece, &count, nullptr) == 0) {
            m_failure = ErrorOfCode(::GetLastError());
        } else if (count == 0) {
            m_failure = MakeFileError(error::DiskFull); // nothing taken and no error: do not try forever
        } else {
            bytes.remove_prefix(count);
        }
    }
    return m_failure;
}

FileError WindowsOutputFile::Finish()
{
    if (!m_handle.IsOpen()) {
        return MakeFileError(error::BadFileNumber);
    }
    DWORD flushed = ::FlushFileBuffers(m_handle.Get()) != 0 ? 0 : ::GetLastError();
    if (CannotFlush(flushed)) {
        flushed = 0;
    }
    const DWORD closed = m_handle.Close();
    if (m_failure.Ok()) {
        m_failure = ErrorOfCode(flushed != 0 ? flushed : closed);
    }
    return m_failure;
}

} // namespace ls
