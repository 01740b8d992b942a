#include "platform/windows/WidePath.h"

#include "platform/windows/GrownText.h"
#include "platform/windows/WideText.h"

#include <optional>

#include <windows.h>

namespace ls {

namespace {

// Less than MAX_PATH, because a folder's path must leave room for a short name below it.
constexpr std::size_t LongestOldPath = MAX_PATH - 14;

bool IsLongForm(const std::wstring& path)
{
    return path.starts_with(L"\\\\?\\") || path.starts_with(L"\\\\.\\");
}

std::wstring LongForm(const std::wstring& full)
{
    return full.starts_with(L"\\\\") ? L"\\\\?\\UNC" + full.substr(1) : L"\\\\?\\" + full;
}

} // namespace

FileError ToWidePath(const std::string& path, std::wstring& wide)
{
    wide.clear();
    if (path.empty()) {
        return MakeFileError(error::FileNotFound);
    }
    std::optional<std::wstring> text = ToWide(path);
    if (!text || path.find('\0') != std::string::npos) {
        return MakeFileError(error::BadFileNumber);
    }
    wide = std::move(*text);
    if (!IsLongForm(wide)) {
        const std::wstring full = FullWidePath(wide);
        if (full.size() > LongestOldPath && !IsLongForm(full)) {
            wide = LongForm(full);
        }
    }
    return {};
}

std::wstring FullWidePath(const std::wstring& path)
{
    return GrownText([&path](wchar_t* buffer, DWORD size) {
        return ::GetFullPathNameW(path.c_str(), size, buffer, nullptr);
    });
}

} // namespace ls
