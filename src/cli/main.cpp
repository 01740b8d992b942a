// lsbook: the command line for authors of books.

#include "base/PathRules.h"
#include "cli/CliEnvironment.h"
#include "cli/RunLsbook.h"
#include "platform/Console.h"
#include "platform/SystemSeams.h"

#include <iostream>

int main(int argc, char** argv)
{
    std::ios::sync_with_stdio(false);
    ls::PrepareConsole();
    const std::unique_ptr<ls::FileSystem> files = ls::MakeFileSystem();
    const std::unique_ptr<ls::Processes> processes = ls::MakeProcesses();
    const ls::ConsoleStream out = ls::ConsoleOf(ls::StandardStream::Output);
    ls::CliEnvironment environment{
        std::cin,
        std::cout,
        std::cerr,
        *files,
        *processes,
        ls::NativePaths(),
        ls::ConsoleOf(ls::StandardStream::Input).isTerminal,
        out.isTerminal,
        ls::ConsoleOf(ls::StandardStream::Error).isTerminal,
        out.columns,
    };
    return ls::RunLsbook(ls::ProgramArguments(argc, argv), environment);
}
