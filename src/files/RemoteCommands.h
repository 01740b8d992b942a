#pragma once

#include <string>

namespace ls {

class Messages;

/// Execute strings from other programs: "PUSH controlname" presses a button of the file form.
///
/// A string is taken in at once and carried out a moment later, when a timer fires, so that the sender's
/// request has returned before a button opens a box. One may be pending; a second is refused. A string that
/// is no well-formed PUSH stays pending for good, and so does one that came while the form could not act:
/// until the form is loaded again everything is refused, which is kept.
class RemoteCommands
{
public:
    enum class Action
    {
        None,
        Beep, ///< the form cannot act now; the command stays pending
        PushOk,
        PushCancel,
        PushBrowse,
    };

    /// A form that is loaded begins with nothing pending.
    void Reset();

    /// Takes an execute string and switches the timer on. False refuses it, since another is pending.
    bool LinkExecute(const std::string& command);

    /// The timer fires: it is off at once. `ready` tells whether the form can take input. An ill-formed
    /// command shows its message.
    Action Timer(bool ready, Messages& messages);

    [[nodiscard]] bool TimerEnabled() const { return m_timerEnabled; }
    [[nodiscard]] const std::string& DdeCommand() const { return m_ddeCommand; }

private:
    std::string m_ddeCommand; ///< the pending command, empty when there is none
    bool m_timerEnabled = false;
};

} // namespace ls
