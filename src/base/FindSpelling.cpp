#include "base/FindSpelling.h"

#include "base/CodePage.h"
#include "base/Text.h"

#include <algorithm>
#include <vector>

namespace ls {

namespace {

// The entry of `folder` that matches `name` without regard to case; empty when there is none.
std::string EntryNamed(FileSystem& files, const std::string& folder, const std::string& name)
{
    std::vector<FolderEntry> entries;
    if (!files.List(folder.empty() ? files.CurrentFolder() : folder, entries).Ok()) {
        return {};
    }
    const std::string wanted = WithoutCase(name);
    std::string best;
    for (const FolderEntry& entry : entries) {
        if (WithoutCase(entry.name) == wanted && (best.empty() || entry.name < best)) {
            best = entry.name;
        }
    }
    return best;
}

// Splits "/a//b" into its names; skips the empty ones of doubled separators.
std::vector<std::string> LevelsOf(PathRules rules, const std::string& path, std::size_t from)
{
    std::vector<std::string> levels;
    while (from < path.size()) {
        const std::size_t end = std::min(path.find(rules.separator, from), path.size());
        if (end > from) {
            levels.push_back(path.substr(from, end - from));
        }
        from = end + 1;
    }
    return levels;
}

} // namespace

std::string WithoutCase(std::string_view path)
{
    if (const std::optional<std::string> text = ToBook(path)) {
        return UpperCase(*text);
    }
    // The text is UTF-8 here: a byte that looks like a capital of the code page may be part of a longer
    // character.
    std::string folded(path);
    for (char& c : folded) {
        if (c >= 'a' && c <= 'z') {
            c = UpperCase(c);
        }
    }
    return folded;
}

std::string FindSpelling(FileSystem& files, PathRules rules, const std::string& path)
{
    if (path.empty() || files.Exists(path)) {
        return path;
    }
    std::size_t rest = path.find_first_not_of(rules.separator);
    if (rest == std::string::npos) {
        return path;
    }
    std::string found = rest > 0 ? std::string(1, rules.separator) : std::string();
    for (const std::string& level : LevelsOf(rules, path, rest)) {
        std::string next = JoinPath(rules, found, level);
        if (!files.Exists(next)) {
            const std::string entry = EntryNamed(files, found, level);
            if (entry.empty()) {
                return path;
            }
            next = JoinPath(rules, found, entry);
        }
        found = next;
    }
    return found;
}

} // namespace ls
