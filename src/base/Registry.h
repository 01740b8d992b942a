#pragma once

#include <cstdint>
#include <memory>
#include <string>

namespace ls {

/// One open key of the registry. It is closed when it goes.
class RegistryKey
{
public:
    virtual ~RegistryKey() = default;

    /// The type and the size in bytes (its terminating NUL included) of a value; false when it has none.
    virtual bool QueryType(const std::string& valueName, std::uint32_t& type, std::uint32_t& size) = 0;

    /// Fills `buffer`, whose size is the value's, with its bytes; false on failure.
    virtual bool QueryText(const std::string& valueName, std::string& buffer) = 0;
};

/// The table in which the system keeps the program that opens a type of file, read only.
class Registry
{
public:
    enum class Root
    {
        CurrentUser,
        LocalMachine
    };

    virtual ~Registry() = default;

    /// The key at `path` (levels parted by "\"), or nothing when it cannot be opened.
    virtual std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) = 0;
};

/// Types of values that are text.
inline constexpr std::uint32_t RegSz = 1;
inline constexpr std::uint32_t RegExpandSz = 2;

} // namespace ls
