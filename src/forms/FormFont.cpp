#include "forms/FormFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

namespace ls {

namespace {

constexpr double DesignedPoints = 9.75;

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

// Who needs larger letters has told the desktop.
double DesktopPoints()
{
    const QFont font = QGuiApplication::font();
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

} // namespace

QFont FormFont()
{
    QFont font(FormFamily());
    font.setPointSizeF(std::max(DesignedPoints, DesktopPoints()));
    return font;
}

} // namespace ls
