#pragma once

#include "base/Messages.h"

#include <deque>
#include <string>
#include <vector>

namespace ls::test {

/// Shows nothing, records every box as one text, and answers from a script.
///
/// A box reads "critical|Lodestar Advisor|Overflow", one that asks adds its buttons:
/// "question|...|text|OKCancel". A box that asks and finds no reply in the script fails the test, and so do
/// replies left over when the test ends.
class RecordingMessages : public Messages
{
public:
    explicit RecordingMessages(const ProgramEnd& end) : Messages(end) {}
    ~RecordingMessages() override;

    std::vector<std::string> boxes;
    std::deque<Reply> replies;                     ///< for boxes that ask
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
