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

/// The bar below the reading pane that finds text in the topic: what is sought, how many places hold it, next
/// and previous. It finds while one types; Enter goes on, with Shift back, Escape closes it.
class FindBar : public QWidget
{
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);
    ~FindBar() override;

    /// The pane whose topic is searched.
    void SetPane(ReadingPane* pane);

    /// Shows the bar with the focus in its box. A selection within one row is taken over as what is sought.
    void Open();

    /// Hides the bar, if it is shown, and gives the focus to the pane, where the place found last stays
    /// selected.
    void Close();

    /// Selects the next place in the pane, or the one before. With nothing to seek, opens the bar.
    void FindNext() { Find(true); }
    void FindPrevious() { Find(false); }

Q_SIGNALS:
    /// The bar came or went: there is less or more room for the pane.
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
