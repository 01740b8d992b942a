#pragma once

#include "base/Messages.h"

#include <deque>
#include <string>
#include <vector>

namespace ls::test {

/// Shows nothing, records every box as a text, and answers from a script.
///
/// A box is recorded as "critical|Lodestar Advisor|Overflow"; a question adds its text and buttons:
/// "question|...|text|OKCancel". A question without a reply in the script fails the test; so does a reply
/// that is left over at the end.
class RecordingMessages : public Messages
{
public:
    explicit RecordingMessages(const ProgramEnd& end) : Messages(end) {}
    ~RecordingMessages() override;

    std::vector<std::string> boxes;
    std::deque<Reply> replies;                     ///< for questions
    std::deque<std::optional<std::string>> inputs; ///< for input boxes

    /// The boxes since the last call, in order.
    std::vector<std::string> Take();

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;
};

/// "critical", "exclamation", "warning", "information", "question" or "none".
[[nodiscard]] std::string IconName(Icon icon);

} // namespace ls::test
