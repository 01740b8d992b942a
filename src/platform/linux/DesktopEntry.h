#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// What the entry of an installed application says about starting it.
struct DesktopEntry
{
    std::string exec;    ///< the command line as it is written, "web %u"
    std::string tryExec; ///< a program without which the entry counts as missing; may be empty
    std::string program; ///< the first word of `exec`, quotes and escapes taken away
    std::string rest;    ///< what follows it in `exec`, without the space before
};

/// The entry in the text of a ".desktop" file; nothing for one that is hidden, is no application, needs a
/// terminal (there is none to show it in), or has no command that can be read.
[[nodiscard]] std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text);

/// The command that opens a document: the entry's own, its program in double quotes where it holds a blank.
///
/// Callers keep only the program of it. Where that alone would not start the application ("flatpak run ...",
/// "env A=B web"), or the program's name could not be told (it holds a "%" or a double quote), the command is
/// "xdg-open", which starts the application by its whole entry.
[[nodiscard]] std::string OpenCommand(const DesktopEntry& entry);

} // namespace ls
