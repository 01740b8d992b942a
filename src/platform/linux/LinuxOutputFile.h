#pragma once

#include "base/FileSystem.h"
#include "platform/linux/FileDescriptor.h"

#include <cstddef>

namespace ls {

/// A new file that is being written. It remembers the first failure, and `Finish` reports it again.
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
    std::size_t m_unstarted = 0; ///< bytes written since the last writeback was started
    FileError m_failure;
};

} // namespace ls
