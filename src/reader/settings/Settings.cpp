#include "reader/settings/Settings.h"

#include "base/FindSpelling.h"

#include <algorithm>

namespace ls {

namespace {

// The index of the entry for `path`; -1 when there is none.
int EntryOf(const Settings& settings, const std::string& path)
{
    const std::string wanted = WithoutCase(path);
    for (int i = settings.RecentFileCount - 1; i >= 0; --i) {
        if (WithoutCase(settings.RecentFiles[static_cast<std::size_t>(i)]) == wanted) {
            return i;
        }
    }
    return -1;
}

} // namespace

void AddRecentFile(Settings& settings, const std::string& path)
{
    int place = EntryOf(settings, path);
    if (place == 0) {
        return;
    }
    if (place < 0) {
        settings.RecentFileCount = std::min(settings.RecentFileCount + 1, MaxRecentFiles);
        place = settings.RecentFileCount - 1; // the new last place, or the entry that drops out
    }
    const std::string added = path; // a copy: `path` may be one of the entries that move
    const auto first = settings.RecentFiles.begin();
    std::move_backward(first, first + place, first + place + 1);
    settings.RecentFiles.front() = added;
}

} // namespace ls
