#pragma once

#include "base/FileSystem.h"
#include "platform/linux/FileDescriptor.h"

namespace ls {

/// A regular file, read by position. Closing it releases its lock.
class LinuxBookFile : public BookFile
{
public:
    explicit LinuxBookFile(FileDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}

    /// A position below 1 is error 5.
    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override;
    FileError Size(FilePos& size) override;

private:
    FileDescriptor m_descriptor;
};

} // namespace ls
