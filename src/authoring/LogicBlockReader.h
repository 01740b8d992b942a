#pragma once

#include "authoring/LogicBlock.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls::logic {

/// An entry of the definitions, as read.
struct LogicEntry
{
    bool question = false; ///< else advice
    std::string identifier;
    std::string text; ///< its lines trimmed and joined by CR LF
    std::string raw;  ///< as written, from opening tag to closing tag
    int line = 0;     ///< of its opening tag
};

/// Reads a block line by line. Returns its entries in order, puts the logic lines into `logicText`, and
/// reports in `lost` whatever is neither.
[[nodiscard]] std::vector<LogicEntry> ReadLogicBlock(std::string_view text, std::string& logicText,
                                                     std::vector<LostPart>& lost);

} // namespace ls::logic
