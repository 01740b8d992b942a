#pragma once

#include "cli/Status.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace ls {

class CommandContext;

/// One option of a command.
struct OptionSpec
{
    std::string_view name;   ///< with its dashes: "--width"
    std::string_view values; ///< names of its values, separated by blanks; empty for a switch
    std::string_view help;
    int least = 0; ///< each value is a whole number from least to most; both 0: any text
    int most = 0;
};

/// One command: its synopsis, its help and its function.
struct CommandSpec
{
    std::string_view name;
    std::string_view operands; ///< as the synopsis shows them: "BOOK [TITLE]"
    std::size_t leastOperands; ///< the least number of operands
    std::size_t mostOperands;  ///< the largest number of operands
    std::string_view summary;  ///< one line, without a full stop
    std::string_view details;  ///< more lines of its help; may be empty
    std::vector<OptionSpec> options;
    Status (*run)(CommandContext& context);
};

/// The options that many commands share.
inline constexpr OptionSpec JsonOption{"--json", "", "write JSON, for programs"};
inline constexpr OptionSpec PlainOption{"--plain", "", "take a file that is no book as plain text"};
inline constexpr OptionSpec NumberOption{"--number", "N", "the topic by its number instead of its title", 1,
                                         32767};

} // namespace ls
