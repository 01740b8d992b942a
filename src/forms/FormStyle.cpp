#include "forms/FormStyle.h"

#include <QApplication>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

namespace ls {

namespace {

constexpr int HalfWay = 128; // between black and white

// The plain style draws the edge of an empty check box darker than the window. On a dark window that edge is
// invisible, so this style draws a visible one.
class FormStyle : public QProxyStyle
{
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override
    {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        const bool box = element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck;
        if (!box && element != PE_IndicatorRadioButton) {
            return;
        }
        if (option->palette.color(QPalette::Window).lightness() >= HalfWay) {
            return;
        }
        QColor edge = option->palette.color(QPalette::Text);
        edge.setAlphaF(0.6F);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(edge);
        painter->setBrush(Qt::NoBrush);
        const QRectF line = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        if (box) {
            painter->drawRect(line);
        } else {
            painter->drawEllipse(line);
        }
        painter->restore();
    }
};

} // namespace

void SetFormStyle()
{
    const QString plain = QStringLiteral("fusion");
    if (QApplication::style()->name() == plain) {
        QApplication::setStyle(new FormStyle(plain)); // the application owns it
    }
}

} // namespace ls
