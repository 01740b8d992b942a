#pragma once

#include "base/FileSystem.h"
#include "platform/windows/WindowsHandle.h"

namespace ls {

/// A new file that is being written. It remembers the first failure, and `Finish` reports it again.
class WindowsOutputFile : public OutputFile
{
public:
    explicit WindowsOutputFile(WindowsHandle handle) : m_handle(std::move(handle)) {}

    FileError Write(std::string_view bytes) override;

    /// A second call is error 52.
    FileError Finish() override;

private:
    WindowsHandle m_handle;
    FileError m_failure;
};

} // namespace ls
