#pragma once

#include <string>
#include <vector>

namespace ls {

struct CliEnvironment;

/// Runs one command line, without the program's name, and returns the exit status (see `Status`). Arguments
/// are UTF-8, except paths, which are the system's own bytes.
int RunLsbook(const std::vector<std::string>& arguments, CliEnvironment& environment);

} // namespace ls
