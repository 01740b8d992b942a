#pragma once

#include "base/Registry.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ls::test {

/// A registry in memory with one value for each key. It records which keys are opened and closed.
class RecordingRegistry : public Registry
{
public:
    /// A key's default value. `text` has no terminating NUL.
    struct Value
    {
        std::string text;
        std::uint32_t type = RegSz;
        bool readable = true; ///< false: the type can be read, the text cannot
    };

    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override
    {
        const std::string name = (root == Root::CurrentUser ? "HKCU\\" : "HKLM\\") + path;
        opened.push_back(name);
        const auto found = keys.find(name);
        if (found == keys.end()) {
            return nullptr;
        }
        ++openKeys;
        return std::make_unique<Key>(*this, found->second);
    }

    /// Registers a program for a file type under the user's keys.
    void RegisterForUser(const std::string& fileType, const std::string& fileClass,
                         const std::string& command)
    {
        keys["HKCU\\SOFTWARE\\Classes\\" + fileType] = Value{fileClass};
        keys["HKCU\\SOFTWARE\\Classes\\" + fileClass + "\\shell\\open\\command"] = Value{command};
    }

    std::map<std::string, std::optional<Value>> keys; ///< a key without a value is an empty optional
    std::vector<std::string> opened;                  ///< "HKCU\path" or "HKLM\path", also of failed attempts
    int openKeys = 0;                                 ///< opened and not yet closed

private:
    class Key : public RegistryKey
    {
    public:
        Key(RecordingRegistry& owner, std::optional<Value> value) : m_owner(owner), m_value(std::move(value))
        {
        }
        ~Key() override { --m_owner.openKeys; }
        Key(const Key&) = delete;
        Key& operator=(const Key&) = delete;

        bool QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size) override
        {
            if (!m_value || !valueName.empty()) {
                return false;
            }
            type = m_value->type;
            size = static_cast<std::uint32_t>(m_value->text.size() + 1);
            return true;
        }

        bool QueryText(const std::string& valueName, std::string& buffer) override
        {
            if (!m_value || !m_value->readable || !valueName.empty()) {
                return false;
            }
            buffer = m_value->text + '\0';
            return true;
        }

    private:
        RecordingRegistry& m_owner;
        std::optional<Value> m_value;
    };
};

} // namespace ls::test
