#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

class Processes;

/// The program in a registered command: the text in its leading double quotes, else the text up to the first
/// blank. Switches and placeholder are dropped. Intended: an unquoted path that holds a blank is cut there,
/// so its program is not found.
[[nodiscard]] std::string ProgramOfCommand(std::string_view command);

/// A document as an argument: an address stays unchanged, a file name without a folder gets the current one.
[[nodiscard]] std::string FullDocument(PathRules rules, const std::string& currentFolder,
                                       const std::string& document);

/// Adds double quotes if the text holds a blank and does not begin with a double quote.
[[nodiscard]] std::string QuotedIfBlank(const std::string& text);

/// The result of `ExpandVariables`.
struct Expansion
{
    enum class Result
    {
        Done,
        Malformed, ///< a "%" without a second one, or too many variables
        Undefined  ///< a variable that is unset or empty: `name`
    };

    Result result = Result::Done;
    std::string name;
};

/// Replaces every "%NAME%" by that environment variable, also those in inserted values. Stops after a
/// thousand, because variables that name each other would go on for ever.
[[nodiscard]] Expansion ExpandVariables(Processes& processes, std::string& text);

} // namespace ls
