#pragma once

#include <string>
#include <string_view>

namespace ls {

/// How a system writes paths. It is data, so that tests on one system also cover the other.
struct PathRules
{
    char separator = '/';
    bool drives = false; ///< a name may begin with a drive letter and a colon
};

inline constexpr PathRules UnixPaths{'/', false};
inline constexpr PathRules WindowsPaths{'\\', true};

/// Joins `folder` and `name` with exactly one separator, also at a root. An empty folder adds nothing.
[[nodiscard]] std::string JoinPath(PathRules rules, std::string_view folder, std::string_view name);

/// The part of a path before its last separator; "" without one. A root keeps its separator.
[[nodiscard]] std::string FolderOf(PathRules rules, std::string_view path);

/// The part of a path after its last separator, or after the drive's colon.
[[nodiscard]] std::string NameOf(PathRules rules, std::string_view path);

/// Whether the path does not depend on the current folder.
[[nodiscard]] bool IsAbsolute(PathRules rules, std::string_view path);

} // namespace ls
