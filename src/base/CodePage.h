#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// Book text (one byte a character, Windows-1252) as UTF-8. The five bytes that the code page leaves
/// unassigned (81, 8D, 8F, 90, 9D) become the control characters of the same number, and come back as those
/// bytes.
[[nodiscard]] std::string FromBook(std::string_view bookText);

/// The characters that a text needs and the code page lacks.
struct Unmapped
{
    char32_t character = 0; ///< the first of them; U+FFFD for bytes that are not UTF-8
    int line = 0;           ///< the line it stands in, from 1
};

/// UTF-8 as book text. A character that the code page lacks is never replaced: nothing is returned then, and
/// `unmapped`, when given, names it.
[[nodiscard]] std::optional<std::string> ToBook(std::string_view utf8, Unmapped* unmapped = nullptr);

/// A path as UTF-8 for messages: bytes that are no UTF-8 are shown as U+FFFD, one each.
[[nodiscard]] std::string FromPath(std::string_view path);

/// One character as UTF-8.
void AppendUtf8(std::string& text, char32_t character);

/// A character's number as text: "U+2192".
[[nodiscard]] std::string CodeOf(char32_t character);

/// The character at `at`, which moves behind it; U+FFFD and one byte on for bytes that are not UTF-8.
[[nodiscard]] char32_t NextUtf8(std::string_view text, std::size_t& at);

} // namespace ls
