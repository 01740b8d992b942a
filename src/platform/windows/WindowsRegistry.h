#pragma once

#include "base/Registry.h"

namespace ls {

/// The registry of Windows. Its texts are converted to UTF-8, as paths and messages need.
class WindowsRegistry : public Registry
{
public:
    /// Asks for rights to read and write, as this program always has. If those are refused, as for the
    /// machine's keys, it asks for the right to read, which is all that it uses.
    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override;
};

} // namespace ls
