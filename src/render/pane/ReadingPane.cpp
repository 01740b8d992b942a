#include "render/pane/ReadingPane.h"

#include "forms/Shown.h"
#include "render/pane/PaintRuns.h"
#include "render/pane/PaneAccessible.h"
#include "render/pane/ReadingPlace.h"
#include "render/pane/SelectedRuns.h"
#include "render/text/DisplayLines.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QPalette>
#include <QScrollBar>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ls {

namespace {

constexpr int BorderWidth = 1;
constexpr int TextMargin = 4; // between the border and the text

constexpr double CaretWidth = 2;

Colour ColourOf(const QColor& colour)
{
    return {static_cast<std::uint8_t>(colour.red()), static_cast<std::uint8_t>(colour.green()),
            static_cast<std::uint8_t>(colour.blue())};
}

// The page is white on every desktop, so it must not use text colours of a dark desktop.
QPalette PageColours()
{
    QPalette page;
    for (const QPalette::ColorRole paper : {QPalette::Window, QPalette::Base}) {
        page.setColor(paper, Qt::white);
    }
    for (const QPalette::ColorRole ink : {QPalette::WindowText, QPalette::Text}) {
        page.setColor(ink, Qt::black);
    }
    page.setColor(QPalette::Highlight, QColor(0, 95, 170));
    page.setColor(QPalette::HighlightedText, Qt::white);
    return page;
}

} // namespace

ReadingPane::ReadingPane(QWidget* parent)
    : QWidget(parent), m_typeSize(NormalTypeSize), m_metrics(MeasureCells(logicalDpiY()))
{
    InstallPaneAccessible();
    setPalette(PageColours());
    setCursor(Qt::IBeamCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    constexpr int frame = BorderWidth + TextMargin;
    setContentsMargins(frame, frame, frame, frame);
}

void ReadingPane::SetScrollBar(QScrollBar* bar)
{
    m_bar = bar;
}

void ReadingPane::SetTypeSize(double points)
{
    m_typeSize = points;
    m_metrics = MeasureCells(logicalDpiY(), points);
    update();
}

void ReadingPane::SetTopic(const DisplayLines* lines, float bookVersion)
{
    const bool listened = QAccessible::isActive();
    const QString before = listened && m_topic ? ShownBookText(m_topic->Text()) : QString();
    m_lines = lines;
    m_bookVersion = bookVersion;
    m_topic.reset();
    m_selection = TextSelection();
    m_caretShown = false;
    m_selecting = false;
    m_dragScroll.stop();
    update();
    if (listened) {
        TellTextChanged(*this, before);
    }
    Q_EMIT TopicChanged();
    Q_EMIT SelectionChanged();
}

// If the selection is unchanged, nothing was printed anew, so there is nothing to restore.
void ReadingPane::KeepSelection(const std::function<void()>& printAgain)
{
    const TextSelection before = m_selection;
    const bool caretShown = m_caretShown;
    if (before == TextSelection()) { // saves reading the topic's whole text
        printAgain();
        m_caretShown = caretShown;
        return;
    }
    const KeptSelection kept(Topic(), before);
    printAgain();
    if (m_lines != nullptr && !(m_selection == before)) {
        m_caretShown = caretShown;
        SetSelection(kept.In(Topic()));
    }
}

const TopicText& ReadingPane::Topic() const
{
    if (!m_topic) {
        m_topic = m_lines != nullptr ? TopicText(*m_lines, m_bookVersion) : TopicText();
    }
    return *m_topic;
}

QString ReadingPane::SelectedText() const
{
    const TextRange range = m_selection.Range();
    return range.Empty() ? QString() : ShownBookText(Topic().Part(range));
}

void ReadingPane::SetSelection(const TextSelection& selection)
{
    const TextSelection before = std::exchange(m_selection, selection);
    update();
    if (!(m_selection == before)) {
        TellSelectionChanged(*this, before);
        Q_EMIT SelectionChanged();
    }
}

void ReadingPane::Select(TextRange range)
{
    TextSelection selection = m_selection;
    selection.Select(range);
    SetSelection(selection);
    ScrollTo(range.begin);
    ScrollTo(range.end);
}

void ReadingPane::SelectAll()
{
    TextSelection selection = m_selection;
    selection.Select({0, Topic().Length()});
    SetSelection(selection);
    OfferSelection();
}

void ReadingPane::MoveCaret(std::size_t offset)
{
    m_caretShown = true;
    TextSelection selection = m_selection;
    selection.MoveTo(std::min(offset, Topic().Length()), false);
    SetSelection(selection);
    ScrollTo(m_selection.Caret());
}

void ReadingPane::Copy() const
{
    const QString text = SelectedText();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
    }
}

