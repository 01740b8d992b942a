#include "base/Messages.h"

namespace ls {

Reply SafeReply(Buttons buttons)
{
    switch (buttons) {
    case Buttons::OkCancel:
    case Buttons::YesNoCancel:
        return Reply::Cancel;
    case Buttons::YesNo:
        return Reply::No;
    case Buttons::Ok:
        break;
    }
    return Reply::Ok;
}

std::string_view IconWord(Icon icon)
{
    switch (icon) {
    case Icon::Critical:
        return "critical";
    case Icon::Exclamation:
        return "exclamation";
    case Icon::Warning:
        return "warning";
    case Icon::Information:
        return "information";
    case Icon::Question:
        return "question";
    case Icon::None:
        break;
    }
    return {};
}

std::string_view ReplyWord(Reply reply)
{
    switch (reply) {
    case Reply::Cancel:
        return "Cancel";
    case Reply::Yes:
        return "Yes";
    case Reply::No:
        return "No";
    case Reply::Ok:
        break;
    }
    return "OK";
}

void ShowOverflow(Messages& messages)
{
    messages.MsgBox("Overflow", Icon::Critical);
}

} // namespace ls
