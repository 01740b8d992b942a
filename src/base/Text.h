#pragma once

#include <string>
#include <string_view>

namespace ls {

/// What ends each line that is written, to a book or beside it: CR LF.
inline constexpr std::string_view LineEnd = "\r\n";

/// Blanks are spaces only: a TAB is text.
[[nodiscard]] std::string_view Trim(std::string_view text);
[[nodiscard]] std::string_view TrimLeft(std::string_view text);
[[nodiscard]] std::string_view TrimRight(std::string_view text);

/// Upper case byte for byte within the code page: letters with accents too, and no byte changes its length.
[[nodiscard]] char UpperCase(char c);
[[nodiscard]] std::string UpperCase(std::string_view text);

/// Whether `UpperCase(text) == upper`, without making a copy; `upper` is already in upper case.
[[nodiscard]] bool EqualsUpper(std::string_view text, std::string_view upper);

/// Whether `UpperCase(text)` begins with `upper`.
[[nodiscard]] bool BeginsUpper(std::string_view text, std::string_view upper);

/// Whether `part` occurs in `text`.
[[nodiscard]] inline bool Contains(std::string_view text, std::string_view part)
{
    return text.find(part) != std::string_view::npos;
}

/// The leading number of a text as far as it parses, leading blanks passed over; 0 when there is none.
[[nodiscard]] double LeadingNumber(std::string_view text);

/// Adds "[" before and "]" behind a topic's title, each when it is missing.
[[nodiscard]] std::string WithBrackets(std::string_view title);

/// Takes a leading "[" and a trailing "]" away, each when it is there.
[[nodiscard]] std::string WithoutBrackets(std::string_view name);

} // namespace ls
