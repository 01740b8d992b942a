#include "render/ReadingPane.h"

#include "render/PaintRuns.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <optional>

namespace ls {

namespace {

constexpr int BorderWidth = 1;
constexpr int TextMargin = 4; // between the border and the text

std::optional<QAbstractSlider::SliderAction> ScrollActionOf(int key)
{
    switch (key) {
    case Qt::Key_Up:
        return QAbstractSlider::SliderSingleStepSub;
    case Qt::Key_Down:
        return QAbstractSlider::SliderSingleStepAdd;
    case Qt::Key_PageUp:
        return QAbstractSlider::SliderPageStepSub;
    case Qt::Key_PageDown:
        return QAbstractSlider::SliderPageStepAdd;
    case Qt::Key_Home:
        return QAbstractSlider::SliderToMinimum;
    case Qt::Key_End:
        return QAbstractSlider::SliderToMaximum;
    default:
        return std::nullopt;
    }
}

} // namespace

ReadingPane::ReadingPane(QWidget* parent) : QWidget(parent), m_metrics(MeasureCells(logicalDpiY()))
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    constexpr int frame = BorderWidth + TextMargin;
    setContentsMargins(frame, frame, frame, frame);
}

void ReadingPane::SetScrollBar(QScrollBar* bar)
{
    m_bar = bar;
}

void ReadingPane::Clear()
{
    m_record.Clear();
    update();
}

void ReadingPane::Print(std::string_view text, bool endRow)
{
    m_record.Print(text, endRow);
    update();
}

double ReadingPane::InnerWidth() const
{
    return contentsRect().width();
}

double ReadingPane::InnerHeight() const
{
    return contentsRect().height();
}

double ReadingPane::TextWidth(std::string_view text) const
{
    return static_cast<double>(text.size()) * m_metrics.charWidth;
}

double ReadingPane::TextHeight(std::string_view) const
{
    return m_metrics.rowHeight;
}

// Eighty characters across and two dozen rows.
QSize ReadingPane::sizeHint() const
{
    const QSizeF text(80 * m_metrics.charWidth, 24 * m_metrics.rowHeight);
    return text.toSize().grownBy(contentsMargins());
}

void ReadingPane::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::white);
    PaintBorder(painter);
    const QRect seen = event->rect() & contentsRect();
    painter.setClipRect(seen);
    painter.translate(contentsRect().topLeft());
    PaintRuns(painter, m_record.Runs(), m_metrics, QRectF(seen).translated(-contentsRect().topLeft()));
}

// The border also tells a keyboard user that the keys go to the text.
void ReadingPane::PaintBorder(QPainter& painter) const
{
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::gray));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

bool ReadingPane::CanScroll() const
{
    return m_bar != nullptr && !m_bar->isHidden();
}

void ReadingPane::keyPressEvent(QKeyEvent* event)
{
    const bool plain = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const auto action = ScrollActionOf(event->key());
    if (!CanScroll() || !plain || !action) {
        QWidget::keyPressEvent(event);
        return;
    }
    m_bar->triggerAction(*action);
    event->accept();
}

// The bar knows how many lines the desktop scrolls for a notch, and adds up the parts of one that a touch pad
// sends.
void ReadingPane::wheelEvent(QWheelEvent* event)
{
    if (CanScroll()) {
        QCoreApplication::sendEvent(m_bar, event);
    }
    event->accept();
}

void ReadingPane::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    update();
}

void ReadingPane::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    update();
}

} // namespace ls
