#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace ls {

/// Walks a text of the form `/KEY=value /KEY="value" ...`, from its first "/" on.
///
/// A value ends at the next "/" that is not between two double quotes of the value. `store` gets the key in
/// upper case and untrimmed, and the value with its quotes but without trailing blanks. `store` returns false
/// for an unknown key. The result is false if a key was unknown or a "/" has no "=". The walk continues after
/// an unknown key and stops at a missing "=".
bool WalkParameters(std::string_view text,
                    const std::function<bool(const std::string& key, const std::string& value)>& store);

/// Removes a leading double quote and a trailing one from a value that is longer than one character.
[[nodiscard]] std::string Unquote(std::string value);

} // namespace ls
