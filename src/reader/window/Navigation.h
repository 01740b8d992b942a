#pragma once

#include "base/Count16.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "book/TopicHistory.h"
#include "render/text/ShowTopic.h"

#include <string>

namespace ls {

class MainView;

/// Chooses the topic that the main window shows: topic list, Go To, next, previous, back and forward.
class Navigation
{
public:
    Navigation(Book& book, const Seams& seams, MainView& view) : m_book(book), m_seams(seams), m_view(view) {}

    /// Refills the list in the order checked in the Index menu and selects the entry of `CurrentTopicName`.
    /// The pane does not change.
    void FillTopicList();

    void AlphaItem_Click() { ChangeOrder(true); }
    void ContentsItem_Click() { ChangeOrder(false); }

    /// Shows the selected topic, or the whole of a plain text file.
    void GoToButton_Click();

    /// Shows `CurrentTopicName` after the list was filled, as Go To does for its entry. A name that is
    /// missing from the list is looked up, so that the look-up's message names it. A removed topic counts as
    /// missing.
    void GoToCurrentTopic();

    void NextItem_Click();
    void PrevTopic_Click();

    /// Go back and forward in the order in which topics were shown, which is not that of the list. They do
    /// nothing at either end.
    void GoBackItem_Click() { ShowFromHistory(m_history.GoBack(m_book)); }
    void GoForwardItem_Click() { ShowFromHistory(m_history.GoForward(m_book)); }
    [[nodiscard]] bool CanGoBack() const { return m_history.TopicBefore(m_book) != 0; }
    [[nodiscard]] bool CanGoForward() const { return m_history.TopicAhead(m_book) != 0; }

    /// Call before another book is opened or begun.
    void ForgetHistory() { m_history.Clear(); }

    /// Runs the advisor for the topic on show, if it has a logic block in the file.
    void AdvisorButton_Click();

    /// Shows the references of the topic on show and goes to the chosen topic.
    /// If that is the topic on show, it is shown again, since its bare title differs from the bracketed one.
    void XRButton_Click();

    /// The user selected another entry. The pane stays empty until Go To.
    void TopicList_Change();

    /// Empties the pane, so that no topic is on show.
    void ClearDisplay();

    /// Shows the topic on show again from its first line, after it was edited.
    void ShowTopicAgain() { Show(std::string(m_book.CurrentTopicName), m_book.CurrentTopicNo); }

    /// Shows the topic on show again from its first line, at the pane's new width, without any message. If it
    /// cannot be read again, the pane does not change.
    void ShowAgain();

private:
    void ChangeOrder(bool alphabetic);
    void Show(const std::string& name, Count16 number);
    void GoToItem(int index);
    void ShowFromHistory(int number);

    Book& m_book;
    Seams m_seams;
    MainView& m_view;
    TopicHistory m_history;
    ShownTopic m_shown; // a member so that the next topic reuses its memory
};

} // namespace ls
