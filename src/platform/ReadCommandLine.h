#pragma once

#include "base/Seams.h"
#include "reader/settings/CommandLine.h"

namespace ls {

/// What the command line of this process asks for: where the system hands over separate arguments, those of
/// `main`; where it hands over one string, that string, as it was written.
[[nodiscard]] CommandLine ReadCommandLine(int argc, char** argv, const Seams& seams);

} // namespace ls
