// The files that name the program for each type of document on a Linux desktop.

#include "World.h"
#include "base/SplitCommandLine.h"
#include "browser/ProgramPath.h"
#include "platform/linux/DesktopEntry.h"
#include "platform/linux/KeyFile.h"

#include <optional>
#include <sstream>

namespace ls::fuzz {

namespace {

void RequireListOf(const std::string& value)
{
    for (const std::string& part : SplitList(value)) {
        Require(!part.empty() && part.find(';') == std::string::npos, "a list's parts are not empty");
        Require(value.find(part) != std::string::npos, "a list's parts stand in it");
    }
}

// The value of the last line "key=value" in a group of that name, found line by line.
std::optional<std::string> PlainValue(const std::string& text, const std::string& group,
                                      const std::string& key)
{
    const std::string space = " \t\r";
    const auto trim = [&space](const std::string& part) {
        const std::size_t first = part.find_first_not_of(space);
        return first == std::string::npos ? "" : part.substr(first, part.find_last_not_of(space) + 1 - first);
    };
    std::optional<std::string> value;
    bool inside = false;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        line = trim(line);
        if (line.starts_with('[')) {
            inside = line == "[" + group + "]";
        } else if (const std::size_t equals = line.find('='); inside && equals != std::string::npos) {
            value = trim(line.substr(0, equals)) == key ? trim(line.substr(equals + 1)) : value;
        }
    }
    return value;
}

} // namespace

void TestInput(Input& input)
{
    const std::string text =
        input.Choose(2) == 0 ? input.Text() : "[Desktop Entry]\nType=Application\nExec=" + input.Text();
    for (const char* group : {"Desktop Entry", "Default Applications", "MIME Cache"}) {
        for (const char* key : {"Exec", "Type", "text/html", "TryExec"}) {
            const std::optional<std::string> value = KeyFileValue(text, group, key);
            Require(value == PlainValue(text, group, key), "a value is that of a plain reading");
            if (value) {
                Require(value->find('\n') == std::string::npos, "a value is one line");
                Require(text.find(*value) != std::string::npos, "a value stands in the text");
                RequireListOf(*value);
            }
        }
    }
    const std::optional<DesktopEntry> entry = ParseDesktopEntry(text);
    if (!entry) {
        return;
    }
    Require(!entry->program.empty() && !entry->exec.empty(), "an entry has a program");
    const std::string command = OpenCommand(*entry);
    const std::vector<std::string> words = SplitCommandLine(command);
    Require(!words.empty(), "a command has a program");
    if (command != "xdg-open") {
        RequireEqual(words.front(), entry->program, "the command starts the entry's program");
    }
}

} // namespace ls::fuzz
