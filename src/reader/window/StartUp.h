#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

class BookCommands;
struct CommandLine;
struct Global;

/// What happens before the main window is first shown: the working folder, the command line, the settings,
/// and the book that the command line named. Stops at once when a fault ends the program.
///
/// `recover` offers edits that an earlier run left; true when it put some into the book: then they are shown,
/// and the command line's book is not opened.
void StartUp(
    Global& global, const Seams& seams, const CommandLine& commandLine, BookCommands& commands,
    const std::function<bool()>& recover = [] { return false; });

} // namespace ls
