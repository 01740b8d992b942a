#include "cli/RunLsbook.h"

#include "base/CodePage.h"
#include "cli/CliEnvironment.h"
#include "cli/CommandContext.h"
#include "cli/CommandTable.h"
#include "cli/Help.h"

#include <algorithm>
#include <istream>
#include <new>
#include <ostream>

namespace ls {

namespace {

bool IsHelpOption(const std::string& argument)
{
    return argument == "--help" || argument == "-h";
}

Status UnknownCommand(const std::string& name, CliEnvironment& environment)
{
    const bool option = name.size() > 1 && name.front() == '-';
    ReportWrongUsage(environment.err, "",
                     (option ? "unknown option \"" : "unknown command \"") + FromPath(name) + "\"");
    return Status::Usage;
}

// `lsbook help`, `lsbook help COMMAND`.
Status RunHelp(const std::vector<std::string>& arguments, CliEnvironment& environment)
{
    if (arguments.size() == 1) {
        WriteHelp(environment.out);
        return Status::Done;
    }
    if (arguments.size() > 2) {
        ReportWrongUsage(environment.err, "", "help takes one command");
        return Status::Usage;
    }
    const CommandSpec* command = FindCommand(arguments[1]);
    if (command == nullptr) {
        return UnknownCommand(arguments[1], environment);
    }
    WriteCommandHelp(environment.out, *command);
    return Status::Done;
}

// Whether an option asks for help. After "--" the same word is the name of a file.
bool AsksForHelp(const std::vector<std::string>& arguments)
{
    const auto end = std::find(arguments.begin(), arguments.end(), "--");
    return std::any_of(arguments.begin(), end, IsHelpOption);
}

Status RunCommand(const CommandSpec& command, const std::vector<std::string>& rest,
                  CliEnvironment& environment)
{
    if (AsksForHelp(rest)) {
        WriteCommandHelp(environment.out, command);
        return Status::Done;
    }
    Arguments arguments;
    if (const std::string wrong = arguments.Read(command, rest); !wrong.empty()) {
        ReportWrongUsage(environment.err, command.name, wrong);
        return Status::Usage;
    }
    CommandContext context(command, arguments, environment);
    try {
        return context.Verdict(command.run(context));
    } catch (const std::bad_alloc&) { // for example for a line of several gigabytes
        return context.OutOfMemory();
    }
}

Status Dispatch(const std::vector<std::string>& arguments, CliEnvironment& environment)
{
    if (arguments.empty()) {
        ReportWrongUsage(environment.err, "", "a command is missing");
        return Status::Usage;
    }
    const std::string& name = arguments.front();
    if (IsHelpOption(name)) {
        WriteHelp(environment.out);
        return Status::Done;
    }
    if (name == "--version") {
        environment.out << "lsbook " << LS_VERSION << '\n';
        return Status::Done;
    }
    if (name == "help") {
        return RunHelp(arguments, environment);
    }
    const CommandSpec* command = FindCommand(name);
    if (command == nullptr) {
        return UnknownCommand(name, environment);
    }
    return RunCommand(*command, {arguments.begin() + 1, arguments.end()}, environment);
}

} // namespace

int RunLsbook(const std::vector<std::string>& arguments, CliEnvironment& environment)
{
    Status status = Dispatch(arguments, environment);
    if (environment.in.bad()) { // end of input is no error; it closes the dialogue
        environment.err << "lsbook: standard input cannot be read\n";
        status = Status::FileFault;
    }
    environment.out.flush();
    if (!environment.out) {
        environment.err << "lsbook: standard output cannot be written\n";
        status = Status::FileFault;
    }
    return static_cast<int>(status);
}

} // namespace ls
