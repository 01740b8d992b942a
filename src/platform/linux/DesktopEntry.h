#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ls {

/// How an installed application is started, from its desktop entry.
struct DesktopEntry
{
    std::string exec;    ///< the command line as written, "web %u"
    std::string tryExec; ///< if this program is missing, so is the application; may be empty
    std::string program; ///< the first word of `exec`, without quotes and escapes
    std::string rest;    ///< what follows it in `exec`, without the space between
};

/// Parses the text of a ".desktop" file. Nothing for an entry that is hidden, is no application, needs a
/// terminal (there is none), or has no readable command.
[[nodiscard]] std::optional<DesktopEntry> ParseDesktopEntry(std::string_view text);

/// The command that opens a document: the entry's own, with its program in double quotes if it contains a
/// blank.
///
/// Callers use only the program of the command. It is "xdg-open", which starts the application by its whole
/// entry, in two cases: the program alone would not start the application ("flatpak run ...", "env A=B web"),
/// or its name is unclear (it contains a "%" or a double quote).
[[nodiscard]] std::string OpenCommand(const DesktopEntry& entry);

} // namespace ls
