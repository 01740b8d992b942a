// How the reading pane handles keys and the mouse.

#include "render/pane/PaneKeys.h"
#include "render/pane/ReadingPane.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdlib>

namespace ls {

namespace {

constexpr int DragScrollMilliseconds = 50; // for each line

} // namespace

void ReadingPane::keyPressEvent(QKeyEvent* event)
{
    if (!CanScroll() || (!ScrollByKey(*event) && !MoveByKey(*event))) {
        QWidget::keyPressEvent(event);
        return;
    }
    event->accept();
}

bool ReadingPane::ScrollByKey(const QKeyEvent& event)
{
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const auto action = ScrollActionOf(event.key());
    if (!plain || !action) {
        return false;
    }
    m_bar->triggerAction(*action);
    if (m_lines != nullptr && m_selection.Range().Empty()) {
        TakeCaretAlong(event.key());
    }
    return true;
}

// Moves the caret as far as the text scrolls, even if the bar is already at its end. A caret out of sight
// comes back to the visible rows. So a screen reader reads line by line.
void ReadingPane::TakeCaretAlong(int key)
{
    const bool first = key == Qt::Key_Home;
    const bool last = key == Qt::Key_End;
    TextSelection selection = m_selection;
    if (first || last) {
        selection.MoveTo(first ? 0 : Topic().Row(Topic().RowCount()).begin, false);
    } else {
        selection.Move(Topic(), ScrollMoveOf(key), false, m_bar->pageStep());
    }
    const int line = Topic().LineAt(selection.Caret());
    const int top = m_bar->value();
    const int seen = std::clamp(line, top, std::max(top, top + WholeRows() - 1));
    if (seen != line) {
        selection.MoveTo(Topic().LineStart(seen), false);
    }
    SetSelection(selection);
}

bool ReadingPane::MoveByKey(const QKeyEvent& event)
{
    const std::optional<CaretKey> key = CaretKeyOf(event.key(), event.modifiers());
    if (m_lines == nullptr || !key) {
        return false;
    }
    m_caretShown = true;
    TextSelection selection = m_selection;
    selection.Move(Topic(), key->move, key->extend, m_bar->pageStep());
    SetSelection(selection);
    ScrollTo(m_selection.Caret());
    OfferSelection();
    return true;
}

// A third press at the place of a double click selects the row.
void ReadingPane::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_lines == nullptr) {
        QWidget::mousePressEvent(event);
        return;
    }
    const bool third = m_sinceDoubleClick.isValid() &&
                       !m_sinceDoubleClick.hasExpired(QApplication::doubleClickInterval()) &&
                       (event->position() - m_pointer).manhattanLength() < QApplication::startDragDistance();
    m_sinceDoubleClick.invalidate();
    m_pointer = event->position();
    if (!third && event->modifiers().testFlag(Qt::ShiftModifier)) {
        m_firstUnit = {m_selection.Anchor(), m_selection.Anchor()};
        m_unit = Unit::Character;
        m_selecting = true;
        ExtendToPointer();
        return;
    }
    BeginSelecting(third ? Unit::Row : Unit::Character);
}

void ReadingPane::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_lines != nullptr) {
        m_pointer = event->position();
        m_sinceDoubleClick.start();
        BeginSelecting(Unit::Word);
    }
}

// Until the button is released, dragging extends the selection by whole units.
void ReadingPane::BeginSelecting(Unit unit)
{
    m_unit = unit;
    m_firstUnit = UnitAtPointer();
    m_selecting = true;
    ExtendToPointer();
}

TextRange ReadingPane::UnitAtPointer() const
{
    const std::size_t gap = OffsetAtPoint(m_pointer);
    switch (m_unit) {
    case Unit::Row:
        return Topic().Row(Topic().RowAt(gap));
    case Unit::Word:
        // The character under the pointer, not the nearest gap between characters.
        return WordAt(Topic().Text(), OffsetAtPoint(m_pointer - QPointF(m_metrics.charWidth / 2, 0)));
    default:
        return {gap, gap};
    }
}

void ReadingPane::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_selecting) {
        return;
    }
    m_pointer = event->position();
    ExtendToPointer();
    const bool outside = m_pointer.y() < contentsRect().top() || m_pointer.y() > contentsRect().bottom();
    if (!outside) {
        m_dragScroll.stop();
    } else if (!m_dragScroll.isActive()) {
        m_dragScroll.start(DragScrollMilliseconds, this);
    }
}

void ReadingPane::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_selecting) {
        m_selecting = false;
        m_dragScroll.stop();
        OfferSelection();
    }
}

void ReadingPane::ExtendToPointer()
{
    TextSelection selection = m_selection;
    selection.SelectBetween(m_firstUnit, UnitAtPointer());
    SetSelection(selection);
}

// The bar knows how many lines the desktop scrolls for a notch, and adds up the parts of a notch from a touch
// pad. With Control the wheel changes the type size, as in other programs.
void ReadingPane::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        m_wheelTurned += event->angleDelta().y();
        if (std::abs(m_wheelTurned) >= QWheelEvent::DefaultDeltasPerStep) {
            Q_EMIT WheelZoomed(m_wheelTurned > 0);
            m_wheelTurned = 0;
        }
    } else if (CanScroll()) {
        QCoreApplication::sendEvent(m_bar, event);
    }
    event->accept();
}

void ReadingPane::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_dragScroll.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    if (CanScroll()) {
        const bool up = m_pointer.y() < contentsRect().top();
        m_bar->triggerAction(up ? QAbstractSlider::SliderSingleStepSub
                                : QAbstractSlider::SliderSingleStepAdd);
        ExtendToPointer();
    }
}

} // namespace ls
