#include "platform/windows/WindowsBookFile.h"

#include "platform/windows/WindowsError.h"

#include <algorithm>

namespace ls {

namespace {

// The most that one read asks for; network servers fail at far less than the system's own limit.
constexpr std::size_t LargestPiece = std::size_t{1} << 20;

// The position of a read, 0-based. The file is not opened for overlapped reads, so the read still waits.
OVERLAPPED PlaceAt(FilePos offset)
{
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset & 0xFFFFFFFF);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    return place;
}

} // namespace

FileError WindowsBookFile::ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got)
{
    got = 0;
    if (pos < 1) {
        return MakeFileError(error::InvalidCall);
    }
    while (got < size) {
        OVERLAPPED place = PlaceAt(pos - 1 + static_cast<FilePos>(got));
        const auto piece = static_cast<DWORD>(std::min(size - got, LargestPiece));
        DWORD count = 0;
        if (::ReadFile(m_handle.Get(), buffer + got, piece, &count, &place) == 0) {
            const DWORD code = ::GetLastError();
            return code == ERROR_HANDLE_EOF ? FileError{} : ErrorOfCode(code);
        }
        if (count == 0) {
            return {};
        }
        got += count;
    }
    return {};
}

FileError WindowsBookFile::Size(FilePos& size)
{
    LARGE_INTEGER value = {};
    if (::GetFileSizeEx(m_handle.Get(), &value) == 0) {
        return ErrorOfCode(::GetLastError());
    }
    size = value.QuadPart;
    return {};
}

} // namespace ls
