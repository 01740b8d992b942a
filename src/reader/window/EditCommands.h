#pragma once

#include "base/Messages.h"
#include "base/Seams.h"

namespace ls {

struct Book;
class MainView;
class Navigation;

/// The commands of the main window that edit the text of the topic on show and the properties of the book.
class EditCommands
{
public:
    EditCommands(Book& book, const Seams& seams, MainView& view, Navigation& navigation)
        : m_book(book), m_seams(seams), m_view(view), m_navigation(navigation)
    {
    }

    /// Lets the author edit the text of the topic on show, then shows the topic again. Cancel restores the
    /// topic, and whether it counts as edited.
    void EdTextItem_Click();

    /// Lets the author edit the logic block of the topic on show. Cancel restores the topic as above.
    void AdviceEdItem_Click();

    /// Lets the author edit the header fields. Works for a new book without topics too.
    void EditPropertiesOption_Click();

private:
    [[nodiscard]] bool IsTopicOnShow(Icon icon);
    [[nodiscard]] bool LoadTopicOnShow();
    [[nodiscard]] bool LoadUntakenLogic();
    void RefuseToEdit();

    Book& m_book;
    Seams m_seams;
    MainView& m_view;
    Navigation& m_navigation;
};

} // namespace ls
