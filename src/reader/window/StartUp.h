#pragma once

#include "base/Seams.h"

#include <functional>

namespace ls {

class BookCommands;
struct CommandLine;
struct Global;

/// Prepares the program before the main window is first shown: the working folder, the command line, the
/// settings, and the book named on the command line. Stops at once when a fault ends the program.
///
/// `recover` offers the edits that an earlier run left. If it returns true, they are in the book and are
/// shown, and the book of the command line is not opened.
void StartUp(
    Global& global, const Seams& seams, const CommandLine& commandLine, BookCommands& commands,
    const std::function<bool()>& recover = [] { return false; });

} // namespace ls
