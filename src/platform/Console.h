#pragma once

#include <string>
#include <vector>

namespace ls {

/// What a standard stream of the program is connected to.
struct ConsoleStream
{
    bool isTerminal = false;
    int columns = 0; ///< its width in characters; 0 when unknown or no terminal
};

enum class StandardStream
{
    Input,
    Output,
    Error
};

/// Makes the standard streams pass bytes unchanged: UTF-8, line ends as written.
void PrepareConsole();

[[nodiscard]] ConsoleStream ConsoleOf(StandardStream stream);

/// The program's arguments without its name; in UTF-8 where the system passes them so.
[[nodiscard]] std::vector<std::string> ProgramArguments(int argc, char** argv);

} // namespace ls
