#pragma once

#include "base/Messages.h"

namespace ls {

/// Shows nothing and gives every question its safe answer. For work that the user did not ask for, such as
/// redrawing a topic after a resize.
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
