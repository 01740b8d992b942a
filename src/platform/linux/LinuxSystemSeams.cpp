#include "platform/SystemSeams.h"

#include "platform/linux/CupsService.h"
#include "platform/linux/LinuxFileSystem.h"
#include "platform/linux/LinuxProcesses.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/LinuxVolumes.h"

namespace ls {

std::unique_ptr<FileSystem> MakeFileSystem()
{
    return std::make_unique<LinuxFileSystem>();
}

std::unique_ptr<Processes> MakeProcesses()
{
    return std::make_unique<LinuxProcesses>();
}

std::unique_ptr<Registry> MakeRegistry(Processes& processes)
{
    return std::make_unique<LinuxRegistry>(processes);
}

std::unique_ptr<Volumes> MakeVolumes()
{
    return std::make_unique<LinuxVolumes>();
}

std::unique_ptr<PrintService> MakePrintService()
{
    return std::make_unique<CupsService>();
}

std::string StateFolder(Processes& processes)
{
    std::string state = processes.Environment("XDG_STATE_HOME");
    if (!IsAbsolute(UnixPaths, state)) {
        const std::string home = processes.Environment("HOME");
        if (!IsAbsolute(UnixPaths, home)) {
            return {};
        }
        state = JoinPath(UnixPaths, home, ".local/state");
    }
    return JoinPath(UnixPaths, state, "lodestar-advisor");
}

PathRules NativePaths()
{
    return UnixPaths;
}

} // namespace ls
