#pragma once

#include "advisor/AdvisorView.h"
#include "base/Messages.h"
#include "base/Seams.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ls {

struct AdvisorTables;
struct Book;

/// An event in a dialogue. Texts are UTF-8.
struct AdvisorEvent
{
    enum class Kind
    {
        Run,           ///< a dialogue begins: `run`, `name` is the topic's title
        NoAdvisor,     ///< the topic `name` has no logic block
        Question,      ///< `name` is the variable; `text`, `choices`, `derived`
        Answer,        ///< `name` is the reader's choice
        InvalidAnswer, ///< `name` is not offered; `choices`; ends the dialogue
        Waiting,       ///< no answer is left for the question about `name`; ends the dialogue
        Trace,         ///< after an answer: `rules` and `targets`
        Box,           ///< `name` is its text; `icon`, `reply`
        Text,          ///< `text` is in the text box
        Advice,        ///< `name` is the identifier; `text`
        Button,        ///< the button reads `name`
        ProgramEnds,   ///< `name` is the reason
    };

    Kind kind = Kind::Run;
    std::string name;
    std::string text;
    std::vector<std::string> choices; ///< without the empty first one
    bool derived = false;
    int run = 0;
    Icon icon = Icon::None;
    Reply reply = Reply::Ok;
    std::vector<std::string> rules;
    std::vector<std::string> targets;

    friend bool operator==(const AdvisorEvent&, const AdvisorEvent&) = default;
};

/// The other side of a dialogue without a window: a script, or a person at a terminal.
struct AdvisorPlayer
{
    /// Receives all events in order.
    std::function<void(const AdvisorEvent&)> event;

    /// The reader's answer (UTF-8) to a question; nothing if there are no more answers.
    std::function<std::optional<std::string>(const AdvisorEvent& question)> answer;

    /// The reply to a box with a question.
    std::function<Reply(const std::string& text, Buttons buttons)> reply;

    bool trace = false;
};

/// Shows the topic with that title (UTF-8), as Go in the main window does. False if it has no logic block, or
/// after a message.
[[nodiscard]] bool ShowForAdvisor(Book& book, const Seams& seams, const std::string& title);

/// Runs a dialogue on the topic with that title (UTF-8), as Go and Advisor in the main window do. It runs
/// until the dialogue is over, an answer is not offered, or no answers are left. `run` is its number in the
/// events.
///
/// Boxes go to the player instead of `seams.messages`. If a fault of the rules ends the program, the last
/// event is `ProgramEnds`, and `seams.end.Ended()` is true.
void RunAdvisor(Book& book, AdvisorTables& tables, const Seams& seams, AdvisorPlayer& player, int run,
                const std::string& title);

} // namespace ls
