#pragma once

#include "render/CellMetrics.h"
#include "render/RunList.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QScrollBar;

namespace ls {

/// The pane in which topics are read: black on white in a fixed-pitch font, whatever the desktop's colours.
///
/// Prints are recorded, and painting only shows the record: what the pane shows changes by printing alone. It
/// never scrolls by itself. Wheel and keys move the scroll bar that it was given, and whoever listens to the
/// bar prints anew.
///
/// Lengths are device-independent pixels.
class ReadingPane : public QWidget, public TextSurface
{
    Q_OBJECT

public:
    explicit ReadingPane(QWidget* parent = nullptr);

    /// The bar that wheel, arrow, page, Home and End keys move. While it is hidden they do nothing.
    void SetScrollBar(QScrollBar* bar);

    /// The width of "W", and with it of every character.
    [[nodiscard]] double CharWidth() const { return m_metrics.charWidth; }

    /// The height of a row.
    [[nodiscard]] double RowHeight() const { return m_metrics.rowHeight; }

    /// What was printed since the last `Clear`.
    [[nodiscard]] const std::vector<Run>& Runs() const { return m_record.Runs(); }

    void Clear() override;
    void SetBold(bool on) override { m_record.SetBold(on); }
    void SetItalic(bool on) override { m_record.SetItalic(on); }
    void SetUnderline(bool on) override { m_record.SetUnderline(on); }
    void SetColour(Colour colour) override { m_record.SetColour(colour); }
    void BeginLine(int displayLine) override { m_record.BeginLine(displayLine); }
    void Print(std::string_view text, bool endRow) override;

    /// The room for text: inside the border and its margin.
    [[nodiscard]] double InnerWidth() const override;
    [[nodiscard]] double InnerHeight() const override;
    [[nodiscard]] double TextWidth(std::string_view text) const override;
    [[nodiscard]] double TextHeight(std::string_view text) const override;

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[nodiscard]] bool CanScroll() const;
    void PaintBorder(QPainter& painter) const;

    CellMetrics m_metrics;
    RunList m_record;
    QPointer<QScrollBar> m_bar;
};

} // namespace ls
