#include "platform/windows/WideText.h"

#include <climits>

#include <windows.h>

namespace ls {

namespace {

std::optional<std::wstring> Widen(std::string_view bytes, UINT codePage, DWORD flags)
{
    if (bytes.empty()) {
        return std::wstring();
    }
    if (bytes.size() > INT_MAX) {
        return std::nullopt;
    }
    const int size = static_cast<int>(bytes.size());
    const int needed = ::MultiByteToWideChar(codePage, flags, bytes.data(), size, nullptr, 0);
    if (needed <= 0) {
        return std::nullopt;
    }
    std::wstring wide(static_cast<std::size_t>(needed), L'\0');
    ::MultiByteToWideChar(codePage, flags, bytes.data(), size, wide.data(), needed);
    return wide;
}

std::string Narrow(std::wstring_view wide, UINT codePage)
{
    if (wide.empty() || wide.size() > INT_MAX) {
        return {};
    }
    const int size = static_cast<int>(wide.size());
    const int needed = ::WideCharToMultiByte(codePage, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
    std::string bytes(needed > 0 ? static_cast<std::size_t>(needed) : 0, '\0');
    ::WideCharToMultiByte(codePage, 0, wide.data(), size, bytes.data(), needed, nullptr, nullptr);
    return bytes;
}

} // namespace

std::optional<std::wstring> ToWide(std::string_view utf8)
{
    return Widen(utf8, CP_UTF8, MB_ERR_INVALID_CHARS);
}

std::string FromWide(std::wstring_view wide)
{
    return Narrow(wide, CP_UTF8);
}

std::string FromAnsi(std::string_view ansi)
{
    return FromWide(Widen(ansi, CP_ACP, 0).value_or(std::wstring()));
}

std::optional<std::string> ToAnsi(std::string_view utf8)
{
    const std::optional<std::wstring> wide = ToWide(utf8);
    if (!wide || utf8.find('\0') != std::string_view::npos) {
        return std::nullopt;
    }
    std::string ansi = Narrow(*wide, CP_ACP);
    return FromAnsi(ansi) == utf8 ? std::optional(std::move(ansi)) : std::nullopt;
}

} // namespace ls
