#pragma once

#include "base/PathRules.h"

#include <iosfwd>

namespace ls {

class FileSystem;
class Processes;

/// Everything that `lsbook` uses of the outside world. Tests pass their own streams and files.
struct CliEnvironment
{
    std::istream& in;
    std::ostream& out;
    std::ostream& err;
    FileSystem& files;
    Processes& processes;
    PathRules paths = UnixPaths;
    bool inIsTerminal = false;
    bool outIsTerminal = false;
    bool errIsTerminal = false;
    int columns = 0; ///< width of the output's terminal in characters; 0 when unknown or no terminal
};

} // namespace ls
