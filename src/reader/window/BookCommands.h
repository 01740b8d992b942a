#pragma once

#include "base/Seams.h"

#include <string>

namespace ls {

struct Book;
struct FileDialog;
struct Settings;
class MainView;
class Navigation;

/// The commands of the main window that open a book, begin a new one and leave.
///
/// When a fault ends the program, each command returns at once; the window then closes without asking.
class BookCommands
{
public:
    BookCommands(Book& book, Settings& settings, FileDialog& dialog, const Seams& seams, MainView& view,
                 Navigation& navigation)
        : m_book(book), m_settings(settings), m_dialog(dialog), m_seams(seams), m_view(view),
          m_navigation(navigation)
    {
    }

    /// Lets the user choose a file and opens it. If there are unsaved changes, asks first.
    void OpenItem_Click();

    /// Opens the book `BookPath` from the command line, at `StartTopic` if one was given.
    void OpenAtStart();

    /// Opens the file that the book in memory was just saved into (`BookPath`): locked for editing,
    /// unchanged, with its first topic shown. The file is in the recent files already.
    void OpenSaved();

    /// Shows the book in memory after its edits were recovered: the first topic that is not removed.
    void ShowRecovered();

    /// Forgets the open book, after asking.
    void NewItem_Click();

    /// Whether the program may end. Asks if there are unsaved changes.
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

/// The name of the open book in the recent files. Usually it is `BookPath`, unchanged.
///
/// If the settings file has a folder of its own, the program may next start in another current folder, where
/// a relative name would not be found. A relative name then becomes the full path of the opened file.
[[nodiscard]] std::string RecentFileName(const Book& book, const Settings& settings, const Seams& seams);

} // namespace ls
