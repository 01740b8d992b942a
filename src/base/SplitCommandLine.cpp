#include "base/SplitCommandLine.h"

#include <algorithm>

namespace ls {

namespace {

// The position of the quote that ends the word whose text begins at `from`; the line's size if none does.
std::size_t ClosingQuote(std::string_view line, std::size_t from)
{
    std::size_t at = line.find('"', from);
    while (at != std::string_view::npos && at + 1 < line.size() && line[at + 1] != ' ') {
        at = line.find('"', at + 1);
    }
    return std::min(at, line.size());
}

} // namespace

std::vector<std::string> SplitCommandLine(std::string_view commandLine)
{
    std::vector<std::string> words;
    std::size_t at = commandLine.find_first_not_of(' ');
    while (at < commandLine.size()) {
        const bool quoted = commandLine[at] == '"';
        const std::size_t from = quoted ? at + 1 : at;
        const std::size_t end = quoted ? ClosingQuote(commandLine, from)
                                       : std::min(commandLine.find(' ', from), commandLine.size());
        words.emplace_back(commandLine.substr(from, end - from));
        at = end < commandLine.size() ? commandLine.find_first_not_of(' ', end + 1) : end;
    }
    return words;
}

} // namespace ls
