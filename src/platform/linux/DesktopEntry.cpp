#include "platform/linux/DesktopEntry.h"

#include "base/PathRules.h"
#include "base/Text.h"
#include "platform/linux/KeyFile.h"

#include <algorithm>
#include <array>

namespace ls {

namespace {

constexpr std::string_view Group = "Desktop Entry";

// Programs that start another program, named in their arguments. Without arguments they do nothing or open a
// prompt.
constexpr std::array<std::string_view, 27> Launchers = {
    "bash",   "bwrap",  "dash", "env",    "exo-open",       "firejail", "flatpak",
    "gio",    "ionice", "java", "ksh",    "gtk-launch",     "konsole",  "mono",
    "nice",   "nohup",  "perl", "pkexec", "gnome-terminal", "python",   "python3",
    "setsid", "sh",     "snap", "sudo",   "systemd-run",    "xterm"};

// Resolves a value's own escapes: "\s" is a blank, "\\" a backslash.
std::string Unescape(std::string_view value)
{
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        if (value[i] != '\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        ++i;
        switch (value[i]) {
        case 's':
            text += ' ';
            break;
        case 'n':
            text += '\n';
            break;
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        case '\\':
            text += '\\';
            break;
        default:
            text += '\\';
            text += value[i];
        }
    }
    return text;
}

std::string WithoutSpaceBefore(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(" \t");
    return first == std::string::npos ? std::string() : text.substr(first);
}

// Splits the command into its program and the rest; false when a quote is not closed.
bool SplitCommand(DesktopEntry& entry)
{
    const std::string& exec = entry.exec;
    if (exec.front() != '"') {
        const std::size_t end = std::min(exec.find_first_of(" \t"), exec.size());
        entry.program = exec.substr(0, end);
        entry.rest = WithoutSpaceBefore(exec.substr(end));
        return true;
    }
    for (std::size_t i = 1; i < exec.size(); ++i) {
        if (exec[i] == '"') {
            entry.rest = WithoutSpaceBefore(exec.substr(i + 1));
            return !entry.program.empty();
        }
        // Inside the quotes a backslash makes the next character ordinary.
        i += exec[i] == '\\' && i + 1 < exec.size() ? 1 : 0;
        entry.program += exec[i];
    }
    return false;
}

bool IsTrue(std::string_view text, std::string_view key)
{
    return KeyFileValue(text, Group, key) == "true";
}

// Whether the rest begins with a word that is neither a switch nor a placeholder: "run" in "flatpak run
// org.web.Web %u".
bool BeginsWithPlainWord(std::string_view rest)
{
    return !rest.empty() && std::string_view("-%@\"").find(rest.front()) == std::string_view::npos;
}

bool StartsAnother(const DesktopEntry& entry)
{
    const std::string name = NameOf(UnixPaths, entry.program);
    return std::find(Launchers.begin(), Launchers.end(), name) != Launchers.end() ||
           BeginsWithPlainWord(entry.rest);
}

} // namespace

std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text)
{
    if (KeyFileValue(text, Group, "Type") != "Application" || IsTrue(text, "Hidden") ||
        IsTrue(text, "Terminal")) {
        return std::nullopt;
    }
    DesktopEntry entry;
    const std::string exec = Unescape(KeyFileValue(text, Group, "Exec").value_or(""));
    entry.exec = WithoutSpaceBefore(std::string(TrimRight(exec)));
    entry.tryExec = Unescape(KeyFileValue(text, Group, "TryExec").value_or(""));
    if (entry.exec.empty() || !SplitCommand(entry)) {
        return std::nullopt;
    }
    return entry;
}

std::string OpenCommand(const DesktopEntry& entry)
{
    if (StartsAnother(entry) || entry.program.find_first_of("%\"=") != std::string::npos) {
        return "xdg-open";
    }
    const bool blank = entry.program.find(' ') != std::string::npos;
    const std::string program = blank ? '"' + entry.program + '"' : entry.program;
    return entry.rest.empty() ? program : program + ' ' + entry.rest;
}

} // namespace ls
