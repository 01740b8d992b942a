#include "files/PathParts.h"

#include <algorithm>

namespace ls {

std::string LowerCaseAscii(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
    return lower;
}

PathParts SplitPath(PathRules rules, std::string_view path)
{
    PathParts parts;
    if (const std::size_t colon = path.find(':'); rules.drives && colon != std::string_view::npos) {
        parts.drive = path.substr(0, colon + 1);
        path.remove_prefix(colon + 1);
    }
    if (const std::size_t last = path.rfind(rules.separator); last != std::string_view::npos) {
        parts.folder = path.substr(0, last + 1);
        path.remove_prefix(last + 1);
    }
    const std::size_t dot = std::min(path.rfind('.'), path.size());
    parts.name = path.substr(0, dot);
    parts.extension = path.substr(dot);
    if (parts.name.empty()) {
        parts.name = "*";
        if (parts.extension.empty()) {
            parts.extension = ".*";
        }
    }
    return parts;
}

bool HasWildcard(std::string_view pattern)
{
    return pattern.find_first_of("*?") != std::string_view::npos;
}

bool MatchesPattern(std::string_view fileName, std::string_view wildcards)
{
    if (wildcards == "*.*") {
        return true;
    }
    const std::string name = LowerCaseAscii(fileName);
    const std::string pattern = LowerCaseAscii(wildcards);
    std::size_t n = 0;
    std::size_t p = 0;
    std::size_t star = std::string::npos; // the last "*" passed; `afterStar` is where its match begins
    std::size_t afterStar = 0;
    // The loop ends, because each round moves on in the name or lets the last "*" match one more character.
    while (n < name.size()) {
        if (p < pattern.size() && pattern[p] == '*') {
            star = p++;
            afterStar = n;
        } else if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
            ++p;
            ++n;
        } else if (star != std::string::npos) {
            p = star + 1;
            n = ++afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*', p) == std::string::npos;
}

} // namespace ls
