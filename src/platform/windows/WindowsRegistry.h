#pragma once

#include "base/Registry.h"

namespace ls {

/// The registry of Windows. Its texts are handed on as UTF-8, which paths and messages are made of.
class WindowsRegistry : public Registry
{
public:
    /// Asks for rights to read and write, as this program always has; where those are refused, as the
    /// machine's keys refuse them to an ordinary user, for the right to read, which is all that it uses.
    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override;
};

} // namespace ls
