#pragma once

#include "platform/linux/DesktopEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace ls {

class Processes;

/// The folders in which the desktop stores which program opens which type of file. The user's folders come
/// before the system's.
struct XdgFolders
{
    std::vector<std::string> config;
    std::vector<std::string> data;
    std::vector<std::string> desktops; ///< the running desktop's names in lower case, the closest first
    std::string searchPath;            ///< the folders to search for programs
};

/// Reads the environment. An unset variable has its standard value; a folder that is not absolute is left
/// out.
[[nodiscard]] XdgFolders ReadXdgFolders(Processes& processes);

/// The application with that id ("web.desktop"): the first file of that name in the data folders. Nothing
/// when it is missing, hidden or unreadable, or when its program is missing.
[[nodiscard]] std::optional<DesktopEntry> FindDesktopEntry(const XdgFolders& folders, const std::string& id);

/// The id of the application that opens a type of file ("text/html"): the first existing default, else the
/// first application that was added for the type or declares it. Empty when there is none.
[[nodiscard]] std::string DefaultApplication(const XdgFolders& folders, const std::string& mimeType);

} // namespace ls
