#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

/// The name of the settings file, and the text of its first line and its section line.
inline constexpr std::string_view IniFileName = "LSAdvisor.INI";
inline constexpr std::string_view IniSignature = "LSADVISOR V5.3 INI";
inline constexpr std::string_view RecentFilesSection = "[TOP10FILES]";

/// The path of the settings file: in `iniDir`, or in the current folder when that is empty. A file or folder
/// spelled in another case is found.
[[nodiscard]] std::string IniPath(FileSystem& files, PathRules rules, const std::string& iniDir);

/// Whether this is the first line of a settings file that this version reads: " V" with a version above 0 and
/// at most 5.3, and both "LSADVISOR" and "INI".
[[nodiscard]] bool IsIniSignature(std::string_view line);

} // namespace ls
