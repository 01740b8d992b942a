#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ls {

/// One open key of the registry; the destructor closes it.
class RegistryKey
{
public:
    virtual ~RegistryKey() = default;

    /// Gets a value's type, and its size in bytes including the NUL at its end. False when there is no such
    /// value.
    virtual bool QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size) = 0;

    /// Fills `buffer`, which has the value's size, with its bytes; false on failure.
    virtual bool QueryText(const std::string& valueName, std::string& buffer) = 0;
};

/// The system's table of the programs that open each type of file, read only.
class Registry
{
public:
    enum class Root
    {
        CurrentUser,
        LocalMachine
    };

    virtual ~Registry() = default;

    /// The key at `path` (levels separated by "\"), or nothing when it cannot be opened.
    virtual std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) = 0;
};

/// Types of values that are text.
inline constexpr std::uint32_t RegSz = 1;
inline constexpr std::uint32_t RegExpandSz = 2;

} // namespace ls
