#include "reader/settings/CommandLine.h"

#include "base/CodePage.h"
#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/ParameterList.h"

#include <utility>

namespace ls {

namespace {

constexpr auto None = std::string_view::npos;

// A title as book text. If the code page lacks a character, the title stays as typed: no topic matches it,
// and the search reports that.
std::string TopicFromArgument(const std::string& value)
{
    return ToBook(value).value_or(value);
}

// Stores a parameter; false when no parameter has this name.
bool StoreParameter(CommandLine& commandLine, const std::string& name, const std::string& value)
{
    if (name == "INIDIR") {
        commandLine.iniDir = value;
    } else if (name == "TOPIC") {
        commandLine.startTopic = TopicFromArgument(value);
    } else {
        return false;
    }
    return true;
}

// The text between the first quote and the second; the whole path if it has no quote.
std::string BetweenQuotes(std::string_view path)
{
    const std::size_t open = path.find('"');
    if (open == None) {
        return std::string(path);
    }
    const std::size_t close = path.find('"', open + 1);
    return std::string(path.substr(open + 1, close == None ? None : close - open - 1));
}

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// Whether "/NAME=" begins at `at`.
bool ParameterBeginsAt(std::string_view text, std::size_t at)
{
    if (at >= text.size() || text[at] != '/') {
        return false;
    }
    std::size_t end = at + 1;
    while (end < text.size() && IsLetter(text[end])) {
        ++end;
    }
    return end > at + 1 && end < text.size() && text[end] == '=';
}

// Where the next parameter begins in one string that holds them all: at its start or after a blank, outside
// quotes.
std::size_t NextParameter(std::string_view text, std::size_t from)
{
    for (std::size_t at = from; at < text.size(); ++at) {
        if (const std::size_t close = text[at] == '"' ? text.find('"', at + 1) : None; close != None) {
            at = close;
        } else if ((at == 0 || text[at - 1] == ' ') && ParameterBeginsAt(text, at)) {
            return at;
        }
    }
    return None;
}

// Splits a command line given as one string into the path and the parameters.
std::vector<std::string> CutOneString(std::string_view line)
{
    std::vector<std::string> pieces;
    std::size_t from = 0;
    std::size_t next = NextParameter(line, 0);
    if (next > 0) {
        pieces.emplace_back(TrimRight(line.substr(0, next)));
    }
    while (next != None) {
        from = next;
        next = NextParameter(line, from + 1);
        pieces.emplace_back(TrimRight(line.substr(from, next == None ? None : next - from)));
    }
    return pieces;
}

// Removes quotes that a desktop entry or another program put around the whole value.
std::string WithoutOuterQuotes(std::string value)
{
    const bool quoted = value.size() > 1 && value.front() == '"' && value.find('"', 1) == value.size() - 1;
    return quoted ? Unquote(std::move(value)) : value;
}

void TakeParameter(CommandLine& commandLine, const std::string& argument)
{
    const std::size_t equals = argument.find('=');
    const std::string name = UpperCase(std::string_view(argument).substr(1, equals - 1));
    if (!StoreParameter(commandLine, name, WithoutOuterQuotes(argument.substr(equals + 1)))) {
        commandLine.valid = false;
    }
}

void AppendArgument(std::string& text, const std::string& argument, bool first)
{
    if (!first) {
        text += ' ';
    }
    text += argument;
}

bool IsParameter(const std::string& argument, const Seams& seams)
{
    return ParameterBeginsAt(argument, 0) && !seams.files.Exists(argument);
}

// Joins the arguments. Those before the first parameter are the path; later ones that are no parameters
// continue the value before them. Element 0 of the result is the path.
std::vector<std::string> JoinArguments(const std::vector<std::string>& arguments, const Seams& seams)
{
    std::vector<std::string> joined(1);
    bool first = true;
    for (const std::string& argument : arguments) {
        if (IsParameter(argument, seams)) {
            joined.push_back(argument);
        } else {
            AppendArgument(joined.back(), argument, first);
        }
        first = false;
    }
    return joined;
}

} // namespace

CommandLine ParseCommandLine(std::string_view line)
{
    CommandLine commandLine;
    commandLine.text = FromPath(line);
    const std::size_t slash = line.find('/');
    commandLine.bookPath = BetweenQuotes(slash == None ? line : TrimRight(line.substr(0, slash)));
    if (slash != None) {
        commandLine.valid = WalkParameters(line.substr(slash),
                                           [&commandLine](const std::string& name, const std::string& value) {
                                               return StoreParameter(commandLine, name, Unquote(value));
                                           });
    }
    return commandLine;
}

CommandLine ParseArguments(const std::vector<std::string>& arguments, const Seams& seams)
{
    CommandLine commandLine;
    std::string line;
    for (const std::string& argument : arguments) {
        AppendArgument(line, argument, &argument == &arguments.front());
    }
    commandLine.text = FromPath(line);
    const bool oneString =
        arguments.size() == 1 && NextParameter(line, 0) != None && !seams.files.Exists(line);
    const std::vector<std::string> joined = JoinArguments(oneString ? CutOneString(line) : arguments, seams);
    for (std::size_t i = 1; i < joined.size(); ++i) {
        TakeParameter(commandLine, joined[i]);
    }
    // The shell has removed its quotes, so a remaining quote may be part of a file's name.
    const std::string& path = joined.front();
    commandLine.bookPath = seams.files.Exists(path) ? path : BetweenQuotes(path);
    return commandLine;
}

void ReportInvalidParameters(const CommandLine& commandLine, const Seams& seams)
{
    if (!commandLine.valid) {
        seams.messages.MsgBox("Invalid command line parameters are ignored.  Command line: <<" +
                                  commandLine.text + ">>",
                              Icon::Warning);
    }
}

} // namespace ls
