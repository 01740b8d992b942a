#include "reader/window/TopicCommands.h"

#include "authoring/TopicFlags.h"
#include "authoring/TopicTable.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "reader/window/MainView.h"
#include "reader/window/Navigation.h"

#include <utility>

namespace ls {

void TopicCommands::AddTopicItem_Click()
{
    if (m_book.IsPlainText()) {
        Refuse("You may not add a topic to a plain text file.");
        return;
    }
    const std::optional<std::string> name = AskForName();
    if (!name) {
        return;
    }
    if (!AddTopic(m_book, *name)) {
        ShowOverflow(m_seams.messages);
        return;
    }
    m_navigation.FillTopicList();
    m_navigation.GoToCurrentTopic();
    // After Cancel the topic stays too, with its first text.
    static_cast<void>(m_view.ShowTxEdForm());
    if (!m_seams.end.Ended()) {
        m_navigation.GoToCurrentTopic();
    }
}

// Nothing if the user gave no name, or one that a message refused.
std::optional<std::string> TopicCommands::AskForName()
{
    const std::string typed =
        m_seams.messages.InputBox("Topic Name:", std::string(AppTitle), {}).value_or(std::string());
    Unmapped unmapped;
    const std::optional<std::string> text = ToBook(typed, &unmapped);
    if (!text) {
        std::string character;
        AppendUtf8(character, unmapped.character);
        Refuse("A book cannot hold the character \"" + character + "\".");
        return std::nullopt;
    }
    std::string name = TopicNameFromText(*text);
    if (name.empty()) {
        return std::nullopt;
    }
    if (const std::string refusal = NameRefusal(m_book, name); !refusal.empty()) {
        Refuse(refusal);
        return std::nullopt;
    }
    return name;
}

void TopicCommands::Refuse(const std::string& message)
{
    m_seams.messages.MsgBox(message, Icon::Exclamation);
}

void TopicCommands::DelTopicItem_Click()
{
    if (m_book.TopicCount == 0) {
        m_seams.messages.MsgBox("There is nothing to edit.", Icon::Warning);
        return;
    }
    m_view.ShowDelTopicForm();
    if (!std::exchange(m_flags.TopicListStale, false) || m_seams.end.Ended()) {
        return;
    }
    DropRemovedTopic();
    m_navigation.FillTopicList();
}

// Runs before the list is refilled: a refilled list may select another topic of the same name.
void TopicCommands::DropRemovedTopic()
{
    const int current = m_book.CurrentTopicNo;
    const bool onShow = !m_book.CurrentTopicName.empty() && current > 0 && current <= m_book.TopicCount;
    if (onShow && m_book.TopicRecs(current).Deleted) {
        m_navigation.TopicList_Change();
        m_book.CurrentTopicNo = 0;
    }
}

void TopicCommands::ReorderItem_Click()
{
    m_flags.TopicsRearranged = false;
    m_view.ShowMoveTopicsForm();
    if (!m_flags.TopicsRearranged || m_seams.end.Ended()) {
        return;
    }
    const bool toContents =
        m_view.Alphabetic() &&
        m_seams.messages.MsgBox("The topics have been rearranged.  Do you want to display the book in "
                                "table-of-contents order now?  If not, click No to show the topics in "
                                "alphabetical order.",
                                Icon::Question, Buttons::YesNo) == Reply::Yes;
    if (toContents) {
        m_navigation.ContentsItem_Click();
    } else {
        m_navigation.FillTopicList();
    }
}

} // namespace ls
