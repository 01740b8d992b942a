#include "forms/TitleWidth.h"

#include <QApplication>
#include <QFontMetrics>
#include <QString>

namespace ls {

namespace {

constexpr int PictureAndButtons = 140; // a picture at the left, up to four buttons at the right, and the gaps

} // namespace

int TitleWidth(const QString& title)
{
    QFont font = QApplication::font();
    font.setBold(true);
    return QFontMetrics(font).horizontalAdvance(title) + PictureAndButtons;
}

} // namespace ls
