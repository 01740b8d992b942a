#pragma once

#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
struct FileDialog;
struct Settings;
class MainView;
class Navigation;

/// The commands of the main window that open a book, start over and leave.
///
/// Each returns at once when a fault has ended the program; the window then closes without asking.
class BookCommands
{
public:
    BookCommands(Book& book, Settings& settings, FileDialog& dialog, const Seams& seams, MainView& view,
                 Navigation& navigation)
        : m_book(book), m_settings(settings), m_dialog(dialog), m_seams(seams), m_view(view),
          m_navigation(navigation)
    {
    }

    /// Lets the user choose a file and opens it. Unsaved changes are asked about before anything is lost.
    void OpenItem_Click();

    /// Opens the book that the command line named in `BookPath`, at `StartTopic` when one was given.
    void OpenAtStart();

    /// Opens the file that the book in memory was just saved into, which `BookPath` names, in its place:
    /// locked for editing, nothing changed, the first topic on show. It is in the recent files already.
    void OpenSaved();

    /// Shows the book in memory, with edits that an earlier run left: its first topic that is not removed.
    void ShowRecovered();

    /// Forgets the open book, after asking.
    void NewItem_Click();

    /// Whether the program may end: asks when there are unsaved changes.
    [[nodiscard]] bool MayLeave();

private:
    [[nodiscard]] bool MayDropChanges();
    void AskForFile();
    void OpenChosenFile();
    bool OpenBookPath();
    void ShowOpenedBook();
    void ShowBook();
    void ShowScannedBook();
    void ShowPlainText();
    void ForgetBook();
    void ClearView();

    Book& m_book;
    Settings& m_settings;
    FileDialog& m_dialog;
    Seams m_seams;
    MainView& m_view;
    Navigation& m_navigation;
};

/// The name under which the open book enters the recent files: `BookPath` as it was given. But where the
/// settings file has a folder of its own, it serves runs from every current folder, so a relative name would
/// lead astray: then it is the full path of the opened file.
[[nodiscard]] std::string RecentFileName(const Book& book, const Settings& settings, const Seams& seams);

} // namespace ls
