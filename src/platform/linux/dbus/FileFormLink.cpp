#include "platform/linux/dbus/FileFormLink.h"

namespace ls {

void FileFormLink::Execute(const QString& command)
{
    if (!m_handler(command.toStdString()) && calledFromDBus()) {
        sendErrorReply(QStringLiteral("org.lodestar.Advisor.Error.Busy"),
                       QStringLiteral("Another command is still pending."));
    }
}

} // namespace ls
