#pragma once

#include "base/Seams.h"

namespace ls {

class BookCommands;
struct CommandLine;
struct Global;

/// What happens before the main window is first shown: the working folder, the command line, the settings,
/// and the book that the command line named. Stops at once when a fault ends the program.
void StartUp(Global& global, const Seams& seams, const CommandLine& commandLine, BookCommands& commands);

} // namespace ls
