#include "platform/linux/LinuxVolumes.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace ls {

namespace {

bool IsOctal(char c)
{
    return c >= '0' && c <= '7';
}

// The table writes a blank in a path as "\040", and likewise TAB, line end and backslash.
std::string Unescaped(std::string_view text)
{
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 3 < text.size() && std::all_of(&text[i] + 1, &text[i] + 4, IsOctal)) {
            plain +=
                static_cast<char>((text[i + 1] - '0') * 64 + (text[i + 2] - '0') * 8 + (text[i + 3] - '0'));
            i += 3;
        } else {
            plain += text[i];
        }
    }
    return plain;
}

// The second field of a line: where it is mounted.
std::string MountPoint(std::string_view line)
{
    const std::size_t first = line.find(' ');
    if (first == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = line.substr(first + 1);
    return Unescaped(rest.substr(0, rest.find(' ')));
}

bool IsForPeople(const std::string& mountPoint)
{
    for (const std::string_view place : {"/media/", "/run/media/", "/mnt/"}) {
        if (mountPoint.starts_with(place) && mountPoint.size() > place.size()) {
            return true;
        }
    }
    return mountPoint == "/mnt" || mountPoint == "/media";
}

} // namespace

std::vector<Volume> VolumesOf(std::string_view mounts, const std::string& home)
{
    std::vector<std::string> found;
    while (!mounts.empty()) {
        const std::size_t end = std::min(mounts.find('\n'), mounts.size());
        const std::string point = MountPoint(mounts.substr(0, end));
        if (IsForPeople(point)) {
            found.push_back(point);
        }
        mounts.remove_prefix(std::min(end + 1, mounts.size()));
    }
    std::sort(found.begin(), found.end());
    found.erase(std::unique(found.begin(), found.end()), found.end());
    std::vector<Volume> volumes{{"/", "/"}};
    if (!home.empty() && home != "/") {
        volumes.push_back({home, home});
    }
    for (const std::string& point : found) {
        volumes.push_back({point, point});
    }
    return volumes;
}

std::vector<Volume> LinuxVolumes::List()
{
    std::ifstream table("/proc/self/mounts", std::ios::binary);
    const std::string mounts((std::istreambuf_iterator<char>(table)), std::istreambuf_iterator<char>());
    const char* home = std::getenv("HOME"); // NOLINT(concurrency-mt-unsafe): the program has one thread
    return VolumesOf(mounts, home == nullptr ? "" : home);
}

} // namespace ls