// For desktops on which the middle button pastes.
void ReadingPane::OfferSelection() const
{
    const QString text = SelectedText();
    if (!text.isEmpty() && QGuiApplication::clipboard()->supportsSelection()) {
        QGuiApplication::clipboard()->setText(text, QClipboard::Selection);
    }
}

std::size_t ReadingPane::OffsetAtPoint(const QPointF& point) const
{
    const QPointF inside = point - contentsRect().topLeft();
    const double columns = std::clamp(inside.x() / m_metrics.charWidth, 0.0, 1e9);
    const double rows = std::clamp(inside.y() / m_metrics.rowHeight, -1.0, 1e6);
    return OffsetAt(m_record.Runs(), Topic(),
                    {static_cast<int>(std::floor(rows)) + 1, static_cast<int>(std::lround(columns)) + 1});
}

QRectF ReadingPane::CharacterRect(std::size_t offset) const
{
    const std::optional<CellPlace> place = PlaceOf(m_record.Runs(), Topic(), offset);
    if (!place) {
        return {};
    }
    return QRectF((place->column - 1) * m_metrics.charWidth, (place->row - 1) * m_metrics.rowHeight,
                  m_metrics.charWidth, m_metrics.rowHeight)
        .translated(contentsRect().topLeft());
}

int ReadingPane::WholeRows() const
{
    return std::max(1, static_cast<int>(InnerHeight() / m_metrics.rowHeight));
}

void ReadingPane::ScrollTo(std::size_t offset)
{
    if (!CanScroll()) {
        return;
    }
    const int line = Topic().LineAt(offset);
    const int lastFirst = line - WholeRows() + 1;
    m_bar->setValue(std::clamp(m_bar->value(), std::min(lastFirst, line), line));
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
    const QRectF area = QRectF(seen).translated(-contentsRect().topLeft());
    PaintRuns(painter, m_record.Runs(), m_metrics, area);
    PaintSelection(painter, area);
    PaintCaret(painter);
}

void ReadingPane::PaintSelection(QPainter& painter, const QRectF& area) const
{
    const TextRange range = m_selection.Range();
    if (range.Empty()) {
        return;
    }
    const Colour text = ColourOf(palette().color(QPalette::HighlightedText));
    std::vector<Run> pieces = SelectedRuns(m_record.Runs(), Topic(), range);
    for (Run& piece : pieces) {
        piece.colour = text;
        painter.fillRect(QRectF((piece.firstColumn - 1) * m_metrics.charWidth,
                                (piece.row - 1) * m_metrics.rowHeight, TextWidth(piece.text),
                                m_metrics.rowHeight),
                         palette().color(QPalette::Highlight));
    }
    PaintRuns(painter, pieces, m_metrics, area);
}

void ReadingPane::PaintCaret(QPainter& painter) const
{
    if (!m_caretShown || !hasFocus()) {
        return;
    }
    QRectF cell = CharacterRect(m_selection.Caret());
    if (!cell.isEmpty()) {
        cell.translate(-contentsRect().topLeft());
        cell.moveLeft(std::round(cell.left())); // a whole pixel, for a sharp edge
        cell.setWidth(CaretWidth);
        painter.fillRect(cell, Qt::black);
    }
}

// The border also shows a keyboard user whether the text has the focus.
void ReadingPane::PaintBorder(QPainter& painter) const
{
    painter.setPen(hasFocus() ? palette().color(QPalette::Highlight) : QColor(Qt::gray));
    painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

bool ReadingPane::CanScroll() const
{
    return m_bar != nullptr && !m_bar->isHidden();
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
