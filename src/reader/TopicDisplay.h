#pragma once

#include "render/DisplayLines.h"

class QScrollBar;

namespace ls {

class ReadingPane;

/// The reading pane with its scroll bar: the lines of the topic on show, drawn from the bar's value on.
class TopicDisplay
{
public:
    TopicDisplay(ReadingPane& pane, QScrollBar& bar);

    /// Characters that fit across the pane.
    [[nodiscard]] int LineWidthChars() const;

    /// Takes the lines of a topic, in exchange for those of the last one, and shows them from the first on.
    void Show(DisplayLines& lines, float bookVersion);

    /// Draws from the line on that the scroll bar stands at.
    void VScroll1_Change();

    /// Empties the pane, hides the scroll bar and gives it its values at rest.
    void ClearDisplay();

    [[nodiscard]] const DisplayLines& Lines() const { return m_lines; }

private:
    void SetUpScrolling();
    void SetBar(int max, int largeChange);
    void Draw(int firstLine);

    ReadingPane& m_pane;
    QScrollBar& m_bar;
    DisplayLines m_lines;
    float m_bookVersion = 0;
    bool m_suppressScrollRedraw = false; ///< while the program itself moves the bar
};

} // namespace ls
