#pragma once

#include "base/Seams.h"
#include "reader/settings/CommandLine.h"

namespace ls {

/// Parses the command line of this process: the arguments of `main` on a system that passes separate
/// arguments, the unchanged line on a system that passes one string.
[[nodiscard]] CommandLine ReadCommandLine(int argc, char** argv, const Seams& seams);

} // namespace ls
