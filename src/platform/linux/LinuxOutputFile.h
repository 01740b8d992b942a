#pragma once

#include "base/FileSystem.h"
#include "platform/linux/FileDescriptor.h"

#include <cstddef>

namespace ls {

/// A new file that is being written. The first failure stays: `Finish` tells it again.
class LinuxOutputFile : public OutputFile
{
public:
    explicit LinuxOutputFile(FileDescriptor descriptor) : m_descriptor(std::move(descriptor)) {}

    FileError Write(std::string_view bytes) override;

    /// A second call is error 52.
    FileError Finish() override;

private:
    void StartWriteback(std::size_t count);

    FileDescriptor m_descriptor;
    std::size_t m_unstarted = 0; ///< bytes that the system was given and not yet told to write
    FileError m_failure;
};

} // namespace ls
