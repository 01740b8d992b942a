#pragma once

#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

namespace ls::test {

/// Writes a desktop with two browsers into a folder: "web.desktop", which the user chose, and
/// "other.desktop", which the system offers.
inline void WriteTwoBrowsers(const ScratchFolder& folder)
{
    folder.WriteProgram("bin/web", "");
    folder.WriteProgram("bin/other", "");
    folder.Write("config/mimeapps.list", "[Default Applications]\ntext/html=web.desktop\n");
    folder.Write("share/applications/web.desktop", "[Desktop Entry]\nType=Application\nExec=web %u\n");
    folder.Write("share/applications/other.desktop", "[Desktop Entry]\nType=Application\nExec=other %u\n");
    folder.Write("share/applications/mimeinfo.cache", "[MIME Cache]\ntext/html=other.desktop\n");
}

/// Processes whose environment holds that desktop, and nothing of the user's.
inline RecordingProcesses ProcessesOn(const ScratchFolder& folder)
{
    RecordingProcesses processes;
    processes.environment = {{"XDG_CONFIG_HOME", folder / "config"},
                             {"XDG_CONFIG_DIRS", folder / "etc"},
                             {"XDG_DATA_HOME", folder / "data"},
                             {"XDG_DATA_DIRS", folder / "share"},
                             {"PATH", folder / "bin"}};
    return processes;
}

} // namespace ls::test
