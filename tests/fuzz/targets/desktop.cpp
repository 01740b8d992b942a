// The files by which a Linux desktop tells what opens which document.

#include "World.h"
#include "base/SplitCommandLine.h"
#include "browser/ProgramPath.h"
#include "platform/linux/DesktopEntry.h"
#include "platform/linux/KeyFile.h"

namespace ls::fuzz {

namespace {

void RequireListOf(const std::string& value)
{
    for (const std::string& part : SplitList(value)) {
        Require(!part.empty() && part.find(';') == std::string::npos, "a list's parts are not empty");
        Require(value.find(part) != std::string::npos, "a list's parts stand in it");
    }
}

} // namespace

void TestInput(Input& input)
{
    const std::string text =
        input.Choose(2) == 0 ? input.Text() : "[Desktop Entry]\nType=Application\nExec=" + input.Text();
    for (const char* group : {"Desktop Entry", "Default Applications", "MIME Cache"}) {
        for (const char* key : {"Exec", "Type", "text/html", "TryExec"}) {
            const std::optional<std::string> value = KeyFileValue(text, group, key);
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
