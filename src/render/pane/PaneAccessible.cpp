#include "render/pane/PaneAccessible.h"

#include "base/CodePage.h"
#include "forms/Shown.h"
#include "render/pane/ReadingPane.h"

#include <algorithm>

namespace ls {

namespace {

using Boundary = QAccessible::TextBoundaryType;

bool IsLine(Boundary boundary)
{
    return boundary == QAccessible::LineBoundary || boundary == QAccessible::ParagraphBoundary;
}

std::size_t Index(int offset)
{
    return static_cast<std::size_t>(std::max(offset, 0));
}

// The toolkit's offset -1 means the end of the text, -2 the caret.
std::size_t Place(const ReadingPane& pane, int offset)
{
    if (offset >= 0) {
        return Index(offset);
    }
    return offset == -2 ? pane.Selection().Caret() : pane.Topic().Length();
}

QAccessibleInterface* MakePaneAccessible(const QString& /*className*/, QObject* object)
{
    auto* pane = qobject_cast<ReadingPane*>(object);
    return pane == nullptr ? nullptr : new PaneAccessible(*pane);
}

QString AttributesOf(const TextStyle& style)
{
    QString attributes = style.bold ? QStringLiteral("font-weight:bold;") : QString();
    if (style.italic) {
        attributes += QStringLiteral("font-style:italic;");
    }
    if (style.underline) {
        attributes += QStringLiteral("text-underline-style:solid;text-underline-type:single;");
    }
    attributes += QStringLiteral("color:rgb(%1,%2,%3);")
                      .arg(style.colour.red)
                      .arg(style.colour.green)
                      .arg(style.colour.blue);
    if (const int level = HeadingLevel(style.colour); level > 0) {
        attributes += QStringLiteral("tag:h%1;level:%1;").arg(level);
    }
    return attributes;
}

} // namespace

PaneAccessible::PaneAccessible(ReadingPane& pane)
    : QAccessibleWidget(&pane, QAccessible::EditableText), m_pane(pane)
{
}

void* PaneAccessible::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::TextInterface) {
        return static_cast<QAccessibleTextInterface*>(this);
    }
    return QAccessibleWidget::interface_cast(type);
}

QAccessible::State PaneAccessible::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.readOnly = true;
    state.multiLine = true;
    state.selectableText = true;
    return state;
}

QString PaneAccessible::text(QAccessible::Text kind) const
{
    return QAccessibleWidget::text(kind);
}

void PaneAccessible::selection(int index, int* startOffset, int* endOffset) const
{
    const TextRange range = m_pane.Selection().Range();
    const bool there = index == 0 && !range.Empty();
    *startOffset = there ? static_cast<int>(range.begin) : 0;
    *endOffset = there ? static_cast<int>(range.end) : 0;
}

int PaneAccessible::selectionCount() const
{
    return m_pane.Selection().Range().Empty() ? 0 : 1;
}

void PaneAccessible::addSelection(int startOffset, int endOffset)
{
    setSelection(0, startOffset, endOffset);
}

void PaneAccessible::removeSelection(int index)
{
    if (index == 0) {
        m_pane.MoveCaret(m_pane.Selection().Caret());
    }
}

void PaneAccessible::setSelection(int index, int startOffset, int endOffset)
{
    if (index == 0) {
        const std::size_t length = m_pane.Topic().Length();
        m_pane.Select({std::min(Index(startOffset), length), std::min(Index(endOffset), length)});
    }
}

int PaneAccessible::cursorPosition() const
{
    return static_cast<int>(m_pane.Selection().Caret());
}

void PaneAccessible::setCursorPosition(int position)
{
    m_pane.MoveCaret(Index(position));
}

// An `endOffset` of -1 is the end of the text.
QString PaneAccessible::text(int startOffset, int endOffset) const
{
    const std::size_t end = endOffset < 0 ? m_pane.Topic().Length() : Index(endOffset);
    return ShownBookText(m_pane.Topic().Part({Index(startOffset), end}));
}

