#include "forms/FormFont.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QStringList>

#include <algorithm>

namespace ls {

namespace {

constexpr double DesignedPoints = 9.75;

// The first installed family of the list. An unknown name gives the system's fallback, often a wider face
// that clips captions.
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

// Users who need larger letters set that on the desktop.
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
