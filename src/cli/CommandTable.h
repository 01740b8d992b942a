#pragma once

#include "cli/CommandSpec.h"

#include <string_view>
#include <vector>

namespace ls {

/// All commands, in the order in which the help lists them.
[[nodiscard]] const std::vector<CommandSpec>& CommandTable();

/// The command of that name; nullptr when there is none.
[[nodiscard]] const CommandSpec* FindCommand(std::string_view name);

} // namespace ls
