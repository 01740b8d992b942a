#pragma once

#include "advisor/DialogueSearch.h"

#include <string>
#include <vector>

namespace ls {

/// The ends of all dialogues of a topic. Texts are book text, as in `DialogueMap`.
struct AdvisorCoverage
{
    std::string target;                    ///< the goal of the dialogues
    DialogueMap map;                       ///< all ends
    std::vector<std::string> neverReached; ///< advice that a rule concludes or that has a text
};

/// Runs all dialogues on the current topic of the book, as `SearchDialogues` does, and lists the advice that
/// none of them ends on. If the search is cut, only the dialogues up to the cut count. The dialogues begin
/// without earlier answers.
[[nodiscard]] AdvisorCoverage ExploreAdvisor(const Book& book, const Seams& seams, const SearchLimits& limits,
                                             Progress* progress);

} // namespace ls
