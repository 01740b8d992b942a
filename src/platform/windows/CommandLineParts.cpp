#include "platform/windows/CommandLineParts.h"

#include "base/SplitCommandLine.h"
#include "base/Text.h"

#include <algorithm>
#include <vector>

namespace ls {

namespace {

bool IsLetter(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// The length of "/NAME=" at the start of a text; 0 when it begins otherwise.
std::size_t ParameterNameLength(std::string_view text)
{
    if (!text.starts_with('/')) {
        return 0;
    }
    std::size_t end = 1;
    while (end < text.size() && IsLetter(text[end])) {
        ++end;
    }
    return end > 1 && end < text.size() && text[end] == '=' ? end + 1 : 0;
}

} // namespace

std::string BehindProgramName(std::string_view line)
{
    bool quoted = false;
    std::size_t at = 0;
    while (at < line.size() && (quoted || (line[at] != ' ' && line[at] != '\t'))) {
        quoted = quoted != (line[at] == '"');
        ++at;
    }
    at = std::min(line.find_first_not_of(" \t", at), line.size());
    return std::string(line.substr(at));
}

std::string WithQuotedValues(std::string_view line)
{
    std::string result;
    bool quoted = false;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const bool startsWord = at == 0 || line[at - 1] == ' ' || line[at - 1] == '\t';
        if (line[at] == '"' && !quoted && startsWord) {
            const std::size_t length = ParameterNameLength(line.substr(at + 1));
            result.append(line.substr(at + 1, length));
            at += length;
            result += '"';
            quoted = true;
            continue;
        }
        quoted = quoted != (line[at] == '"');
        result += line[at];
    }
    return result;
}

LaunchLine ToLaunchLine(std::string_view commandLine)
{
    const std::vector<std::string> words = SplitCommandLine(commandLine);
    if (words.empty()) {
        return {};
    }
    const std::string& program = words.front();
    const std::size_t start = commandLine.find_first_not_of(' ');
    const std::size_t quotes = commandLine[start] == '"' ? 2 : 0;
    // If the quote is not closed, the program runs to the end of the line.
    const std::size_t end = std::min(start + program.size() + quotes, commandLine.size());
    return {program, '"' + program + '"' + std::string(commandLine.substr(end))};
}

bool IsBatchFile(std::string_view program)
{
    // The system ignores dots and blanks at the end of a name.
    const std::size_t last = program.find_last_not_of(" .");
    const std::string name = UpperCase(program.substr(0, last == std::string_view::npos ? 0 : last + 1));
    return name.ends_with(".BAT") || name.ends_with(".CMD");
}

} // namespace ls
