#include "platform/windows/WindowsOutputFile.h"

#include "platform/windows/WindowsError.h"

#include <algorithm>

namespace ls {

namespace {

// Network servers fail at far less than the system's own limit.
constexpr std::size_t LargestPiece = std::size_t{1} << 20;

// Whether the code means that the file cannot be flushed. Then nothing needs to be waited for.
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
            // nothing written and no error: must not loop for ever
            m_failure = MakeFileError(error::DiskFull);
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
