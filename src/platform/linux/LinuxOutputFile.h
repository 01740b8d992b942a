#pragma once

#include "base/FileSystem.h"
#include "platform/linux/FileDescriptor.h"

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
    FileDescriptor m_descriptor;
    FileError m_failure;
};

} // namespace ls
