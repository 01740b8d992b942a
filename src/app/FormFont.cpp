#include "app/FormFont.h"

#include <QFontDatabase>
#include <QStringList>

namespace ls {

namespace {

constexpr double FormFontPoints = 9.75;

// An unknown name alone would give whatever face the system falls back to, often a wider one that clips
// captions.
QString FormFamily()
{
    const QString designed = QStringLiteral("MS Sans Serif");
    const QStringList installed = QFontDatabase::families();
    for (const QString& family : {designed, QStringLiteral("Microsoft Sans Serif"),
                                  QStringLiteral("Liberation Sans"), QStringLiteral("Arial")}) {
        if (installed.contains(family)) {
            return family;
        }
    }
    return designed;
}

} // namespace

QFont FormFont()
{
    QFont font(FormFamily());
    font.setPointSizeF(FormFontPoints);
    return font;
}

} // namespace ls
