#include "forms/ButtonIcons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

#include <algorithm>

namespace ls {

namespace {

constexpr double Grid = 16; // the side of the square that the shapes are drawn on

QPainterPath ArrowRightPath()
{
    QPainterPath path(QPointF(8.5, 3));
    path.lineTo(13.5, 8);
    path.lineTo(8.5, 13);
    path.moveTo(2.5, 8);
    path.lineTo(13, 8);
    return path;
}

QPainterPath GlobePath()
{
    QPainterPath path;
    path.addEllipse(QRectF(2, 2, 12, 12));
    path.addEllipse(QRectF(5.25, 2, 5.5, 12));
    path.moveTo(2.5, 8);
    path.lineTo(13.5, 8);
    return path;
}

QPainterPath QuestionMarkPath()
{
    QPainterPath path(QPointF(5, 5.5));
    path.cubicTo(5, 1.5, 11, 1.5, 11, 5.5);
    path.cubicTo(11, 8, 8, 7.5, 8, 10.25);
    path.addEllipse(QPointF(8, 13.5), 0.25, 0.25);
    return path;
}

QPainterPath PathOf(ButtonPicture picture)
{
    switch (picture) {
    case ButtonPicture::ArrowLeft:
        return QTransform(-1, 0, 0, 1, Grid, 0).map(ArrowRightPath());
    case ButtonPicture::ArrowRight:
        return ArrowRightPath();
    case ButtonPicture::QuestionMark:
        return QuestionMarkPath();
    case ButtonPicture::Globe:
        break;
    }
    return GlobePath();
}

class ShapeEngine : public QIconEngine
{
public:
    explicit ShapeEngine(ButtonPicture picture) : m_picture(picture) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette::ColorGroup group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const double pen = m_picture == ButtonPicture::Globe ? 1.2 : 2.0;
        const double scale = std::min(rect.width(), rect.height()) / Grid;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(QRectF(rect).center() - QPointF(Grid, Grid) * (scale / 2));
        painter->scale(scale, scale);
        painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::ButtonText), pen,
                             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(PathOf(m_picture));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixels(size);
        pixels.fill(Qt::transparent);
        QPainter painter(&pixels);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixels;
    }

    [[nodiscard]] QIconEngine* clone() const override { return new ShapeEngine(m_picture); }

private:
    ButtonPicture m_picture;
};

} // namespace

QIcon ButtonIcon(ButtonPicture picture)
{
    return QIcon(new ShapeEngine(picture)); // the icon owns its engine
}

} // namespace ls