// The row of a character, or the row `away` rows from it, with its line end.
QString PaneAccessible::LineAt(int offset, int away, int* startOffset, int* endOffset) const
{
    const TopicText& topic = m_pane.Topic();
    const int row = topic.RowAt(Place(m_pane, offset)) + away;
    if (row < 1 || row > topic.RowCount()) {
        *startOffset = *endOffset = -1;
        return {};
    }
    TextRange range = topic.Row(row);
    range.end += row < topic.RowCount() ? 1 : 0;
    *startOffset = static_cast<int>(range.begin);
    *endOffset = static_cast<int>(range.end);
    return ShownBookText(topic.Part(range));
}

QString PaneAccessible::textBeforeOffset(int offset, Boundary boundary, int* startOffset,
                                         int* endOffset) const
{
    return IsLine(boundary)
               ? LineAt(offset, -1, startOffset, endOffset)
               : QAccessibleTextInterface::textBeforeOffset(offset, boundary, startOffset, endOffset);
}

QString PaneAccessible::textAfterOffset(int offset, Boundary boundary, int* startOffset, int* endOffset) const
{
    return IsLine(boundary)
               ? LineAt(offset, 1, startOffset, endOffset)
               : QAccessibleTextInterface::textAfterOffset(offset, boundary, startOffset, endOffset);
}

QString PaneAccessible::textAtOffset(int offset, Boundary boundary, int* startOffset, int* endOffset) const
{
    return IsLine(boundary)
               ? LineAt(offset, 0, startOffset, endOffset)
               : QAccessibleTextInterface::textAtOffset(offset, boundary, startOffset, endOffset);
}

int PaneAccessible::characterCount() const
{
    return static_cast<int>(m_pane.Topic().Length());
}

QRect PaneAccessible::characterRect(int offset) const
{
    const QRectF cell = m_pane.CharacterRect(Index(offset));
    if (cell.isEmpty()) {
        return {};
    }
    return {m_pane.mapToGlobal(cell.topLeft()).toPoint(), cell.size().toSize()};
}

int PaneAccessible::offsetAtPoint(const QPoint& point) const
{
    const QPoint inside = m_pane.mapFromGlobal(point);
    // The character under the point, not the nearest gap between characters.
    const QPointF cell = QPointF(inside) - QPointF(m_pane.CharWidth() / 2, 0);
    return m_pane.contentsRect().contains(inside) ? static_cast<int>(m_pane.OffsetAtPoint(cell)) : -1;
}

void PaneAccessible::scrollToSubstring(int startIndex, int endIndex)
{
    m_pane.ScrollTo(Index(endIndex));
    m_pane.ScrollTo(Index(startIndex));
}

QString PaneAccessible::attributes(int offset, int* startOffset, int* endOffset) const
{
    const StyledPart part = m_pane.Topic().StyleAt(Place(m_pane, offset));
    *startOffset = static_cast<int>(part.range.begin);
    *endOffset = static_cast<int>(part.range.end);
    return AttributesOf(part.style);
}

void InstallPaneAccessible()
{
    QAccessible::installFactory(MakePaneAccessible); // has no effect when repeated
}

void TellTextChanged(ReadingPane& pane, const QString& before)
{
    QAccessibleTextUpdateEvent event(&pane, 0, before, ShownBookText(pane.Topic().Text()));
    QAccessible::updateAccessibility(&event);
}

void TellSelectionChanged(ReadingPane& pane, const TextSelection& before)
{
    if (!QAccessible::isActive()) {
        return;
    }
    const TextRange range = pane.Selection().Range();
    const auto caret = static_cast<int>(pane.Selection().Caret());
    if (!range.Empty() || !before.Range().Empty()) {
        QAccessibleTextSelectionEvent event(&pane, static_cast<int>(range.begin),
                                            static_cast<int>(range.end));
        event.setCursorPosition(caret);
        QAccessible::updateAccessibility(&event);
    }
    if (pane.Selection().Caret() != before.Caret()) {
        QAccessibleTextCursorEvent event(&pane, caret);
        QAccessible::updateAccessibility(&event);
    }
}

} // namespace ls
