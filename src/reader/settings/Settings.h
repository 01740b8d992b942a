#pragma once

#include "base/Count16.h"
#include "base/Seams.h"

#include <array>
#include <string>

namespace ls {

inline constexpr int MaxRecentFiles = 10;

/// What the program remembers between runs.
struct Settings
{
    std::string IniDir; ///< folder of the settings file; empty = the current folder
    std::array<std::string, MaxRecentFiles> RecentFiles; ///< book paths, most recent first
    Count16 RecentFileCount;
    bool ReadIncomplete = false; ///< a read error; SaveIniFile then keeps the old file as ".bak"
};

/// Reads "LSAdvisor.INI" from `IniDir`. A missing file is no error. An error shows its message; a record
/// number past the limit ends the program.
void LoadSettings(Settings& settings, const Seams& seams);

/// Moves `path` to the top of the recent files, or adds it there. An entry that differs only in case counts
/// as the same; when it moves, it takes the new spelling.
void AddRecentFile(Settings& settings, const std::string& path);

/// Writes the settings to a new file, which then replaces the settings file in one step. If the existing file
/// was refused for its format or not read to its end, the first save keeps it as ".bak".
void SaveIniFile(Settings& settings, const Seams& seams);

} // namespace ls
