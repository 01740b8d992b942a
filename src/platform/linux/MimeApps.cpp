#include "platform/linux/MimeApps.h"

#include "base/PathRules.h"
#include "platform/linux/ErrnoError.h"
#include "platform/linux/FindProgram.h"
#include "platform/linux/KeyFile.h"

#include <algorithm>

namespace ls {

namespace {

using Ids = std::vector<std::string>;

constexpr std::size_t MaxIdSize = 255;

bool IsId(const std::string& id)
{
    return id.size() <= MaxIdSize && id.ends_with(".desktop") && id.find('/') == std::string::npos &&
           id.find('\0') == std::string::npos;
}

// The text of the id's file in a folder. A dash in the id may mean a subfolder: "a-web.desktop" is also
// "a/web.desktop".
std::optional<std::string> ReadEntryFile(const std::string& folder, const std::string& id)
{
    if (std::optional<std::string> text = ReadSmallFile(JoinPath(UnixPaths, folder, id))) {
        return text;
    }
    for (std::size_t dash = id.find('-'); dash != std::string::npos; dash = id.find('-', dash + 1)) {
        const std::string below = JoinPath(UnixPaths, folder, id.substr(0, dash));
        if (dash > 0 && id.front() != '.' && IsFolder(below)) {
            if (std::optional<std::string> text = ReadEntryFile(below, id.substr(dash + 1))) {
                return text;
            }
        }
    }
    return std::nullopt;
}

bool IsThere(const XdgFolders& folders, const std::string& program)
{
    std::string path;
    return FindProgram(program, folders.searchPath, path).Ok();
}

Ids IdsIn(const std::string& text, const char* group, const std::string& mimeType)
{
    return SplitList(KeyFileValue(text, group, mimeType).value_or(""));
}

// A folder that may hold association lists, and whether it holds applications too.
struct ListFolder
{
    std::string path;
    bool applications = false;
};

std::vector<ListFolder> ListFolders(const XdgFolders& folders)
{
    std::vector<ListFolder> lists;
    for (const std::string& folder : folders.config) {
        lists.push_back({folder, false});
    }
    for (const std::string& folder : folders.data) {
        lists.push_back({JoinPath(UnixPaths, folder, "applications"), true});
    }
    return lists;
}

std::string ReadList(const ListFolder& folder, const std::string& name)
{
    return ReadSmallFile(JoinPath(UnixPaths, folder.path, name)).value_or("");
}

// The applications that the user or the system chose, in the order of the folders. In each folder the running
// desktop's list comes first.
Ids ChosenDefaults(const XdgFolders& folders, const std::string& mimeType)
{
    Ids ids;
    const auto add = [&](const std::string& text) {
        const Ids more = IdsIn(text, "Default Applications", mimeType);
        ids.insert(ids.end(), more.begin(), more.end());
    };
    for (const ListFolder& folder : ListFolders(folders)) {
        for (const std::string& desktop : folders.desktops) {
            add(ReadList(folder, desktop + "-mimeapps.list"));
        }
        add(ReadList(folder, "mimeapps.list"));
    }
    return ids;
}

// The applications that can open the type. An association that one list removes is ignored in all later
// lists.
Ids Associated(const XdgFolders& folders, const std::string& mimeType)
{
    Ids ids;
    Ids removed;
    const auto add = [&](const Ids& more) {
        for (const std::string& id : more) {
            if (std::find(removed.begin(), removed.end(), id) == removed.end()) {
                ids.push_back(id);
            }
        }
    };
    for (const ListFolder& folder : ListFolders(folders)) {
        const std::string text = ReadList(folder, "mimeapps.list");
        add(IdsIn(text, "Added Associations", mimeType));
        const Ids more = IdsIn(text, "Removed Associations", mimeType);
        removed.insert(removed.end(), more.begin(), more.end());
        if (folder.applications) {
            add(IdsIn(ReadList(folder, "mimeinfo.cache"), "MIME Cache", mimeType));
        }
    }
    return ids;
}

std::string FirstThatIsThere(const XdgFolders& folders, const Ids& ids)
{
    const auto found = std::find_if(ids.begin(), ids.end(), [&folders](const std::string& id) {
        return FindDesktopEntry(folders, id).has_value();
    });
    return found == ids.end() ? std::string() : *found;
}

} // namespace

std::optional<DesktopEntry> FindDesktopEntry(const XdgFolders& folders, const std::string& id)
{
    if (!IsId(id)) {
        return std::nullopt;
    }
    for (const std::string& folder : folders.data) {
        const std::optional<std::string> text =
            ReadEntryFile(JoinPath(UnixPaths, folder, "applications"), id);
        if (!text) {
            continue;
        }
        // The first file decides, even if it marks the application as hidden and a later folder has it too.
        std::optional<DesktopEntry> entry = ParseDesktopEntry(*text);
        const bool there = entry && IsThere(folders, entry->program) &&
                           (entry->tryExec.empty() || IsThere(folders, entry->tryExec));
        return there ? entry : std::nullopt;
    }
    return std::nullopt;
}

std::string DefaultApplication(const XdgFolders& folders, const std::string& mimeType)
{
    const std::string chosen = FirstThatIsThere(folders, ChosenDefaults(folders, mimeType));
    return chosen.empty() ? FirstThatIsThere(folders, Associated(folders, mimeType)) : chosen;
}

} // namespace ls
