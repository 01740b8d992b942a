#pragma once

#include "render/pane/TextSelection.h"

#include <QAccessibleWidget>

#include <string>

namespace ls {

class ReadingPane;

/// The reading pane as a screen reader meets it: a read-only text of the whole topic, whichever part of it is
/// printed, with its lines, its caret and its selection. Attributes tell of styles and headings: text of a
/// heading has "tag:h1;level:1" and so on.
class PaneAccessible : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit PaneAccessible(ReadingPane& pane);

    void* interface_cast(QAccessible::InterfaceType type) override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;

    void selection(int index, int* startOffset, int* endOffset) const override;
    [[nodiscard]] int selectionCount() const override;
    void addSelection(int startOffset, int endOffset) override;
    void removeSelection(int index) override;
    void setSelection(int index, int startOffset, int endOffset) override;
    [[nodiscard]] int cursorPosition() const override;
    void setCursorPosition(int position) override;
    [[nodiscard]] QString text(int startOffset, int endOffset) const override;
    QString textBeforeOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                             int* endOffset) const override;
    QString textAfterOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                            int* endOffset) const override;
    QString textAtOffset(int offset, QAccessible::TextBoundaryType boundary, int* startOffset,
                         int* endOffset) const override;
    [[nodiscard]] int characterCount() const override;
    [[nodiscard]] QRect characterRect(int offset) const override;
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int startIndex, int endIndex) override;
    QString attributes(int offset, int* startOffset, int* endOffset) const override;

private:
    QString LineAt(int offset, int away, int* startOffset, int* endOffset) const;

    ReadingPane& m_pane;
};

/// Lets the toolkit make a `PaneAccessible` for every pane. May be called again.
void InstallPaneAccessible();

/// Tells listeners that the pane has another text. Called only when there are some.
void TellTextChanged(ReadingPane& pane, const QString& before);

/// Tells listeners that the caret or the selection is not what it was before.
void TellSelectionChanged(ReadingPane& pane, const TextSelection& before);

} // namespace ls
