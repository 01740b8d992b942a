#pragma once

#include "advisor/AdvisorWorld.h"
#include "authoring/LogicBlock.h"

#include <map>
#include <string>
#include <vector>

namespace ls::test {

/// What the advisor reads from a logic block: whether and what it loads, and the text of each entry.
struct Meaning
{
    bool loads = false;
    std::vector<std::string> rules;
    std::vector<std::string> targets;
    std::vector<std::string> variables;       ///< "AGE@1" if asked in this topic, "AGE@other 2" elsewhere
    std::map<std::string, std::string> texts; ///< the key is the opening tag in upper case

    friend bool operator==(const Meaning&, const Meaning&) = default;
};

/// The opening tags of a block's entries, spelled as the advisor asks for them.
[[nodiscard]] std::vector<std::string> TagsOf(const LogicBlock& block);

/// Puts the block between other topics of a book and lets the advisor load it.
[[nodiscard]] Meaning MeaningOf(const std::string& block, const std::vector<std::string>& tags);

/// The same for a topic of the book that is open in `world`.
[[nodiscard]] Meaning MeaningOfTopic(AdvisorWorld& world, int topic, const std::vector<std::string>& tags);

/// Removes the placeholders that writing adds for variables without an entry.
[[nodiscard]] Meaning WithoutPlaceholders(Meaning meaning, const LogicBlock& read);

/// One line for each element of a block's tables; line ends within texts appear as "\n".
[[nodiscard]] std::string Describe(const LogicBlock& block);

/// Turns every line end into CR LF, so that tests can write texts in plain lines.
[[nodiscard]] std::string BookLines(const std::string& text);

} // namespace ls::test
