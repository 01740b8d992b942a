#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// The name of the settings file, and what its first line and its section line read.
inline constexpr std::string_view IniFileName = "LSAdvisor.INI";
inline constexpr std::string_view IniSignature = "LSADVISOR V5.3 INI";
inline constexpr std::string_view RecentFilesSection = "[TOP10FILES]";

/// Where the settings file lies: in `iniDir`, or in the current folder when that is empty. A file or folder
/// that is spelled in another case is found.
[[nodiscard]] std::string IniPath(FileSystem& files, PathRules rules, const std::string& iniDir);

/// Whether a first line belongs to a settings file that this version reads: " V" and a version number that is
/// not 0 and at most 5.3, and both of "LSADVISOR" and "INI".
[[nodiscard]] bool IsIniSignature(std::string_view line);

} // namespace ls
