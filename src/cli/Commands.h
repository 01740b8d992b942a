#pragma once

#include "cli/CommandSpec.h"

namespace ls {

/// Each command's entry in the table. Its own file holds the rest.
[[nodiscard]] CommandSpec ExportCommand();
[[nodiscard]] CommandSpec AdviseCommand();
[[nodiscard]] CommandSpec CheckCommand();
[[nodiscard]] CommandSpec ConvertCommand();
[[nodiscard]] CommandSpec InfoCommand();
[[nodiscard]] CommandSpec TopicsCommand();
[[nodiscard]] CommandSpec XrefsCommand();
[[nodiscard]] CommandSpec PagesCommand();
[[nodiscard]] CommandSpec ShowCommand();
[[nodiscard]] CommandSpec TextCommand();
[[nodiscard]] CommandSpec SaveCommand();

} // namespace ls
