#pragma once

#include "advisor/AdvisorContext.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>

namespace ls {

class Inference;

/// All rules together may take this many bytes of memory; a load that would pass it fails with "Out of
/// memory". A long ASSUME before thousands of rules would otherwise fill the machine.
inline constexpr std::size_t MaxRuleBytes = 256 * 1024 * 1024;

/// Reads a logic block from the cursor's position on, at or before its "<LOGIC>" line, into the tables.
///
/// `additionalTopic` is false for the topic on which the advisor was opened: the tables other than the rules
/// and the answers then start empty, and the reader is asked whether earlier answers count. It is true for a
/// topic loaded later for one of its variables; its rules join the others and its TARGET lines count for
/// nothing. The line read first is then the topic's own header.
///
/// Answers that belong to the topic are asserted again; an advice identifier that they lead to is put into
/// `firstAdvice` when that is empty. False after a message; the tables then keep what was read so far.
bool LoadLogic(AdvisorContext& context, Inference& inference, Count16 topic, bool additionalTopic,
               std::string& firstAdvice);

} // namespace ls
