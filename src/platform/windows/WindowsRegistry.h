#pragma once

#include "base/Registry.h"

namespace ls {

/// The registry of Windows. Its texts are converted to UTF-8, as paths and messages need.
class WindowsRegistry : public Registry
{
public:
    /// Intended: asks for the rights to read and write, although the program only reads. If they are refused,
    /// as for the machine's keys, it asks for the right to read alone.
    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override;
};

} // namespace ls
