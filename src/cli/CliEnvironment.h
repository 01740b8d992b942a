#pragma once

#include "base/PathRules.h"

#include <iosfwd>

namespace ls {

class FileSystem;
class Processes;

/// All that `lsbook` has of the world outside. Tests pass streams and files of their own.
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
    int columns = 0; ///< width of the output's terminal in characters; 0 when it is none, or unknown
};

} // namespace ls
