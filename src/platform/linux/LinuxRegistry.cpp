#include "platform/linux/LinuxRegistry.h"

#include "base/Text.h"
#include "platform/linux/MimeApps.h"

#include <string_view>
#include <utility>

namespace ls {

namespace {

constexpr std::string_view Classes = "SOFTWARE\\Classes\\";
constexpr std::string_view Command = "\\shell\\open\\command";

// A key whose only value is its default text.
class TextKey : public RegistryKey
{
public:
    explicit TextKey(std::string text) : m_text(std::move(text)) {}

    bool QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size) override
    {
        type = RegSz;
        size = static_cast<std::uint32_t>(m_text.size() + 1);
        return valueName.empty();
    }

    bool QueryText(const std::string& valueName, std::string& buffer) override
    {
        if (!valueName.empty() || buffer.size() <= m_text.size()) {
            return false;
        }
        buffer = m_text + '\0';
        return true;
    }

private:
    std::string m_text;
};

// The MIME type of files with this ending; empty for unknown endings.
std::string MimeTypeOf(std::string_view fileType)
{
    static constexpr std::pair<std::string_view, std::string_view> Types[] = {
        {".HTM", "text/html"},  {".HTML", "text/html"},      {".XHTML", "application/xhtml+xml"},
        {".TXT", "text/plain"}, {".PDF", "application/pdf"},
    };
    for (const auto& [type, mimeType] : Types) {
        if (EqualsUpper(fileType, type)) {
            return std::string(mimeType);
        }
    }
    return {};
}

} // namespace

std::unique_ptr<RegistryKey> LinuxRegistry::Open(Root root, const std::string& path)
{
    if (root != Root::CurrentUser || !path.starts_with(Classes)) {
        return nullptr;
    }
    std::string_view name = std::string_view(path).substr(Classes.size());
    const XdgFolders folders = ReadXdgFolders(m_processes);
    if (name.ends_with(Command)) {
        name.remove_suffix(Command.size());
        const std::optional<DesktopEntry> entry = FindDesktopEntry(folders, std::string(name));
        return entry ? std::make_unique<TextKey>(OpenCommand(*entry)) : nullptr;
    }
    const std::string mimeType = MimeTypeOf(name);
    const std::string id = mimeType.empty() ? std::string() : DefaultApplication(folders, mimeType);
    return id.empty() ? nullptr : std::make_unique<TextKey>(id);
}

} // namespace ls
