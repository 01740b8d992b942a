#include "reader/settings/IniFile.h"

#include "base/FindSpelling.h"
#include "base/Text.h"

namespace ls {

namespace {

constexpr double NewestVersion = 5.3;

} // namespace

std::string IniPath(FileSystem& files, PathRules rules, const std::string& iniDir)
{
    // The folder is looked up first, so that a new settings file goes into it too.
    const std::string folder = FindSpelling(files, rules, iniDir);
    return FindSpelling(files, rules, JoinPath(rules, folder, IniFileName));
}

bool IsIniSignature(std::string_view line)
{
    constexpr auto None = std::string_view::npos;
    const std::size_t version = line.find(" V");
    if (version == None || line.find("LSADVISOR") == None || line.find("INI") == None) {
        return false;
    }
    const double number = LeadingNumber(line.substr(version + 2));
    return number != 0 && number <= NewestVersion;
}

} // namespace ls
