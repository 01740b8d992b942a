#pragma once

#include <utility>

namespace ls {

/// Owns a file descriptor; the destructor closes it. -1 is none.
class FileDescriptor
{
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    ~FileDescriptor() { Close(); }
    FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    [[nodiscard]] int Get() const { return m_number; }
    [[nodiscard]] bool IsOpen() const { return m_number >= 0; }

    /// Closes it; returns the errno of a failure, 0 on success.
    int Close();

private:
    int m_number = -1;
};

} // namespace ls
