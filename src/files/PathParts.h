#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// The parts of a path, as the file selector uses them.
struct PathParts
{
    std::string drive;     ///< "C:"; empty if none is named, and on systems without drives
    std::string folder;    ///< with its last separator: "/books/"; empty if none is named
    std::string name;      ///< without its extension; "*" if missing
    std::string extension; ///< with its dot; ".*" if the name is missing too

    /// The pattern of the file list, or the name of a file.
    [[nodiscard]] std::string Pattern() const { return name + extension; }
};

[[nodiscard]] PathParts SplitPath(PathRules rules, std::string_view path);

/// Whether a file's name matches a pattern. "*" matches any characters, "?" matches one; case does not
/// matter. "*.*" matches every file, with a dot or without.
[[nodiscard]] bool MatchesPattern(std::string_view name, std::string_view pattern);

[[nodiscard]] bool HasWildcard(std::string_view pattern);

/// Makes ASCII letters small, to compare names and to show them in messages.
[[nodiscard]] std::string LowerCaseAscii(std::string_view text);

} // namespace ls
