#pragma once

#include "authoring/LogicBlock.h"
#include "authoring/LogicView.h"

#include <string>
#include <vector>

namespace ls {

/// Something in a block's tables that the block, once written, would not give back.
struct LogicFault
{
    LogicBox box = LogicBox::Logic;
    int variable = -1; ///< index into the variables; -1 in the logic text and the bare entries
    int choice = -1;   ///< which of the variable's choices; -1 for its question
    int line = 0;      ///< in that text, from 1; 0 for its name
    std::string what;  ///< a whole sentence, as UTF-8
};

/// The lines that would end or open a part of the block, a topic, or the book, in their order; then what
/// else would not be read back as it stands.
[[nodiscard]] std::vector<LogicFault> FindLogicFaults(const LogicBlock& block);

/// What the author is asked before such a block is kept, as UTF-8; it names the first five of them.
[[nodiscard]] std::string LogicFaultsQuestion(const std::vector<LogicFault>& faults);

} // namespace ls
