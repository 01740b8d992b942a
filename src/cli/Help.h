#pragma once

#include "cli/CommandSpec.h"

#include <iosfwd>
#include <string_view>

namespace ls {

/// What `lsbook --help` says.
void WriteHelp(std::ostream& out);

/// What `lsbook help COMMAND` says.
void WriteCommandHelp(std::ostream& out, const CommandSpec& command);

/// Reports what is wrong with a command line, and how to get help. `command` may be empty.
void ReportWrongUsage(std::ostream& err, std::string_view command, std::string_view text);

} // namespace ls
