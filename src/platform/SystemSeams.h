#pragma once

#include "base/FileSystem.h"
#include "base/PathRules.h"
#include "base/Processes.h"
#include "base/Volumes.h"

#include <memory>

namespace ls {

/// The files of the running system.
[[nodiscard]] std::unique_ptr<FileSystem> MakeFileSystem();

/// The processes of the running system.
[[nodiscard]] std::unique_ptr<Processes> MakeProcesses();

/// The volumes of the running system.
[[nodiscard]] std::unique_ptr<Volumes> MakeVolumes();

/// How paths are written on the running system.
[[nodiscard]] PathRules NativePaths();

} // namespace ls
