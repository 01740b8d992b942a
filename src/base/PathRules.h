#pragma once

#include <string>
#include <string_view>

namespace ls {

/// What differs between systems in writing a path. It is data, so that both sets are tested everywhere.
struct PathRules
{
    char separator = '/';
    bool drives = false; ///< a name may begin with a drive letter and a colon
};

inline constexpr PathRules UnixPaths{'/', false};
inline constexpr PathRules WindowsPaths{'\\', true};

/// `folder` and `name` with exactly one separator between them, also at a root; an empty folder adds nothing.
[[nodiscard]] std::string JoinPath(PathRules rules, std::string_view folder, std::string_view name);

/// The part of a path before its last separator ("" when there is none; a root keeps its separator).
[[nodiscard]] std::string FolderOf(PathRules rules, std::string_view path);

/// The part of a path behind its last separator (or behind the drive's colon).
[[nodiscard]] std::string NameOf(PathRules rules, std::string_view path);

/// Whether the name stands for itself wherever the current folder is.
[[nodiscard]] bool IsAbsolute(PathRules rules, std::string_view path);

} // namespace ls
