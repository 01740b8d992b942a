#pragma once

#include "support/RecordingProcesses.h"
#include "support/ScratchFolder.h"

#include <string>

namespace ls::test {

/// A desktop of real files: the user's folders "config" and "data", the system's "etc" and "share", and
/// programs in "bin".
struct ScratchDesktop
{
    ScratchFolder folder;
    RecordingProcesses processes;

    ScratchDesktop()
    {
        processes.environment = {{"XDG_CONFIG_HOME", folder / "config"},
                                 {"XDG_CONFIG_DIRS", folder / "etc"},
                                 {"XDG_DATA_HOME", folder / "data"},
                                 {"XDG_DATA_DIRS", folder / "share"},
                                 {"PATH", folder / "bin"}};
    }

    /// Installs an application: the program "bin/<name>" and its entry "<where>/applications/<name>.desktop".
    void Install(const std::string& name, const std::string& where = "share")
    {
        folder.WriteProgram("bin/" + name, "");
        WriteEntry(where + "/applications/" + name + ".desktop", "Exec=" + name + " %u\n");
    }

    void WriteEntry(const std::string& file, const std::string& lines)
    {
        folder.Write(file, "[Desktop Entry]\nType=Application\n" + lines);
    }

    /// Writes a list with one group and one line for web pages.
    void WriteList(const std::string& file, const std::string& group, const std::string& ids)
    {
        folder.Write(file, "[" + group + "]\ntext/html=" + ids + "\n");
    }
};

} // namespace ls::test
