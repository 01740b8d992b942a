#pragma once

#include "base/PathRules.h"

#include <string>
#include <string_view>

namespace ls {

class Processes;

/// The program of a registered command: what stands in its leading double quotes, else all up to the first
/// blank. Its switches and its placeholder are dropped. An unquoted path that holds a blank is cut there,
/// as registered commands have always been read here.
[[nodiscard]] std::string ProgramOfCommand(std::string_view command);

/// A document as an argument: an address stays as it is, a file name without a folder gets the current one.
[[nodiscard]] std::string FullDocument(PathRules rules, const std::string& currentFolder,
                                       const std::string& document);

/// In double quotes when it holds a blank and does not begin with a double quote.
[[nodiscard]] std::string QuotedIfBlank(const std::string& text);

/// How the expansion of "%NAME%" went.
struct Expansion
{
    enum class Result
    {
        Done,
        Malformed, ///< a "%" without a second one, or variables that never end
        Undefined  ///< a variable that is unset or empty: `name`
    };

    Result result = Result::Done;
    std::string name;
};

/// Replaces every "%NAME%" by the environment variable of that name, also those that a value brings in, and
/// at most a thousand of them: variables that name each other would never end.
[[nodiscard]] Expansion ExpandVariables(Processes& processes, std::string& text);

} // namespace ls
