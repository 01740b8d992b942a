#include "cli/Help.h"

#include "cli/CommandTable.h"

#include <algorithm>
#include <ostream>
#include <string>

namespace ls {

namespace {

std::string Invocation(const OptionSpec& option)
{
    std::string text(option.name);
    if (!option.values.empty()) {
        text.append(" ").append(option.values);
    }
    return text;
}

std::string Padded(std::string text, std::size_t width)
{
    text.resize(std::max(width, text.size()), ' ');
    return text;
}

constexpr std::string_view ExitStatuses =
    "Exit status: 0 done; 1 a fault that was reported; 2 wrong usage; 3 a file cannot be read or\n"
    "written; 4 a fault of the rules ended the dialogue.\n";

} // namespace

void WriteHelp(std::ostream& out)
{
    out << "Usage: lsbook COMMAND [OPTION...] BOOK [TITLE]\n"
           "Reads hypertext books (.IDA) on the command line.\n\nCommands:\n";
    std::size_t width = 0;
    for (const CommandSpec& command : CommandTable()) {
        width = std::max(width, command.name.size());
    }
    for (const CommandSpec& command : CommandTable()) {
        out << "  " << Padded(std::string(command.name), width) << "  " << command.summary << '\n';
    }
    out << "\nlsbook help COMMAND tells more of a command, lsbook --version the program's version.\n"
           "A message that the desktop program would show goes to standard error as \"icon: text\".\n"
        << ExitStatuses;
}

void WriteCommandHelp(std::ostream& out, const CommandSpec& command)
{
    out << "Usage: lsbook " << command.name << " [OPTION...] " << command.operands << '\n';
    std::string summary(command.summary);
    out << summary << ".\n";
    if (!command.details.empty()) {
        out << '\n' << command.details << '\n';
    }
    std::size_t width = 0;
    for (const OptionSpec& option : command.options) {
        width = std::max(width, Invocation(option).size());
    }
    out << "\nOptions:\n";
    for (const OptionSpec& option : command.options) {
        out << "  " << Padded(Invocation(option), width) << "  " << option.help << '\n';
    }
    out << '\n' << ExitStatuses;
}

void ReportWrongUsage(std::ostream& err, std::string_view command, std::string_view text)
{
    const std::string blank = command.empty() ? "" : " ";
    err << "lsbook" << blank << command << ": " << text << "\nTry \""
        << (command.empty() ? "lsbook --help" : "lsbook help " + std::string(command)) << "\".\n";
}

} // namespace ls
