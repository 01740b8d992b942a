#include "reader/window/Navigation.h"

#include "base/Messages.h"
#include "base/QuietMessages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "reader/window/MainView.h"

#include <algorithm>

namespace ls {

namespace {

// Whether a name that is missing from the list belongs to a removed topic. A look-up would find that topic,
// whose text is still in the file, but it must not be shown.
bool IsRemoved(const Book& book, const std::string& name)
{
    const std::string title = WithoutBrackets(name);
    const auto end = book.TopicNames.begin() + book.TopicCount;
    return std::any_of(book.TopicNames.begin(), end,
                       [&title](const std::string& header) { return WithoutBrackets(header) == title; });
}

} // namespace

void Navigation::FillTopicList()
{
    m_view.SetTopicList(ls::FillTopicList(m_book, m_view.Alphabetic()));
}

void Navigation::ChangeOrder(bool alphabetic)
{
    m_view.CheckOrder(alphabetic);
    FillTopicList();
}

void Navigation::GoToButton_Click()
{
    if (!m_book.IsOpen()) {
        return;
    }
    if (m_book.IsPlainText()) {
        Show({}, m_book.CurrentTopicNo);
        return;
    }
    if (m_view.ItemCount() == 0) {
        m_seams.messages.MsgBox("There are no topics in this file.", Icon::Information);
        return;
    }
    const int selected = m_view.SelectedItem();
    if (selected < 0) {
        m_seams.messages.MsgBox("Select a topic before clicking Go.", Icon::Warning);
        return;
    }
    const TopicListItem item = m_view.Item(selected);
    m_book.CurrentTopicNo = item.itemData;
    Show(TitleOfItem(item.text, m_view.Alphabetic()), m_book.CurrentTopicNo);
}

void Navigation::GoToCurrentTopic()
{
    const bool missing = !m_book.IsPlainText() && !m_book.CurrentTopicName.empty() &&
                         m_view.ItemCount() > 0 && m_view.SelectedItem() < 0;
    if (!missing) {
        GoToButton_Click();
    } else if (IsRemoved(m_book, m_book.CurrentTopicName)) {
        ShowNotFound(m_seams, WithBrackets(m_book.CurrentTopicName));
        ClearDisplay();
    } else {
        Show(m_book.CurrentTopicName, 0);
    }
}

void Navigation::Show(const std::string& name, Count16 number)
{
    m_book.CurrentTopicName = name;
    m_book.CurrentTopicNo = number;
    switch (ShowTopic(m_book, m_seams, m_book.CurrentTopicName, m_book.CurrentTopicNo,
                      m_view.LineWidthChars(), m_shown)) {
    case ShowResult::Nothing:
        return;
    case ShowResult::Cleared:
        ClearDisplay();
        return;
    case ShowResult::Shown:
        break;
    }
    m_book.LogicPos = m_shown.logicPos;
    m_view.ShowLines(m_shown);
    if (!m_book.IsPlainText()) {
        m_view.SetDefault(DefaultButton::Done);
        m_history.Visit(m_book);
    }
}

void Navigation::NextItem_Click()
{
    const int selected = m_view.SelectedItem();
    if (selected == m_view.ItemCount() - 1) {
        m_seams.messages.MsgBox("There are no more topics in the list.", Icon::Information);
        return;
    }
    GoToItem(selected + 1);
}

void Navigation::PrevTopic_Click()
{
    const int selected = m_view.SelectedItem();
    if (selected <= 0) {
        m_seams.messages.MsgBox("You are at the first topic in the list.", Icon::Information);
        return;
    }
    GoToItem(selected - 1);
}

void Navigation::GoToItem(int index)
{
    m_view.SelectItem(index);
    TopicList_Change();
    GoToButton_Click();
}

// If the topic cannot be shown, a message says so and the history drops it, so that the topics beyond it stay
// reachable.
void Navigation::ShowFromHistory(int number)
{
    if (number == 0) {
        return;
    }
    m_book.CurrentTopicName = WithoutBrackets(m_book.TopicNames(number));
    m_book.CurrentTopicNo = number;
    FillTopicList();
    GoToCurrentTopic();
    if (m_book.CurrentTopicName.empty()) {
        m_history.DropCurrent();
    }
}

void Navigation::AdvisorButton_Click()
{
    if (m_book.File && m_book.LogicPos > 0 && !m_book.CurrentTopicName.empty()) {
        m_view.ShowAdvForm();
    }
}

void Navigation::XRButton_Click()
{
    const std::string before = m_book.CurrentTopicName;
    m_view.ShowXrefForm();
    if (!m_seams.end.Ended() && m_book.CurrentTopicName != before) {
        FillTopicList();
        GoToCurrentTopic();
    }
}

void Navigation::TopicList_Change()
{
    m_view.SetDefault(DefaultButton::GoTo);
    ClearDisplay();
}

void Navigation::ClearDisplay()
{
    m_view.ClearPane();
    m_book.CurrentTopicName.clear();
}

void Navigation::ShowAgain()
{
    const bool onShow =
        m_book.IsOpen() && (m_book.IsPlainText() ? m_book.File != nullptr : !m_book.CurrentTopicName.empty());
    if (!onShow) {
        return;
    }
    QuietMessages quiet(m_seams.end);
    const Seams silent = m_seams.With(quiet);
    std::string name = m_book.CurrentTopicName;
    Count16 number = m_book.CurrentTopicNo;
    if (ShowTopic(m_book, silent, name, number, m_view.LineWidthChars(), m_shown) == ShowResult::Shown) {
        m_book.LogicPos = m_shown.logicPos;
        m_view.ShowLines(m_shown);
    }
}

} // namespace ls
