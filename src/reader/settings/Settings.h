#pragma once

#include "base/Count16.h"
#include "base/Seams.h"

#include <array>
#include <string>

namespace ls {

inline constexpr int MaxRecentFiles = 10;

/// What the program remembers from one run to the next.
struct Settings
{
    std::string IniDir; ///< folder of the settings file; empty = the current folder
    std::array<std::string, MaxRecentFiles> RecentFiles; ///< book paths, most recent first
    Count16 RecentFileCount;
    bool ReadIncomplete = false; ///< a disk that failed kept back what the settings file holds
};

/// Reads "LSAdvisor.INI" from `IniDir`. A missing file is no fault. A fault shows its message; a record
/// number past the limit ends the program. The remainder of a line being parsed (`IniLine`) lives only inside
/// this call.
void LoadSettings(Settings& settings, const Seams& seams);

/// Puts `path` at the top of the recent files. An entry that differs only in case is moved there and
/// rewritten.
void AddRecentFile(Settings& settings, const std::string& path);

/// Writes the settings file: into a new file first, which then takes its name in one step. A file that was
/// refused for its format, or that could not be read to its end, is kept beside as ".bak" before the first
/// rewrite.
void SaveIniFile(Settings& settings, const Seams& seams);

} // namespace ls
