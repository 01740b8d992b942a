#pragma once

#include "render/text/DisplayLines.h"

#include <functional>

class QScrollBar;

namespace ls {

class ReadingPane;

/// The reading pane with its scroll bar: the lines of the topic on show, drawn from the bar's value on.
class TopicDisplay
{
public:
    TopicDisplay(ReadingPane& pane, QScrollBar& bar);
    ~TopicDisplay();
    TopicDisplay(const TopicDisplay&) = delete;
    TopicDisplay& operator=(const TopicDisplay&) = delete;

    /// Characters that fit across the pane. Never so few that a word has no room beside an indent: of the
    /// largest type on a screen of large dots the ends of the rows are cut off instead.
    [[nodiscard]] int LineWidthChars() const;

    /// Takes the lines of a topic, in exchange for those of the last one, and shows them from the first on.
    void Show(DisplayLines& lines, float bookVersion);

    /// Draws from the line on that the scroll bar stands at.
    void VScroll1_Change();

    /// Draws as many rows as the pane now holds, from the same line on.
    void PaneHeight_Change();

    /// Runs what shows the topic again in other lines; what was selected is selected again.
    void KeepSelection(const std::function<void()>& showAgain);

    /// The same, and scrolls back to the text that stood at the top.
    void KeepPlace(const std::function<void()>& showAgain);

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
