#include "forms/ProgramIcon.h"

#include <QString>

// A resource of a static library is left out by the linker unless it is asked for; that cannot be done
// within a namespace.
static void KeepResource()
{
    Q_INIT_RESOURCE(ProgramIcon);
}

namespace ls {

QIcon ProgramIcon()
{
    KeepResource();
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
        icon.addFile(QStringLiteral(":/icon/%1.png").arg(size));
    }
    return icon;
}

} // namespace ls
