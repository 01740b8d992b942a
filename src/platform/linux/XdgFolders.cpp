#include "base/PathRules.h"
#include "base/Processes.h"
#include "platform/linux/KeyFile.h"
#include "platform/linux/MimeApps.h"

#include <algorithm>

namespace ls {

namespace {

void AddAbsolute(std::vector<std::string>& folders, const std::string& list)
{
    for (const std::string& folder : SplitList(list, ':')) {
        if (IsAbsolute(UnixPaths, folder)) {
            folders.push_back(folder);
        }
    }
}

// Adds the user's folder from the variable; `standard` below the home folder when it is unset.
void AddUserFolder(Processes& processes, std::vector<std::string>& folders, const std::string& variable,
                   const std::string& standard)
{
    std::string folder = processes.Environment(variable);
    if (!IsAbsolute(UnixPaths, folder)) {
        folder = processes.Environment("HOME");
        folder = folder.empty() ? folder : JoinPath(UnixPaths, folder, standard);
    }
    if (IsAbsolute(UnixPaths, folder)) {
        folders.push_back(folder);
    }
}

std::string OrStandard(const std::string& value, const std::string& standard)
{
    return value.empty() ? standard : value;
}

char LowerCase(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

XdgFolders ReadXdgFolders(Processes& processes)
{
    XdgFolders folders;
    AddUserFolder(processes, folders.config, "XDG_CONFIG_HOME", ".config");
    AddAbsolute(folders.config, OrStandard(processes.Environment("XDG_CONFIG_DIRS"), "/etc/xdg"));
    AddUserFolder(processes, folders.data, "XDG_DATA_HOME", ".local/share");
    AddAbsolute(folders.data,
                OrStandard(processes.Environment("XDG_DATA_DIRS"), "/usr/local/share:/usr/share"));
    for (std::string desktop : SplitList(processes.Environment("XDG_CURRENT_DESKTOP"), ':')) {
        std::transform(desktop.begin(), desktop.end(), desktop.begin(), LowerCase);
        if (desktop.find('/') == std::string::npos) {
            folders.desktops.push_back(desktop);
        }
    }
    folders.searchPath = processes.Environment("PATH");
    return folders;
}

} // namespace ls
