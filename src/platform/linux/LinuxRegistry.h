#pragma once

#include "base/Registry.h"

namespace ls {

class Processes;

/// Answers the program's two look-ups in the registry from the desktop's files.
///
/// "SOFTWARE\Classes\.HTM" is the id of the application that opens web pages ("web.desktop").
/// "SOFTWARE\Classes\web.desktop\shell\open\command" is its command. Linux merges the user's and the system's
/// settings, so both keys are under the current user and the machine has none. Without an application there
/// is no key. The files are read at each look-up, so that a newly chosen browser is found.
class LinuxRegistry : public Registry
{
public:
    explicit LinuxRegistry(Processes& processes) : m_processes(processes) {}

    std::unique_ptr<RegistryKey> Open(Root root, const std::string& path) override;

private:
    Processes& m_processes;
};

} // namespace ls
