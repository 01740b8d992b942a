#pragma once

#include "advisor/AdvisorWorld.h"
#include "authoring/LogicBlock.h"

#include <map>
#include <string>
#include <vector>

namespace ls::test {

/// What the advisor makes of a logic block: what it loads, and the text of each entry that it could ask for.
struct Meaning
{
    bool loads = false;
    std::vector<std::string> rules;
    std::vector<std::string> targets;
    std::vector<std::string> variables;       ///< "AGE@1" when asked in this topic, "AGE@other 2" elsewhere
    std::map<std::string, std::string> texts; ///< by opening tag in upper case

    friend bool operator==(const Meaning&, const Meaning&) = default;
};

/// The opening tags of a block's entries, as the advisor asks for them.
[[nodiscard]] std::vector<std::string> TagsOf(const LogicBlock& block);

/// Puts the block into a book between other topics, and lets the advisor load it.
[[nodiscard]] Meaning MeaningOf(const std::string& block, const std::vector<std::string>& tags);

/// The same for a topic of a book that is open in `world`.
[[nodiscard]] Meaning MeaningOfTopic(AdvisorWorld& world, int topic, const std::vector<std::string>& tags);

/// The same without what a variable adds that is written as a placeholder and had no entry before.
[[nodiscard]] Meaning WithoutPlaceholders(Meaning meaning, const LogicBlock& read);

/// One line for each element of a block's tables; line ends within a text are shown as "\n".
[[nodiscard]] std::string Describe(const LogicBlock& block);

/// Every line end as CR LF: readable text as book text.
[[nodiscard]] std::string BookLines(const std::string& text);

} // namespace ls::test
