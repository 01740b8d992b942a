#include "base/PathRules.h"

namespace ls {

namespace {

// Where the name begins: after the last separator, or after "C:".
std::size_t NameStart(PathRules rules, std::string_view path)
{
    const std::size_t last = path.rfind(rules.separator);
    if (last != std::string_view::npos) {
        return last + 1;
    }
    return rules.drives && path.size() >= 2 && path[1] == ':' ? 2 : 0;
}

} // namespace

std::string JoinPath(PathRules rules, std::string_view folder, std::string_view name)
{
    std::string path(folder);
    if (!path.empty() && path.back() != rules.separator) {
        path += rules.separator;
    }
    path += name;
    return path;
}

std::string FolderOf(PathRules rules, std::string_view path)
{
    const std::size_t start = NameStart(rules, path);
    if (start == 0) {
        return {};
    }
    const std::string_view folder = path.substr(0, start);
    const bool root = folder.size() == 1 || (rules.drives && folder.size() <= 3 && folder[1] == ':');
    return std::string(root || folder.back() != rules.separator ? folder : folder.substr(0, start - 1));
}

std::string NameOf(PathRules rules, std::string_view path)
{
    return std::string(path.substr(NameStart(rules, path)));
}

bool IsAbsolute(PathRules rules, std::string_view path)
{
    if (!path.empty() && path.front() == rules.separator) {
        return true;
    }
    return rules.drives && path.size() >= 3 && path[1] == ':' && path[2] == rules.separator;
}

} // namespace ls
