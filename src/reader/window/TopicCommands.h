#pragma once

#include "base/Seams.h"

#include <optional>
#include <string>

namespace ls {

struct Book;
struct TopicFlags;
class MainView;
class Navigation;

/// The commands of the main window that change which topics a book has, and their order. They change the book
/// in memory; saving it makes the changes permanent.
class TopicCommands
{
public:
    TopicCommands(Book& book, TopicFlags& flags, const Seams& seams, MainView& view, Navigation& navigation)
        : m_book(book), m_flags(flags), m_seams(seams), m_view(view), m_navigation(navigation)
    {
    }

    /// Asks for a name, adds a topic at the end of the book, and opens the text editor on it.
    void AddTopicItem_Click();

    /// Lets the user remove and restore topics. If the topic on show was removed, the pane is emptied.
    void DelTopicItem_Click();

    /// Lets the user move topics. After a move the list is refilled even in alphabetic order, because its
    /// entries refer to topics by number.
    void ReorderItem_Click();

private:
    [[nodiscard]] std::optional<std::string> AskForName();
    void Refuse(const std::string& message);
    void DropRemovedTopic();

    Book& m_book;
    TopicFlags& m_flags;
    Seams m_seams;
    MainView& m_view;
    Navigation& m_navigation;
};

} // namespace ls
