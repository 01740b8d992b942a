#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// UTF-8 as UTF-16 for the system's wide calls; nothing for bytes that are not UTF-8.
[[nodiscard]] std::optional<std::wstring> ToWide(std::string_view utf8);

/// The system's wide text as UTF-8. Half of a surrogate pair becomes U+FFFD.
[[nodiscard]] std::string FromWide(std::wstring_view wide);

/// Text in the code page of the system's narrow calls, as UTF-8.
[[nodiscard]] std::string FromAnsi(std::string_view ansi);

/// UTF-8 as text in that code page. Nothing for bytes that are not UTF-8, for a NUL, and for a character that
/// the code page lacks, because a replacement would change the name.
[[nodiscard]] std::optional<std::string> ToAnsi(std::string_view utf8);

} // namespace ls
