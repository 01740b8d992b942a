#pragma once

#include "render/text/TopicText.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace Ui {
class FindBar;
}

namespace ls {

class ReadingPane;

/// The bar below the reading pane that finds text in the topic: a box for the text, the number of matches,
/// Next and Previous. It searches while the user types. Enter finds the next match, Shift+Enter the previous
/// one, Escape closes the bar.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);
    ~FindBar() override;

    /// Sets the pane whose topic is searched.
    void SetPane(ReadingPane* pane);

    /// Shows the bar with the focus in its box. A selection within one row is put into the box.
    void Open();

    /// Hides the bar and gives the focus to the pane. The last match stays selected.
    void Close();

    /// Selects the next match in the pane, or the previous one. If the box is empty, opens the bar.
    void FindNext() { Find(true); }
    void FindPrevious() { Find(false); }

Q_SIGNALS:
    /// The bar is shown or hidden, so the pane has less or more room.
    void ShownOrHidden();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void FindBox_Change();
    void Find(bool forward);
    void Recount();
    void ShowMatch(std::optional<std::size_t> match);
    void ShowCount();
    void SetShown(bool shown);

    std::unique_ptr<Ui::FindBar> m_ui;
    QPointer<ReadingPane> m_pane;
    std::vector<TextRange> m_matches;
};

} // namespace ls
