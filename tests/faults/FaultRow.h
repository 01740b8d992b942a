#pragma once

#include "Desk.h"

#include <functional>
#include <string>
#include <vector>

namespace ls::test {

/// The result of a run in which one call fails.
struct Outcome
{
    std::string call; ///< the failing call, such as "open", "read" or "rename", and its files
    std::string told; ///< the messages to the user, "icon: text"; empty if none
    std::string left; ///< the shown topic and the state in memory afterwards
    std::string disk; ///< which files changed
};

/// Outcomes as a table: a line for each, with its parts joined by " -> ". "-" is an empty part.
[[nodiscard]] std::string TableText(const std::vector<Outcome>& outcomes);

/// The lines of one row of a table in the tests' data: those below "# name".
[[nodiscard]] std::string ReadTable(const std::string& file, const std::string& name);

/// A table's text with that error number in place of 57.
[[nodiscard]] std::string WithError(std::string text, int number);

/// An action of the user that uses files. The table "faults/window.txt" has its results: for each call to the
/// file system, in order, a line for the run in which that call fails. The last line is for a run without
/// errors.
struct FaultRow
{
    std::string name;
    std::function<void(Desk&)> prepare;
    std::function<void(Desk&)> act;
    bool dropsEdits = false; ///< the user agreed to lose unsaved edits
    /// Beginnings of calls that fail without a message, although the result differs.
    std::vector<std::string> quiet = {};
};

/// Calls that fail without a message, as nothing is lost: the settings file stays as ".bak".
inline const std::vector<std::string> QuietSettings = {"open /ini/", "read /ini/"};

/// The rows, grouped by action.
[[nodiscard]] std::vector<FaultRow> OpenRows();
[[nodiscard]] std::vector<FaultRow> TopicRows();
[[nodiscard]] std::vector<FaultRow> SaveRows();
[[nodiscard]] std::vector<FaultRow> OutputRows();
[[nodiscard]] std::vector<FaultRow> SettingsRows();

/// All rows.
[[nodiscard]] std::vector<FaultRow> AllRows();

} // namespace ls::test
