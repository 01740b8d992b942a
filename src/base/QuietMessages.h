#pragma once

#include "base/Messages.h"

namespace ls {

/// Says nothing and gives every question its safe answer: for work that the user did not ask for, like
/// showing a topic again after a resize.
class QuietMessages : public Messages
{
public:
    using Messages::Messages;

protected:
    Reply ShowBox(const std::string&, Icon, Buttons buttons, const std::string&) override
    {
        return SafeReply(buttons);
    }
    std::optional<std::string> ShowInputBox(const std::string&, const std::string&,
                                            const std::string&) override
    {
        return std::nullopt;
    }
};

} // namespace ls
