#pragma once

#include <string>

#include <windows.h>

namespace ls {

/// Calls a function of the system that fills a buffer with text, with a buffer that grows until the text
/// fits.
///
/// `call(buffer, size)` gives the length of the text when it fitted, more than that when it did not, and 0 on
/// failure, as `GetCurrentDirectoryW` and its like do. Empty on failure.
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
        // A call that names no length (it cut the text) answers with the size that it was given.
        text.resize(length > size ? std::size_t{length} : text.size() * 2);
    }
}

} // namespace ls
