#pragma once

#include <utility>

#include <windows.h>

namespace ls {

/// Owns the handle of an open file; the destructor closes it.
class WindowsHandle
{
public:
    WindowsHandle() = default;
    explicit WindowsHandle(HANDLE handle) : m_handle(handle) {}
    ~WindowsHandle() { Close(); }
    WindowsHandle(WindowsHandle&& other) noexcept
        : m_handle(std::exchange(other.m_handle, INVALID_HANDLE_VALUE))
    {
    }
    WindowsHandle& operator=(WindowsHandle&& other) noexcept
    {
        std::swap(m_handle, other.m_handle);
        return *this;
    }
    WindowsHandle(const WindowsHandle&) = delete;
    WindowsHandle& operator=(const WindowsHandle&) = delete;

    [[nodiscard]] HANDLE Get() const { return m_handle; }
    [[nodiscard]] bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE; }

    /// Closes it; returns the system's code of a failure, 0 on success.
    DWORD Close()
    {
        const HANDLE handle = std::exchange(m_handle, INVALID_HANDLE_VALUE);
        return handle == INVALID_HANDLE_VALUE || ::CloseHandle(handle) != 0 ? 0 : ::GetLastError();
    }

private:
    HANDLE m_handle = INVALID_HANDLE_VALUE;
};

} // namespace ls
