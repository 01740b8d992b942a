#pragma once

#include "Desk.h"

#include <functional>
#include <string>
#include <vector>

namespace ls::test {

/// What comes of one call that fails.
struct Outcome
{
    std::string call; ///< "open", "read", "write", "finish", "create", "rename", ... and its files
    std::string told; ///< what the user is told, "icon: text"; empty for nothing
    std::string left; ///< what is on show and in memory then
    std::string disk; ///< which files are not as before
};

/// Outcomes as a table has them: a line for each, its parts joined by " -> ", "-" for an empty one.
[[nodiscard]] std::string TableText(const std::vector<Outcome>& outcomes);

/// The lines of one row of a table in the tests' data: those below "# name".
[[nodiscard]] std::string ReadTable(const std::string& file, const std::string& name);

/// A table's text with another error than 57 in it.
[[nodiscard]] std::string WithError(std::string text, int number);

/// Something that the user does with files. The table "faults/window.txt" tells what comes of it when one of
/// its calls to the file system fails: a line for each call, in their order, and a last line for all going
/// well.
struct FaultRow
{
    std::string name;
    std::function<void(Desk&)> prepare;
    std::function<void(Desk&)> act;
    bool dropsEdits = false;             ///< the user agreed to lose what is not saved
    std::vector<std::string> quiet = {}; ///< calls that fail without a word though it shows; how they begin
};

/// Calls that fail without a word since nothing is lost: the settings file then stays beside as ".bak".
inline const std::vector<std::string> QuietSettings = {"open /ini/", "read /ini/"};

/// The rows, by what is done with files.
[[nodiscard]] std::vector<FaultRow> OpenRows();
[[nodiscard]] std::vector<FaultRow> TopicRows();
[[nodiscard]] std::vector<FaultRow> SaveRows();
[[nodiscard]] std::vector<FaultRow> OutputRows();
[[nodiscard]] std::vector<FaultRow> SettingsRows();

/// All of them.
[[nodiscard]] std::vector<FaultRow> AllRows();

} // namespace ls::test
