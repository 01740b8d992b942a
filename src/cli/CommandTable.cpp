#include "cli/CommandTable.h"

#include "cli/Commands.h"

#include <algorithm>

namespace ls {

const std::vector<CommandSpec>& CommandTable()
{
    static const std::vector<CommandSpec> table = {
        InfoCommand(),  TopicsCommand(), XrefsCommand(), ShowCommand(),    TextCommand(), ExportCommand(),
        PagesCommand(), AdviseCommand(), SaveCommand(),  ConvertCommand(), CheckCommand()};
    return table;
}

const CommandSpec* FindCommand(std::string_view name)
{
    const std::vector<CommandSpec>& table = CommandTable();
    const auto found =
        std::find_if(table.begin(), table.end(), [name](const CommandSpec& c) { return c.name == name; });
    return found == table.end() ? nullptr : &*found;
}

} // namespace ls
