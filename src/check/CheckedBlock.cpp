#include "check/CheckedBlock.h"
#include "book/BookWords.h"

#include <algorithm>

namespace ls {

const BlockCommand* CheckedBlock::TargetCommand() const
{
    const auto found = std::find_if(commands.rbegin(), commands.rend(), [](const BlockCommand& command) {
        return command.kind == BlockCommand::Kind::Target;
    });
    return found == commands.rend() ? nullptr : &*found;
}

std::string CheckedBlock::Target() const
{
    const BlockCommand* const command = TargetCommand();
    return command == nullptr ? std::string(DefaultGoal) : command->argument;
}

const BlockEntry* CheckedBlock::FindEntry(bool question, const std::string& id) const
{
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const BlockEntry& entry) {
        return entry.question == question && entry.searched && entry.id == id;
    });
    return found == entries.end() ? nullptr : &*found;
}

} // namespace ls
