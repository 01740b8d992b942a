#pragma once

#include <string>

#include <windows.h>

namespace ls {

/// Calls a system function that fills a buffer with text; the buffer grows until the text fits.
///
/// `call(buffer, size)` returns the text's length when it fits, a larger number when it does not, and 0 on
/// failure, as `GetCurrentDirectoryW` does. The result is empty on failure.
template <class Call>
[[nodiscard]] std::wstring GrownText(Call call)
{
    std::wstring text(MAX_PATH, L'\0');
    while (true) {
        const auto size = static_cast<DWORD>(text.size());
        const DWORD length = call(text.data(), size);
        if (length < size) {
            text.resize(length);
            return text;
        }
        // A function that reports no length cuts the text and returns the given size.
        text.resize(length > size ? std::size_t{length} : text.size() * 2);
    }
}

} // namespace ls
