#pragma once

#include <string>
#include <vector>

namespace ls {

struct CliEnvironment;

/// Runs one command line, the program's name left out; the result is the exit status (see `Status`).
/// Arguments are UTF-8, but for paths, which are the system's own bytes.
int RunLsbook(const std::vector<std::string>& arguments, CliEnvironment& environment);

} // namespace ls
