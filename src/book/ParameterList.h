#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ls {

/// Walks a text of the form `/KEY=value /KEY="value" ...`, from its first "/" on.
///
/// A value ends at the next "/" unless that slash stands between two double quotes of the value. Keys are
/// handed on in upper case and untrimmed; values with trailing blanks removed and their quotes still on.
/// `store` returns false for a key it does not know. The result is false when a key was unknown or a "/" had
/// no "=" behind it; the walk goes on after an unknown key and stops at a missing "=".
bool WalkParameters(std::string_view text,
                    const std::function<bool(const std::string& key, const std::string& value)>& store);

/// Drops a leading double quote and then a trailing one from a value that is longer than one character.
[[nodiscard]] std::string Unquote(std::string value);

} // namespace ls
