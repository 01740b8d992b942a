#pragma once

#include "advisor/AdvisorContext.h"
#include "base/Count16.h"

#include <cstddef>
#include <string>

namespace ls {

class Inference;

/// The limit in bytes for the text of all rules; a load beyond it fails with "Out of memory". Without it a
/// long ASSUME before thousands of rules would fill the memory.
inline constexpr std::size_t MaxRuleBytes = 256 * 1024 * 1024;

/// Reads a logic block into the tables. The cursor must be at or before its "<LOGIC>" line.
///
/// `additionalTopic` is false for the topic on which the advisor was opened. The tables other than rules and
/// answers then start empty, and the user is asked whether earlier answers count.
///
/// It is true for a topic loaded later for one of its variables. Its rules are added, its TARGET lines are
/// ignored, and the first line read is its own header.
///
/// Answers that belong to the topic are asserted again. If they lead to an advice, its identifier is put into
/// `firstAdvice`, unless that is set. False after a message; the tables then keep what was read so far.
bool LoadLogic(AdvisorContext& context, Inference& inference, Count16 topic, bool additionalTopic,
               std::string& firstAdvice);

} // namespace ls
