#pragma once

#include "platform/linux/DesktopEntry.h"

#include <optional>
#include <string>
#include <vector>

namespace ls {

class Processes;

/// The folders in which a desktop keeps what opens which type of file, the user's before the system's.
struct XdgFolders
{
    std::vector<std::string> config;
    std::vector<std::string> data;
    std::vector<std::string> desktops; ///< the running desktop's names in lower case, the closest first
    std::string searchPath;            ///< where bare names of programs are looked for
};

/// From the environment; an unset variable has its standard value, a folder that is not absolute is left out.
[[nodiscard]] XdgFolders ReadXdgFolders(Processes& processes);

/// The application of that id ("web.desktop"): the first file of that name in the data folders. Nothing where
/// it is missing, hidden or unreadable, or where its program is not there.
[[nodiscard]] std::optional<DesktopEntry> FindDesktopEntry(const XdgFolders& folders, const std::string& id);

/// The id of the application that opens a type of file ("text/html"): the first default that is there, else
/// the first one that was added to the type or says that it can open it. Empty when there is none.
[[nodiscard]] std::string DefaultApplication(const XdgFolders& folders, const std::string& mimeType);

} // namespace ls
