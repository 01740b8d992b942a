#pragma once

#include <string>
#include <string_view>

namespace ls {

/// The end of each line that the program writes into a file: CR LF.
inline constexpr std::string_view LineEnd = "\r\n";

/// Removes blanks at both ends. Only spaces count; a TAB is text.
[[nodiscard]] std::string_view Trim(std::string_view text);
[[nodiscard]] std::string_view TrimLeft(std::string_view text);
[[nodiscard]] std::string_view TrimRight(std::string_view text);

/// Upper case within the code page, byte for byte: letters with accents change too, and the length stays.
[[nodiscard]] char UpperCase(char c);
[[nodiscard]] std::string UpperCase(std::string_view text);

/// Whether `UpperCase(text) == upper`, without a copy. `upper` must be in upper case.
[[nodiscard]] bool EqualsUpper(std::string_view text, std::string_view upper);

/// Whether `UpperCase(text)` begins with `upper`.
[[nodiscard]] bool BeginsUpper(std::string_view text, std::string_view upper);

/// Whether `part` occurs in `text`.
[[nodiscard]] inline bool Contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// The number at the start of a text, after any blanks; 0 when there is none.
[[nodiscard]] double LeadingNumber(std::string_view text);

/// Adds "[" before and "]" after a topic's title, each when it is missing.
[[nodiscard]] std::string WithBrackets(std::string_view title);

/// Removes a leading "[" and a trailing "]", each when it is there.
[[nodiscard]] std::string WithoutBrackets(std::string_view name);

} // namespace ls
