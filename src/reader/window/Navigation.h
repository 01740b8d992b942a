#pragma once

#include "base/Count16.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "book/TopicHistory.h"
#include "render/text/ShowTopic.h"

#include <string>

namespace ls {

class MainView;

/// Which topic the main window shows: the topic list, Go To, next and previous, and what clears the display.
class Navigation
{
public:
    Navigation(Book& book, const Seams& seams, MainView& view) : m_book(book), m_seams(seams), m_view(view) {}

    /// Refills the list in the order that the Index menu has checked, with the entry of `CurrentTopicName`
    /// selected. The display stays.
    void FillTopicList();

    void AlphaItem_Click() { ChangeOrder(true); }
    void ContentsItem_Click() { ChangeOrder(false); }

    /// Shows the selected topic, or the whole of a plain text file.
    void GoToButton_Click();

    /// Shows `CurrentTopicName` after the list was filled: its entry as if Go To were clicked; a name that is
    /// not in the list is looked up, so that the look-up's message names it. A removed topic counts as not
    /// there.
    void GoToCurrentTopic();

    void NextItem_Click();
    void PrevTopic_Click();

    /// Show the topic that was shown before the one on show, and go the way back: the order in which topics
    /// were shown, not that of the list. Nothing happens where there is none.
    void GoBackItem_Click() { ShowFromHistory(m_history.GoBack(m_book)); }
    void GoForwardItem_Click() { ShowFromHistory(m_history.GoForward(m_book)); }
    [[nodiscard]] bool CanGoBack() const { return m_history.TopicBehind(m_book) != 0; }
    [[nodiscard]] bool CanGoForward() const { return m_history.TopicAhead(m_book) != 0; }

    /// Another book is to be opened or begun.
    void ForgetHistory() { m_history.Clear(); }

    /// Runs the advisor on the topic on show, where it has a logic block in the file.
    void AdvisorButton_Click();

    /// Shows the references of the topic on show, and goes to the topic that was chosen there. One that is on
    /// show already is shown again: its bare title differs from the bracketed one.
    void XRButton_Click();

    /// The user chose another entry of the list: nothing is on show until Go To.
    void TopicList_Change();

    /// Empties the pane: no topic is on show.
    void ClearDisplay();

    /// Shows the topic on show again after it was edited, from its first line.
    void ShowTopicAgain() { Show(std::string(m_book.CurrentTopicName), m_book.CurrentTopicNo); }

    /// Shows the topic on show again at the pane's new width, from its first line, and without any message.
    /// What cannot be read again stays as it is on the pane.
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
    ShownTopic m_shown; // kept for the memory of its lines
};

} // namespace ls
