#include "platform/linux/LinuxVolumes.h"

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/LinuxBookFile.h"

#include <algorithm>
#include <cstdlib>

#include <fcntl.h>

namespace ls {

namespace {

constexpr std::size_t Block = 16 * 1024; // bytes

bool IsOctal(char c)
{
    return c >= '0' && c <= '7';
}

// Resolves the table's escapes: it writes a blank in a path as "\040", and likewise TAB, line end and
// backslash.
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

// The second field of a line: the mount point.
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

// The lines of a table; after an error, the complete lines before it. Such a file has no size, so it is read
// to its end.
std::string ReadLines(const std::string& path)
{
    std::string text;
    FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.IsOpen()) {
        return text;
    }
    LinuxBookFile file(std::move(descriptor));
    for (;;) {
        const std::size_t before = text.size();
        std::size_t got = 0;
        text.resize(before + Block);
        const FileError error =
            file.ReadAt(static_cast<FilePos>(before) + 1, text.data() + before, Block, got);
        text.resize(before + got);
        if (!error.Ok()) {
            text.resize(text.rfind('\n') + 1);
            return text;
        }
        if (got < Block) {
            return text;
        }
    }
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
    const char* home = std::getenv("HOME"); // the program has one thread
    return VolumesOf(ReadLines(m_table), home == nullptr ? "" : home);
}

} // namespace ls
