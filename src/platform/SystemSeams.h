#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"
#include "base/PrintService.h"
#include "base/Processes.h"
#include "base/Registry.h"
#include "base/Volumes.h"

#include <memory>

namespace ls {

/// The files of the running system.
[[nodiscard]] std::unique_ptr<FileSystem> MakeFileSystem();

/// The processes of the running system.
[[nodiscard]] std::unique_ptr<Processes> MakeProcesses();

/// What opens which type of file on the running system. `processes` outlives it.
[[nodiscard]] std::unique_ptr<Registry> MakeRegistry(Processes& processes);

/// The volumes of the running system.
[[nodiscard]] std::unique_ptr<Volumes> MakeVolumes();

/// The printing service of the running system.
[[nodiscard]] std::unique_ptr<PrintService> MakePrintService();

/// The user's folder for what this program keeps between its runs without being asked: recovery journals. It
/// need not exist yet; empty where the user has no home.
[[nodiscard]] std::string StateFolder(Processes& processes);

/// How paths are written on the running system.
[[nodiscard]] PathRules NativePaths();

} // namespace ls
