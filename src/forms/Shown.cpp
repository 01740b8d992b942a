#include "forms/Shown.h"

#include "base/CodePage.h"

namespace ls {

QString Shown(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

QString ShownBookText(const std::string& bookText)
{
    return QString::fromStdString(FromBook(bookText));
}

} // namespace ls
