#include "files/RemoteCommands.h"

#include "base/Messages.h"
#include "base/Text.h"

namespace ls {

namespace {

RemoteCommands::Action ActionOf(const std::string& controlName)
{
    if (controlName == "OKBUTTON") {
        return RemoteCommands::Action::PushOk;
    }
    if (controlName == "CANCELBUTTON") {
        return RemoteCommands::Action::PushCancel;
    }
    if (controlName == "BROWSEBUTTON") {
        return RemoteCommands::Action::PushBrowse;
    }
    return RemoteCommands::Action::None;
}

} // namespace

void RemoteCommands::Reset()
{
    m_ddeCommand.clear();
    m_timerEnabled = false;
}

bool RemoteCommands::LinkExecute(const std::string& command)
{
    if (!m_ddeCommand.empty()) {
        return false;
    }
    m_ddeCommand = command;
    m_timerEnabled = true;
    return true;
}

RemoteCommands::Action RemoteCommands::Timer(bool ready, Messages& messages)
{
    m_timerEnabled = false;
    if (m_ddeCommand.empty()) {
        return Action::None;
    }
    if (!ready) {
        return Action::Beep;
    }
    const std::size_t blank = m_ddeCommand.find(' ');
    if (blank == std::string::npos || UpperCase(m_ddeCommand.substr(0, blank)) != "PUSH") {
        messages.MsgBox(
            "Invalid DDE command received.  Use a command to Lodestar|FileForm as explained in the "
            "technical section of the online help.",
            Icon::Exclamation);
        return Action::None;
    }
    const std::string controlName = UpperCase(m_ddeCommand.substr(blank + 1));
    m_ddeCommand.clear();
    const Action action = ActionOf(controlName);
    if (action == Action::None) {
        // Intended: the message lacks a blank between its sentences, so the user reads "toLodestar".
        messages.MsgBox(
            "Invalid DDE PUSH command received.  Use a command toLodestar|FileForm in the format <<PUSH "
            "controlname>>.",
            Icon::Exclamation);
    }
    return action;
}

} // namespace ls
