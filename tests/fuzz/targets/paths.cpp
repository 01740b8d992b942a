// Makes paths full, splits and joins them, by the rules of both kinds of system. Also matches patterns of
// file names.

#include "World.h"
#include "base/FindSpelling.h"
#include "base/StdSubs.h"
#include "files/FileFormRules.h"
#include "files/PathParts.h"

namespace ls::fuzz {

namespace {

// Whether the name matches, found by trying every length for each "*".
bool Fits(std::string_view name, std::string_view pattern)
{
    if (pattern.empty()) {
        return name.empty();
    }
    if (pattern.front() == '*') {
        for (std::size_t taken = 0; taken <= name.size(); ++taken) {
            if (Fits(name.substr(taken), pattern.substr(1))) {
                return true;
            }
        }
        return false;
    }
    return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
           Fits(name.substr(1), pattern.substr(1));
}

void TakePattern(const std::string& name, const std::string& pattern)
{
    if (name.size() > 12 || pattern.size() > 8) {
        static_cast<void>(MatchesPattern(name, pattern));
        return;
    }
    const bool fits = pattern == "*.*" || Fits(LowerCaseAscii(name), LowerCaseAscii(pattern));
    Require(MatchesPattern(name, pattern) == fits, "a name fits a pattern as in a plain reading");
    Require(HasWildcard(pattern) ||
                MatchesPattern(name, pattern) == (LowerCaseAscii(name) == LowerCaseAscii(pattern)),
            "a pattern without wildcards is a name");
}

void TakePath(PathRules rules, const std::string& path)
{
    const PathParts parts = SplitPath(rules, path);
    const std::string before = parts.drive + parts.folder;
    const bool nameAdded = parts.name == "*" && path == before + parts.extension;
    const bool patternAdded = parts.Pattern() == "*.*" && path == before;
    Require(path == before + parts.Pattern() || nameAdded || patternAdded, "a path's parts make the path");
    Require(rules.drives || parts.drive.empty(), "without drives there is none");
    const std::string folder = FolderOf(rules, path);
    const std::string name = NameOf(rules, path);
    Require(path.ends_with(name) && path.starts_with(folder), "folder and name stand in the path");
    Require(name.find(rules.separator) == std::string::npos, "a name holds no separator");
    const bool driveRelative = rules.drives && folder.size() == 2 && folder[1] == ':';
    const bool doubled = path.find(std::string(2, rules.separator)) != std::string::npos;
    if (!folder.empty() && !driveRelative && !doubled) {
        RequireEqual(JoinPath(rules, folder, name), path, "folder and name joined make the path");
    }
    const std::string numbered = NumberedName(rules, path);
    Require(numbered != path, "a numbered name is another one");
    Require(path.empty() || numbered.ends_with(".IDA"), "a numbered name is a book's");
    if (!path.empty()) {
        RequireEqual(FolderOf(rules, numbered), folder, "a numbered name stays in its folder");
    }
}

void TakeFullPath(World& world, const std::string& folder, const std::string& name)
{
    const std::string full = MakeFullPath(folder, name, world.Get());
    Require(name.empty() == full.empty(), "only an empty name stays empty");
    Require(full.ends_with(name), "a full path ends in the name");
    if (!name.empty() && folder.empty() && !world.paths.drives) {
        Require(IsAbsolute(world.paths, full), "a full path is absolute");
    }
    if (IsAbsolute(world.paths, folder) && !name.empty()) {
        RequireEqual(MakeFullPath("/elsewhere", full, world.Get()),
                     world.paths.drives && full.front() != '\\' && full.find(':') == std::string::npos
                         ? "/elsewhere\\" + full
                         : full,
                     "a full path stays as it is");
    }
}

void TakeSpelling(World& world, const std::string& existing, const std::string& asked)
{
    world.files["/work/" + existing] = "x";
    const std::string found = FindSpelling(world.files, world.paths, "/work/" + asked);
    Require(found == "/work/" + asked || world.files.Exists(found), "a spelling that is found exists");
    if (world.files.Exists("/work/" + asked)) {
        RequireEqual(found, "/work/" + asked, "a path that exists is spelled as it is");
    }
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    world.paths = input.Choose(2) == 0 ? UnixPaths : WindowsPaths;
    const std::vector<std::string> lines = input.Lines();
    const std::string& second = lines.size() > 1 ? lines[1] : lines[0];
    TakePath(world.paths, lines[0]);
    TakeFullPath(world, second, lines[0]);
    TakePattern(lines[0], second);
    world.paths = UnixPaths;
    TakeSpelling(world, lines[0], second);
}

} // namespace ls::fuzz
