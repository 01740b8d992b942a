#include "platform/windows/WindowsRegistry.h"

#include "platform/windows/WideText.h"

#include <optional>

#include <windows.h>

namespace ls {

namespace {

constexpr REGSAM AllRights = KEY_QUERY_VALUE | KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_ENUMERATE_SUB_KEYS |
                             KEY_NOTIFY | KEY_CREATE_LINK;
static_assert(AllRights == 0x3F);

class WindowsRegistryKey : public RegistryKey
{
public:
    explicit WindowsRegistryKey(HKEY key) : m_key(key) {}
    ~WindowsRegistryKey() override { ::RegCloseKey(m_key); }
    WindowsRegistryKey(const WindowsRegistryKey&) = delete;
    WindowsRegistryKey& operator=(const WindowsRegistryKey&) = delete;

    bool QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size) override;
    bool QueryText(const std::string& valueName, std::string& buffer) override;

private:
    std::optional<std::string> Text(const std::string& valueName);

    HKEY m_key;
};

// A text value up to its NUL, which may be missing or repeated. `query(bytes, size)` reads it, or only its
// size when `bytes` is null.
template <class Char, class Query>
std::optional<std::basic_string<Char>> ReadValue(Query query)
{
    std::basic_string<Char> text;
    LONG result = ERROR_MORE_DATA;
    // Another program may write a longer value between the query for the size and the one for the text.
    for (int tries = 0; result == ERROR_MORE_DATA && tries < 5; ++tries) {
        DWORD size = 0;
        result = query(nullptr, &size);
        if (result != ERROR_SUCCESS) {
            return std::nullopt;
        }
        text.assign((size + sizeof(Char) - 1) / sizeof(Char), Char{' '});
        result = query(reinterpret_cast<BYTE*>(text.data()), &size);
        if (result == ERROR_SUCCESS) {
            text.resize(size / sizeof(Char));
        }
    }
    return result == ERROR_SUCCESS ? std::optional(text.substr(0, text.find(Char{}))) : std::nullopt;
}

std::optional<std::string> WindowsRegistryKey::Text(const std::string& valueName)
{
    const std::optional<std::string> narrow = ReadValue<char>([&](BYTE* bytes, DWORD* size) {
        return ::RegQueryValueExA(m_key, valueName.c_str(), nullptr, nullptr, bytes, size);
    });
    const std::optional<std::wstring> name = ToWide(valueName);
    if (!narrow || !name) {
        return std::nullopt;
    }
    // A wide query, because a program's folder may have a name that the code page cannot write:
    // "C:\Users\(Greek letters)\web.exe".
    const std::optional<std::wstring> wide = ReadValue<wchar_t>([&](BYTE* bytes, DWORD* size) {
        return ::RegQueryValueExW(m_key, name->c_str(), nullptr, nullptr, bytes, size);
    });
    return wide ? FromWide(*wide) : FromAnsi(*narrow);
}

bool WindowsRegistryKey::QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size)
{
    DWORD kind = 0;
    DWORD bytes = 0;
    if (::RegQueryValueExA(m_key, valueName.c_str(), nullptr, &kind, nullptr, &bytes) != ERROR_SUCCESS) {
        return false;
    }
    type = kind;
    size = bytes;
    if (kind == RegSz || kind == RegExpandSz) {
        // The size of the result, UTF-8 with one NUL.
        const std::optional<std::string> text = Text(valueName);
        size = text ? static_cast<std::uint32_t>(text->size() + 1) : size;
    }
    return true;
}

bool WindowsRegistryKey::QueryText(const std::string& valueName, std::string& buffer)
{
    const std::optional<std::string> text = Text(valueName);
    if (!text || buffer.size() != text->size() + 1) {
        return false;
    }
    buffer = *text + '\0';
    return true;
}

} // namespace

std::unique_ptr<RegistryKey> WindowsRegistry::Open(Root root, const std::string& path)
{
    const std::optional<std::string> name = ToAnsi(path);
    if (!name) {
        return nullptr;
    }
    const HKEY top = root == Root::CurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
    HKEY key = nullptr;
    LONG result = ::RegOpenKeyExA(top, name->c_str(), 0, AllRights, &key);
    if (result == ERROR_ACCESS_DENIED) {
        result = ::RegOpenKeyExA(top, name->c_str(), 0, KEY_QUERY_VALUE, &key);
    }
    return result == ERROR_SUCCESS ? std::make_unique<WindowsRegistryKey>(key) : nullptr;
}

} // namespace ls
