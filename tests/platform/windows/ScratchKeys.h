#pragma once

#include "platform/windows/WideText.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <windows.h>

namespace ls::test {

/// Keys of the real registry below SOFTWARE\Classes; the destructor removes them.
class ScratchKeys
{
public:
    ScratchKeys() = default;
    ~ScratchKeys()
    {
        for (const auto& [root, path] : m_made) {
            ::RegDeleteTreeW(root, path.c_str());
        }
    }
    ScratchKeys(const ScratchKeys&) = delete;
    ScratchKeys& operator=(const ScratchKeys&) = delete;

    /// Creates a key and the levels above it.
    void Make(HKEY root, const std::string& path) { Close(Open(root, path)); }

    /// Sets a key's default value to text.
    void SetText(HKEY root, const std::string& path, const std::string& text, DWORD type = REG_SZ)
    {
        const std::wstring wide = *ToWide(text);
        SetBytes(root, path, type, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
    }

    void SetBytes(HKEY root, const std::string& path, DWORD type, const void* bytes, std::size_t size)
    {
        const HKEY key = Open(root, path);
        EXPECT_EQ(::RegSetValueExW(key, nullptr, 0, type, static_cast<const BYTE*>(bytes),
                                   static_cast<DWORD>(size)),
                  ERROR_SUCCESS);
        Close(key);
    }

    /// Registers a program for a file type under the user's keys.
    void Register(const std::string& fileType, const std::string& fileClass, const std::string& command,
                  DWORD type = REG_SZ)
    {
        SetText(HKEY_CURRENT_USER, fileType, fileClass);
        SetText(HKEY_CURRENT_USER, fileClass + "\\shell\\open\\command", command, type);
    }

private:
    HKEY Open(HKEY root, const std::string& path)
    {
        const std::string first = path.substr(0, path.find('\\'));
        m_made.emplace_back(root, L"SOFTWARE\\Classes\\" + *ToWide(first));
        HKEY key = nullptr;
        const std::wstring full = L"SOFTWARE\\Classes\\" + *ToWide(path);
        EXPECT_EQ(::RegCreateKeyExW(root, full.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &key, nullptr),
                  ERROR_SUCCESS);
        return key;
    }

    static void Close(HKEY key) { ::RegCloseKey(key); }

    std::vector<std::pair<HKEY, std::wstring>> m_made;
};

} // namespace ls::test
