#pragma once

#include "forms/CellMetrics.h"
#include "render/pane/TextSelection.h"
#include "render/text/RunList.h"
#include "render/text/TopicText.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QScrollBar;

namespace ls {

struct CellPlace;
struct DisplayLines;

/// The pane in which topics are read: black on white in a fixed-pitch font, whatever the desktop's colours
/// are.
///
/// Prints are recorded, and painting shows the record: only printing changes the pane's contents. The pane
/// never scrolls by itself. Wheel and keys move the scroll bar, and the listener of the bar prints anew.
///
/// Mouse and keys select text in the whole topic, printed or not. The caret is shown once a key has moved it;
/// the keys that scroll move it too.
///
/// Lengths are in device-independent pixels.
class ReadingPane : public QWidget, public TextSurface
{
    Q_OBJECT

public:
    explicit ReadingPane(QWidget* parent = nullptr);

    /// Sets the bar that wheel, arrow, page, Home and End keys move. While it is hidden they do nothing.
    void SetScrollBar(QScrollBar* bar);

    /// The width of "W" and of every other character.
    [[nodiscard]] double CharWidth() const { return m_metrics.charWidth; }

    [[nodiscard]] double RowHeight() const { return m_metrics.rowHeight; }

    /// In points.
    [[nodiscard]] double TypeSize() const { return m_typeSize; }

    /// Changes the character cell. The caller must then wrap and print the topic anew.
    void SetTypeSize(double points);

    /// Sets the topic whose lines are printed; nullptr for none. The caller keeps the lines, and calls this
    /// again when they change. Clears the selection and puts the caret at the start.
    void SetTopic(const DisplayLines* lines, float bookVersion);

    /// Runs `printAgain`, which prints the same topic in other lines, and selects the same characters again.
    void KeepSelection(const std::function<void()>& printAgain);

    /// The text of that topic, made at the first call.
    [[nodiscard]] const TopicText& Topic() const;

    [[nodiscard]] const TextSelection& Selection() const { return m_selection; }
    [[nodiscard]] QString SelectedText() const;

    /// Selects a part of the topic and scrolls to show its end.
    void Select(TextRange range);
    void SelectAll();

    /// Moves the caret and scrolls to it.
    void MoveCaret(std::size_t offset);

    /// Copies the selection to the clipboard. Without a selection the clipboard stays unchanged.
    void Copy() const;

    /// The place in the text that is nearest to a point of the widget.
    [[nodiscard]] std::size_t OffsetAtPoint(const QPointF& point) const;

    /// The cell of a character in the widget; empty if its line is not printed.
    [[nodiscard]] QRectF CharacterRect(std::size_t offset) const;

    /// Scrolls as little as needed to show a place in the text.
    void ScrollTo(std::size_t offset);

    /// The prints since the last `Clear`.
    [[nodiscard]] const std::vector<Run>& Runs() const { return m_record.Runs(); }

    void Clear() override;
    void SetBold(bool on) override { m_record.SetBold(on); }
    void SetItalic(bool on) override { m_record.SetItalic(on); }
    void SetUnderline(bool on) override { m_record.SetUnderline(on); }
    void SetColour(Colour colour) override { m_record.SetColour(colour); }
    void BeginLine(int displayLine) override { m_record.BeginLine(displayLine); }
    void Print(std::string_view text, bool endRow) override;

    /// The room for text, inside the border and its margin.
    [[nodiscard]] double InnerWidth() const override;
    [[nodiscard]] double InnerHeight() const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight(std::string_view text) const override;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// The user turned the wheel by a notch with Control held.
    void WheelZoomed(bool larger);
    void TopicChanged();
    void SelectionChanged();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    enum class Unit
    {
        Character,
        Word,
        Row
    };

    [[nodiscard]] bool CanScroll() const;
    void PaintBorder(QPainter& painter) const;
    void PaintSelection(QPainter& painter, const QRectF& area) const;
    void PaintCaret(QPainter& painter) const;

    bool MoveByKey(const QKeyEvent& event);
    bool ScrollByKey(const QKeyEvent& event);
    void TakeCaretAlong(int key);
    [[nodiscard]] TextRange UnitAtPointer() const;
    void BeginSelecting(Unit unit);
    void ExtendToPointer();
    void OfferSelection() const;
    void SetSelection(const TextSelection& selection);
    [[nodiscard]] int WholeRows() const;

    double m_typeSize;
    CellMetrics m_metrics;
    RunList m_record;
    QPointer<QScrollBar> m_bar;

    const DisplayLines* m_lines = nullptr;
    float m_bookVersion = 0;
    mutable std::optional<TopicText> m_topic;
    TextSelection m_selection;
    bool m_caretShown = false;
    bool m_selecting = false; ///< while the mouse is dragged
    Unit m_unit = Unit::Character;
    TextRange m_firstUnit;    ///< where the drag began
    QPointF m_pointer;        ///< last place of a press or drag
    QBasicTimer m_dragScroll; ///< runs while the mouse is dragged above or below the text
    QElapsedTimer m_sinceDoubleClick;
    int m_wheelTurned = 0; ///< with Control, since the last notch
};

} // namespace ls
