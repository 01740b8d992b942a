#include "platform/SystemSeams.h"

#include "platform/windows/WindowsFileSystem.h"
#include "platform/windows/WindowsProcesses.h"
#include "platform/windows/WindowsRegistry.h"
#include "platform/windows/WindowsVolumes.h"

namespace ls {

std::unique_ptr<FileSystem> MakeFileSystem()
{
    return std::make_unique<WindowsFileSystem>();
}

std::unique_ptr<Processes> MakeProcesses()
{
    return std::make_unique<WindowsProcesses>();
}

std::unique_ptr<Registry> MakeRegistry(Processes& /*processes*/)
{
    return std::make_unique<WindowsRegistry>();
}

std::unique_ptr<Volumes> MakeVolumes()
{
    return std::make_unique<WindowsVolumes>();
}

// The toolkit gets everything here from the system itself.
std::unique_ptr<PrintService> MakePrintService()
{
    return std::make_unique<PrintService>();
}

std::string StateFolder(Processes& processes)
{
    const std::string local = processes.Environment("LOCALAPPDATA");
    return IsAbsolute(WindowsPaths, local) ? JoinPath(WindowsPaths, local, "Lodestar Advisor")
                                           : std::string();
}

PathRules NativePaths()
{
    return WindowsPaths;
}

} // namespace ls
