#include "platform/linux/KeyFile.h"

#include "platform/linux/FileDescriptor.h"
#include "platform/linux/LinuxBookFile.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace ls {

namespace {

constexpr FilePos MaxSize = 4 * 1024 * 1024;

std::string_view TrimSpace(std::string_view text)
{
    constexpr std::string_view Space = " \t\r";
    const std::size_t first = text.find_first_not_of(Space);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(Space) - first + 1);
}

} // namespace

std::optional<std::string> ReadSmallFile(const std::string& path)
{
    FileDescriptor descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    struct stat status = {};
    if (!descriptor.IsOpen() || ::fstat(descriptor.Get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return std::nullopt;
    }
    if (status.st_size > MaxSize) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t got = 0;
    if (!LinuxBookFile(std::move(descriptor)).ReadAt(1, text.data(), text.size(), got).Ok()) {
        return std::nullopt;
    }
    text.resize(got);
    return text;
}

std::optional<std::string> KeyFileValue(std::string_view text, std::string_view group, std::string_view key)
{
    std::optional<std::string> value;
    bool inGroup = false;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = TrimSpace(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.empty()) {
            continue;
        }
        if (line.front() == '[') {
            inGroup = line.back() == ']' && line.substr(1, line.size() - 2) == group;
            continue;
        }
        const std::size_t equals = line.find('=');
        if (inGroup && equals != std::string_view::npos && TrimSpace(line.substr(0, equals)) == key) {
            value = TrimSpace(line.substr(equals + 1));
        }
    }
    return value;
}

std::vector<std::string> SplitList(std::string_view list, char separator)
{
    std::vector<std::string> parts;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(separator), list.size());
        if (const std::string_view part = TrimSpace(list.substr(0, end)); !part.empty()) {
            parts.emplace_back(part);
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return parts;
}

} // namespace ls
