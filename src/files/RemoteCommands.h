#pragma once

#include <string>

namespace ls {

class Messages;

/// Execute strings from other programs: "PUSH controlname" presses a button of the file form.
///
/// A string is stored at once and carried out a moment later by a timer, so that the sender's request has
/// returned before a button opens a box. Only one may be pending; a second is refused.
///
/// Intended: a string that is no PUSH command stays pending for good. So does one that arrived while the form
/// could not act. Further strings are refused until the form is loaded again.
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

    /// Drops a pending command; for a form that is just loaded.
    void Reset();

    /// Stores an execute string and starts the timer. False if another string is pending.
    bool LinkExecute(const std::string& command);

    /// Called when the timer fires; stops the timer. `ready` is true if the form can take input. A malformed
    /// command shows its message.
    Action Timer(bool ready, Messages& messages);

    [[nodiscard]] bool TimerEnabled() const { return m_timerEnabled; }
    [[nodiscard]] const std::string& DdeCommand() const { return m_ddeCommand; }

private:
    std::string m_ddeCommand; ///< the pending command, empty if none
    bool m_timerEnabled = false;
};

} // namespace ls
