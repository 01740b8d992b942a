#pragma once

#include "render/pane/TextSelection.h"

#include <QAccessibleWidget>

#include <string>

namespace ls {

class ReadingPane;

/// The reading pane for screen readers: a read-only text of the whole topic (printed or not) with lines,
/// caret and selection. Attributes give styles and headings: a heading has "tag:h1;level:1" and so on.
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

/// Makes the toolkit use a `PaneAccessible` for every pane. Further calls do nothing.
void InstallPaneAccessible();

/// Informs listeners that the pane's text changed. Called only if there are listeners.
void TellTextChanged(ReadingPane& pane, const QString& before);

/// Informs listeners that the caret or the selection changed.
void TellSelectionChanged(ReadingPane& pane, const TextSelection& before);

} // namespace ls
