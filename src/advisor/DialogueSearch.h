#pragma once

#include "base/Seams.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ls {

struct Book;
class Progress;

/// An answer of a reader, as book text.
struct GivenAnswer
{
    std::string var;
    std::string choice;

    friend bool operator==(const GivenAnswer&, const GivenAnswer&) = default;
};

/// A way in which dialogues of a topic end.
struct DialogueEnd
{
    enum class Kind
    {
        Advice,      ///< `name` is its identifier (book text), `text` what the reader sees
        DeadEnd,     ///< no rule is left that could lead to advice; `text` is what the reader sees
        NoText,      ///< the question for a variable has no text; `text` is what the reader sees
        NoQuestion,  ///< a variable is registered nowhere; `name` is the box that tells so (UTF-8)
        LoadFailed,  ///< the logic cannot be loaded; `name` is the box that tells why (UTF-8)
        ProgramEnds, ///< `name` is the reason
    };

    Kind kind = Kind::Advice;
    std::string name;
    std::string text;
    std::vector<GivenAnswer> answers; ///< a shortest list that leads here
    std::vector<std::string> boxes;   ///< what boxes said on the way from the last answer to here, UTF-8

    friend bool operator==(const DialogueEnd&, const DialogueEnd&) = default;
};

/// How far a search goes.
struct SearchLimits
{
    int states = 1000;                         ///< questions with the rules that are left behind them
    std::size_t ruleBytes = 256 * 1024 * 1024; ///< of rule texts gone through, for rule bases of any size
    std::size_t heldBytes = 64 * 1024 * 1024;  ///< of rule texts held at once
    bool everyWay = false;                     ///< see `DialogueMap::ends`
};

/// Every way in which the dialogues of a topic can end.
struct DialogueMap
{
    /// Those with the fewest answers first; each kind and name once. When every way is asked for, advice is
    /// kept once for each text that comes up with it, and each other end by itself.
    std::vector<DialogueEnd> ends;
    int states = 0;   ///< how many different questions, by what is left to ask, were looked at
    bool cut = false; ///< a limit was met, a table was full, or it was cancelled: there may be more
};

/// Holds all dialogues on the current topic of the book (`CurrentTopicNo`, `CurrentTopicName`, `LogicPos`),
/// breadth first, by the very rules by which readers are asked. States in which the same is left to be asked
/// are gone through once. Nobody sees a box, and no fault ends the program.
[[nodiscard]] DialogueMap SearchDialogues(const Book& book, const Seams& seams, const SearchLimits& limits,
                                          Progress* progress);

} // namespace ls
