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

/// Something that happened in a dialogue. Texts are UTF-8.
struct AdvisorEvent
{
    enum class Kind
    {
        Run,           ///< a dialogue begins: `run`, `name` is the topic's title
        NoAdvisor,     ///< the topic `name` has no logic block
        Question,      ///< `name` is the variable; `text`, `choices`, `derived`
        Answer,        ///< `name` is what the reader chose
        InvalidAnswer, ///< `name` is not offered; `choices`. The dialogue ends
        Waiting,       ///< the answers ran out at the question for `name`. The dialogue ends
        Trace,         ///< after an answer: `rules` and `targets`
        Box,           ///< `name` is its text; `icon`, `reply`
        Text,          ///< `text` stands in the text box
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

/// Who takes part in dialogues without a window: a script, or a person at a terminal.
struct AdvisorPlayer
{
    /// Told everything, in order.
    std::function<void(const AdvisorEvent&)> event;

    /// The reader's answer (UTF-8) to a question; nothing when there are no more answers.
    std::function<std::optional<std::string>(const AdvisorEvent& question)> answer;

    /// The reply to a box that asks.
    std::function<Reply(const std::string& text, Buttons buttons)> reply;

    bool trace = false;
};

/// Makes the topic of that title (UTF-8) the one on show, as the main window's Go does; false when it has no
/// logic block, or after a message.
[[nodiscard]] bool ShowForAdvisor(Book& book, const Seams& seams, const std::string& title);

/// Runs one dialogue on the topic of that title (UTF-8), as the main window's Go and Advisor buttons do,
/// until it is over, an answer is not offered, or there are no more answers. `run` numbers it in the events.
///
/// Boxes go to the player, not to `seams.messages`. When the fault of a rule ends the program, that is the
/// last event, and `seams.end` tells.
void RunAdvisor(Book& book, AdvisorTables& tables, const Seams& seams, AdvisorPlayer& player, int run,
                const std::string& title);

} // namespace ls
