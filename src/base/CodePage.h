#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// Book text (one byte a character, Windows-1252) as UTF-8. The five bytes that the code page leaves
/// unassigned (81, 8D, 8F, 90, 9D) become the control characters of the same number; `ToBook` turns them
/// back.
[[nodiscard]] std::string FromBook(std::string_view bookText);

/// The first character of a text that the code page lacks.
struct Unmapped
{
    char32_t character = 0; ///< U+FFFD for bytes that are not UTF-8
    int line = 0;           ///< the line it is in, from 1
};

/// UTF-8 as book text. If the code page lacks a character, the result is nothing, and `unmapped` (if given)
/// gets the first such character. No character is ever replaced.
[[nodiscard]] std::optional<std::string> ToBook(std::string_view utf8, Unmapped* unmapped = nullptr);

/// A path as UTF-8 for messages: each byte that is not UTF-8 becomes U+FFFD.
[[nodiscard]] std::string FromPath(std::string_view path);

/// One character as UTF-8.
void AppendUtf8(std::string& text, char32_t character);

/// A character's number as text: "U+2192".
[[nodiscard]] std::string CodeOf(char32_t character);

/// The character at `at`; moves `at` past it. For bytes that are not UTF-8: U+FFFD, and `at` moves one byte.
[[nodiscard]] char32_t NextUtf8(std::string_view text, std::size_t& at);

} // namespace ls
