#include "forms/ProgramIcon.h"

#include <QString>

// The linker drops a static library's resource unless this macro asks for it. The macro must be outside any
// namespace.
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
