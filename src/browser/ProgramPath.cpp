#include "browser/ProgramPath.h"

#include "base/Processes.h"
#include "base/Text.h"

namespace ls {

namespace {

constexpr int MaxExpansions = 1000;

bool IsAddress(const std::string& document)
{
    const std::string upper = UpperCase(document);
    return upper.find("HTTP://") != std::string::npos || upper.find("HTTPS://") != std::string::npos;
}

} // namespace

std::string ProgramOfCommand(std::string_view command)
{
    command = Trim(command);
    if (command.empty() || command.front() != '"') {
        return std::string(command.substr(0, command.find(' ')));
    }
    // The search for the closing quote begins at the third character. So if the command begins with two
    // quotes, the second one belongs to the path.
    const std::size_t end = command.find('"', 2);
    return std::string(end == std::string_view::npos ? command.substr(1) : command.substr(1, end - 1));
}

std::string FullDocument(PathRules rules, const std::string& currentFolder, const std::string& document)
{
    if (IsAddress(document) || document.find(rules.separator) != std::string::npos) {
        return document;
    }
    return JoinPath(rules, currentFolder, document);
}

std::string QuotedIfBlank(const std::string& text)
{
    if (text.find(' ') == std::string::npos || text.front() == '"') {
        return text;
    }
    return '"' + text + '"';
}

Expansion ExpandVariables(Processes& processes, std::string& text)
{
    int expansions = 0;
    for (std::size_t p = text.find('%'); p != std::string::npos; p = text.find('%')) {
        const std::size_t q = text.find('%', p + 1);
        if (q == std::string::npos || ++expansions > MaxExpansions) {
            return {Expansion::Result::Malformed, {}};
        }
        const std::string name = text.substr(p + 1, q - p - 1);
        const std::string value = processes.Environment(name);
        if (value.empty()) {
            return {Expansion::Result::Undefined, name};
        }
        text.replace(p, q - p + 1, value);
    }
    return {};
}

} // namespace ls
