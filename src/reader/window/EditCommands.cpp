#include "reader/window/EditCommands.h"

#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "reader/window/MainView.h"
#include "reader/window/Navigation.h"

#include <utility>

namespace ls {

void EditCommands::EdTextItem_Click()
{
    if (m_book.TopicCount == 0) {
        RefuseToEdit();
        return;
    }
    if (!IsTopicOnShow(Icon::Warning)) {
        return;
    }
    const int number = m_book.CurrentTopicNo;
    TopicRec before = m_book.TopicRecs(number);
    if (!LoadTopicOnShow()) {
        return;
    }
    if (!m_view.ShowTxEdForm()) {
        m_book.TopicRecs(number) = std::move(before);
    }
    if (!m_seams.end.Ended()) {
        m_navigation.ShowTopicAgain();
    }
}

void EditCommands::AdviceEdItem_Click()
{
    if (m_book.IsPlainText()) {
        m_seams.messages.MsgBox(
            "To edit advice, you must be editing an idea file rather than a plain text file.",
            Icon::Exclamation);
        return;
    }
    if (m_book.TopicCount == 0) {
        m_seams.messages.MsgBox("There is no topic to edit.", Icon::Exclamation);
        return;
    }
    if (!IsTopicOnShow(Icon::Exclamation)) {
        return;
    }
    const int number = m_book.CurrentTopicNo;
    TopicRec before = m_book.TopicRecs(number);
    const bool loaded = LoadTopicOnShow() && LoadUntakenLogic();
    if (!loaded || !m_view.ShowLgEdForm()) {
        m_book.TopicRecs(number) = std::move(before);
    }
}

// False, after a message, if no topic is shown.
bool EditCommands::IsTopicOnShow(Icon icon)
{
    const bool shown = !m_book.CurrentTopicName.empty() && m_book.CurrentTopicNo != 0;
    if (!shown) {
        m_seams.messages.MsgBox(DisplayTopicFirst, icon);
    }
    return shown;
}

// Loads a logic block of the file that does not begin with "<IXML>" and "<LOGIC>"; the topic's record lacks
// it. Done replaces the file's block by the editor's, so the editor must begin with it. False after a
// message.
bool EditCommands::LoadUntakenLogic()
{
    const int index = m_book.CurrentTopicNo;
    if (!m_book.TopicRecs(index).Logic.empty() || m_book.TopicPos(index) == 0) {
        return true;
    }
    return LoadLogicFromFile(m_book, m_seams, m_book.CurrentTopicNo, m_book.TopicRecs(index).Logic);
}

// Reads the topic into memory if it is not there yet. False, after a message, if it cannot be read: the topic
// stays on show, unedited.
bool EditCommands::LoadTopicOnShow()
{
    const int index = m_book.CurrentTopicNo;
    const TopicRec& rec = m_book.TopicRecs(index);
    if (!rec.Text.empty() || !rec.Logic.empty() || m_book.TopicPos(index) == 0) {
        return true;
    }
    std::string name = m_book.CurrentTopicName;
    Count16 number = m_book.CurrentTopicNo;
    return LoadTopicRec(m_book, m_seams, name, number) && !m_seams.end.Ended();
}

// A plain text file has no header and is never saved, so anything entered would be lost.
void EditCommands::EditPropertiesOption_Click()
{
    if (m_book.IsPlainText()) {
        RefuseToEdit();
        return;
    }
    m_view.ShowInfoForm();
    if (!m_seams.end.Ended()) {
        m_view.ShowExplainButton(!m_book.BookUrl.empty());
    }
}

void EditCommands::RefuseToEdit()
{
    m_seams.messages.MsgBox("There is nothing to edit.", Icon::Warning);
}

} // namespace ls
