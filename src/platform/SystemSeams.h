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

/// The programs that open each type of file on the running system. `processes` must outlive it.
[[nodiscard]] std::unique_ptr<Registry> MakeRegistry(Processes& processes);

/// The volumes of the running system.
[[nodiscard]] std::unique_ptr<Volumes> MakeVolumes();

/// The printing service of the running system.
[[nodiscard]] std::unique_ptr<PrintService> MakePrintService();

/// The user's folder for the recovery journals, which the program stores between runs. It may not exist yet;
/// empty when the user has no home.
[[nodiscard]] std::string StateFolder(Processes& processes);

/// How the running system writes paths.
[[nodiscard]] PathRules NativePaths();

} // namespace ls
