#pragma once

#include "advisor/DialogueSearch.h"

#include <string>
#include <vector>

namespace ls {

/// What the dialogues of a topic come to, all taken together. Texts are book text, as in `DialogueMap`.
struct AdvisorCoverage
{
    std::string target;                    ///< the variable that the dialogues are about
    DialogueMap map;                       ///< every end
    std::vector<std::string> neverReached; ///< identifiers that a rule concludes or that have a text
};

/// Holds all dialogues on the current topic of the book, as `SearchDialogues` does, and names the advice of
/// the topic that none of them ends on; after a search that was cut, that none of those ends on which were
/// held. The dialogues begin without earlier answers.
[[nodiscard]] AdvisorCoverage ExploreAdvisor(const Book& book, const Seams& seams, const SearchLimits& limits,
                                             Progress* progress);

} // namespace ls
