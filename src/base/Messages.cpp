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

void ShowOverflow(Messages& messages)
{
    messages.MsgBox("Overflow", Icon::Critical);
}

} // namespace ls
