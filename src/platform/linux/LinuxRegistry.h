#pragma once

#include "base/Registry.h"

namespace ls {

class Processes;

/// The registry's two look-ups, answered from the desktop's own files.
///
/// "SOFTWARE\Classes\.HTM" is the id of the application that opens web pages ("web.desktop"), and
/// "SOFTWARE\Classes\web.desktop\shell\open\command" is its command. The user's files and the system's are
/// one list there, so all of it stands under the current user; the machine has no keys. No application: no
/// key. The files are read at each look-up: a browser chosen meanwhile is found.
class LinuxRegistry : public Registry
{
public:
    explicit LinuxRegistry(Processes& processes) : m_processes(processes) {}

    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override;

private:
    Processes& m_processes;
};

} // namespace ls
