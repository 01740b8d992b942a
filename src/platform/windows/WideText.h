#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// UTF-8 as the system's wide calls take it; nothing for bytes that are not UTF-8.
[[nodiscard]] std::optional<std::wstring> ToWide(std::string_view utf8);

/// The system's wide text as UTF-8. Half of a surrogate pair, which UTF-8 cannot write, becomes U+FFFD.
[[nodiscard]] std::string FromWide(std::wstring_view wide);

/// Bytes in the code page of the system's narrow calls as UTF-8.
[[nodiscard]] std::string FromAnsi(std::string_view ansi);

/// UTF-8 in that code page; nothing for bytes that are not UTF-8, and for a NUL or a character that the code
/// page lacks: a name in which it was replaced would be another name.
[[nodiscard]] std::optional<std::string> ToAnsi(std::string_view utf8);

} // namespace ls
