#pragma once

#include "base/FileSystem.h"
#include "platform/windows/WindowsHandle.h"

namespace ls {

/// A file on a disk, read by position. Closing it ends its lock.
class WindowsBookFile : public BookFile
{
public:
    explicit WindowsBookFile(WindowsHandle handle) : m_handle(std::move(handle)) {}

    /// A position below 1 is error 5.
    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override;
    FileError Size(FilePos& size) override;

private:
    WindowsHandle m_handle;
};

} // namespace ls
