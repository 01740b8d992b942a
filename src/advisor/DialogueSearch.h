#pragma once

#include "base/Seams.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

struct Book;
class Progress;

/// A user's answer, as book text.
struct GivenAnswer
{
    std::string var;
    std::string choice;

    friend bool operator==(const GivenAnswer&, const GivenAnswer&) = default;
};

/// An end of a topic's dialogues.
struct DialogueEnd
{
    enum class Kind
    {
        Advice,      ///< `name` is its identifier (book text), `text` is shown
        DeadEnd,     ///< no rule can lead to advice any more; `text` is shown
        NoText,      ///< the question for a variable has no text; `text` is shown
        NoQuestion,  ///< a variable is not registered; `name` is the box that says so (UTF-8)
        LoadFailed,  ///< the logic cannot be loaded; `name` is the box that says why (UTF-8)
        ProgramEnds, ///< `name` is the reason
    };

    Kind kind = Kind::Advice;
    std::string name;
    std::string text;
    std::vector<GivenAnswer> answers; ///< a shortest list that leads here
    std::vector<std::string> boxes;   ///< boxes shown between the last answer and the end, UTF-8

    friend bool operator==(const DialogueEnd&, const DialogueEnd&) = default;
};

/// The limits of a search.
struct SearchLimits
{
    int states = 1000;                         ///< different states: a question and the rules left
    std::size_t ruleBytes = 256 * 1024 * 1024; ///< of rule texts processed, which bounds the time
    std::size_t heldBytes = 64 * 1024 * 1024;  ///< of rule texts held at once
    bool everyWay = false;                     ///< see `DialogueMap::ends`
};

/// All ends of a topic's dialogues.
struct DialogueMap
{
    /// The ends with the fewest answers come first. Each kind and name is listed once. If `everyWay` is set,
    /// an advice is listed once for each text that it has, and every other end each time.
    std::vector<DialogueEnd> ends;
    int states = 0;   ///< the number of different states visited
    bool cut = false; ///< stopped by a limit, a full table or the user: there may be more ends
};

/// Searches all dialogues on the current topic of the book (`CurrentTopicNo`, `CurrentTopicName`,
/// `LogicPos`), breadth first, by the same rules as a dialogue with a user. States that can only go on in the
/// same way are visited once. It shows no box, and no fault ends the program.
[[nodiscard]] DialogueMap SearchDialogues(const Book& book, const Seams& seams, const SearchLimits& limits,
                                          Progress* progress);

} // namespace ls
