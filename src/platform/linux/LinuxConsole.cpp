#include "platform/Console.h"

#include <sys/ioctl.h>
#include <unistd.h>

namespace ls {

void PrepareConsole() {}

ConsoleStream ConsoleOf(StandardStream stream)
{
    const int descriptor = stream == StandardStream::Input    ? STDIN_FILENO
                           : stream == StandardStream::Output ? STDOUT_FILENO
                                                              : STDERR_FILENO;
    ConsoleStream console;
    console.isTerminal = isatty(descriptor) == 1;
    winsize size{};
    if (console.isTerminal && ioctl(descriptor, TIOCGWINSZ, &size) == 0) {
        console.columns = size.ws_col;
    }
    return console;
}

std::vector<std::string> ProgramArguments(int argc, char** argv)
{
    return argc > 1 ? std::vector<std::string>(argv + 1, argv + argc) : std::vector<std::string>();
}

} // namespace ls
