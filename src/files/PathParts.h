#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// A path as the file selector takes it apart.
struct PathParts
{
    std::string drive;     ///< "C:"; empty when none is named, and always where there are no drives
    std::string folder;    ///< with its last separator: "/books/"; empty when none is named
    std::string name;      ///< without its type; "*" when missing
    std::string extension; ///< with its dot; ".*" when the name is missing too

    /// What the file list is filtered by, or the name of a file.
    [[nodiscard]] std::string Pattern() const { return name + extension; }
};

[[nodiscard]] PathParts SplitPath(PathRules rules, std::string_view path);

/// Whether a file's name fits a pattern: "*" stands for any characters, "?" for one; case does not matter,
/// and "*.*" means every file, with a dot or without.
[[nodiscard]] bool MatchesPattern(std::string_view name, std::string_view pattern);

/// Whether a pattern holds a wildcard.
[[nodiscard]] bool HasWildcard(std::string_view pattern);

/// ASCII letters made small, for comparing names and for the messages that show them so.
[[nodiscard]] std::string LowerCaseAscii(std::string_view text);

} // namespace ls
