#include "files/PathText.h"

#include "base/CodePage.h"

namespace ls {

QString PathText(const std::string& path)
{
    return QString::fromStdString(FromPath(path));
}

std::string PathBytes(const QString& text)
{
    return text.toStdString();
}

} // namespace ls
