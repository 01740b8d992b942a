// Runs many command lines of lsbook in one process, which valgrind watches: its own start takes longer than
// most of them.
//
// A line of the standard input is the expected exit status and the arguments, with the character 0x1F between
// them. Each command line is written to the standard error before it runs, so that a finding of valgrind
// comes after the one it belongs to. The exit status is 1 when a command line ended with another status.

#include "base/PathRules.h"
#include "cli/CliEnvironment.h"
#include "cli/RunLsbook.h"
#include "platform/SystemSeams.h"

#include <iostream>
#include <sstream>
#include <string>
#include <vector>

namespace {

std::vector<std::string> Fields(const std::string& line)
{
    std::vector<std::string> fields;
    std::istringstream in(line);
    for (std::string field; std::getline(in, field, '\x1f');) {
        fields.push_back(field);
    }
    return fields;
}

int Run(const std::vector<std::string>& arguments, ls::FileSystem& files, ls::Processes& processes)
{
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    ls::CliEnvironment environment{in, out, err, files, processes, ls::NativePaths()};
    const int status = ls::RunLsbook(arguments, environment);
    std::cerr << err.str();
    return status;
}

} // namespace

int main()
{
    const std::unique_ptr<ls::FileSystem> files = ls::MakeFileSystem();
    const std::unique_ptr<ls::Processes> processes = ls::MakeProcesses();
    bool good = true;
    for (std::string line; std::getline(std::cin, line);) {
        std::vector<std::string> arguments = Fields(line);
        const int expected = std::stoi(arguments.front());
        arguments.erase(arguments.begin());
        for (const std::string& argument : arguments) {
            std::cerr << argument << ' ';
        }
        std::cerr << std::endl;
        const int status = Run(arguments, *files, *processes);
        if (status != expected) {
            std::cerr << "FAULT: ended with " << status << " instead of " << expected << std::endl;
            good = false;
        }
    }
    return good ? 0 : 1;
}
