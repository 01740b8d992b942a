#pragma once

#include "render/text/DisplayLines.h"

#include <functional>

class QScrollBar;

namespace ls {

class ReadingPane;

/// The reading pane with its scroll bar. Draws the lines of the shown topic from the bar's value on.
class TopicDisplay
{
public:
    TopicDisplay(ReadingPane& pane, QScrollBar& bar);
    ~TopicDisplay();
    TopicDisplay(const TopicDisplay&) = delete;
    TopicDisplay& operator=(const TopicDisplay&) = delete;

    /// The number of characters that fit across the pane. There is a least number, so that an indent leaves
    /// room for words; with very large type the ends of rows are cut off.
    [[nodiscard]] int LineWidthChars() const;

    /// Takes the lines of a topic, gives back those of the last one, and shows them from the first line on.
    void Show(DisplayLines& lines, float bookVersion);

    /// Draws from the scroll bar's line on.
    void VScroll1_Change();

    /// Draws as many rows as the pane now holds, from the same line on.
    void PaneHeight_Change();

    /// Runs `showAgain`, which shows the topic in other lines, and selects the same text again.
    void KeepSelection(const std::function<void()>& showAgain);

    /// Like `KeepSelection`, and scrolls back to the text that was at the top.
    void KeepPlace(const std::function<void()>& showAgain);

    /// Empties the pane, hides the scroll bar and resets the bar's values.
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
