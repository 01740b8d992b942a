#pragma once

#include "authoring/LogicBlock.h"

#include <string>
#include <string_view>
#include <vector>

namespace ls::logic {

/// One entry of the definitions as it was read.
struct LogicEntry
{
    bool question = false; ///< else advice
    std::string identifier;
    std::string text; ///< its lines trimmed and joined by CR LF
    std::string raw;  ///< from the opening tag to the closing one, as written
    int line = 0;     ///< of its opening tag
};

/// Reads a block line by line: gives its entries in their order, the logic lines into `logicText`, and adds
/// to `lost` what is none of both.
[[nodiscard]] std::vector<LogicEntry> ReadLogicBlock(std::string_view text, std::string& logicText,
                                                     std::vector<LostPart>& lost);

} // namespace ls::logic
