#pragma once

#include "authoring/LogicBlock.h"
#include "authoring/LogicView.h"

#include <string>
#include <vector>

namespace ls {

/// Something in a block's tables that would be lost or changed by writing and reading the block.
struct LogicFault
{
    LogicBox box = LogicBox::Logic;
    int variable = -1; ///< index into the variables; -1 in the logic text and the bare entries
    int choice = -1;   ///< index into the variable's choices; -1 for its question
    int line = 0;      ///< of that text, from 1; 0 for its name
    std::string what;  ///< a whole sentence, as UTF-8
};

/// First, in order, the lines that would end or begin a part of the block, a topic or the book; then
/// everything else that would be read back differently.
[[nodiscard]] std::vector<LogicFault> FindLogicFaults(const LogicBlock& block);

/// The question before such a block is stored, UTF-8. It names the first five faults.
[[nodiscard]] std::string LogicFaultsQuestion(const std::vector<LogicFault>& faults);

} // namespace ls
