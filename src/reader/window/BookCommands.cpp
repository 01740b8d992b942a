#include "reader/window/BookCommands.h"

#include "base/FileSystem.h"
#include "base/Messages.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"
#include "book/LineEnds.h"
#include "files/FileDialog.h"
#include "files/FileFormRules.h"
#include "reader/settings/Settings.h"
#include "reader/window/MainView.h"
#include "reader/window/Navigation.h"

namespace ls {

std::string RecentFileName(const Book& book, const Settings& settings, const Seams& seams)
{
    if (settings.IniDir.empty() || IsAbsolute(seams.paths, book.BookPath) ||
        book.BookPath.starts_with(ProgramFolderPrefix)) {
        return book.BookPath;
    }
    if (IsAbsolute(seams.paths, book.OpenPath)) {
        return book.OpenPath;
    }
    return JoinPath(seams.paths, seams.files.CurrentFolder(), book.OpenPath);
}

void BookCommands::OpenItem_Click()
{
    if (!MayDropChanges()) {
        return;
    }
    AskForFile();
    if (m_dialog.FileFormOK && !m_dialog.ChosenFile.empty() && !m_seams.end.Ended()) {
        OpenChosenFile();
    }
}

// Opening drops the book in memory with its edits, so the user is asked first if there are unsaved ones.
bool BookCommands::MayDropChanges()
{
    return !m_book.BookChanged || m_seams.messages.MsgBox("Open another book without saving changes?",
                                                          Icon::Question, Buttons::OkCancel) == Reply::Ok;
}

void BookCommands::AskForFile()
{
    m_dialog = FileDialog{};
    m_dialog.FileMode = "R";
    m_dialog.FileFormTitle = "Select a book to open:";
    m_dialog.ShowSharing = true;
    m_dialog.DefaultFolder = m_book.WorkDir.empty() ? m_seams.files.CurrentFolder() : m_book.WorkDir;
    m_dialog.FilePattern = "*" + std::string(BookType);
    if (m_settings.RecentFileCount > 0) {
        m_dialog.InitialFileName = m_settings.RecentFiles[0];
    }
    m_view.ShowFileForm();
}

void BookCommands::OpenChosenFile()
{
    ForgetBook();
    m_navigation.ForgetHistory();
    m_book.BookPath = PathOfChosenBook(m_dialog, m_book.WorkDir);
    ClearView();
    if (OpenBookPath()) {
        ShowOpenedBook();
    }
}

void BookCommands::OpenAtStart()
{
    m_book.BookStartPos = 0;
    if (OpenBookPath()) {
        ShowOpenedBook();
    }
}

// False, with an empty `BookPath`, if no book is open afterwards. If the user declines the file after its
// header was read, the header is dropped too: it must not pass for that of a new book.
bool BookCommands::OpenBookPath()
{
    m_book.BookPath = OfferConvertedCopy(m_book, m_seams);
    if (!m_seams.end.Ended() && OpenBook(m_book, m_seams)) {
        return true;
    }
    ForgetBook();
    return false;
}

void BookCommands::ShowOpenedBook()
{
    m_view.ShowExplainButton(!m_book.BookUrl.empty());
    m_book.BookFileNo = 2;
    AddRecentFile(m_settings, RecentFileName(m_book, m_settings, m_seams));
    SaveIniFile(m_settings, m_seams);
    if (!m_seams.end.Ended()) {
        ShowBook();
    }
}

void BookCommands::OpenSaved()
{
    const std::string path = m_book.BookPath;
    ForgetBook();
    ClearView();
    m_book.BookPath = path;
    m_book.LockBook = true;
    if (!OpenBook(m_book, m_seams)) {
        ForgetBook();
        return;
    }
    m_view.ShowExplainButton(!m_book.BookUrl.empty());
    m_book.BookFileNo = 2;
    ShowBook();
}

void BookCommands::ShowRecovered()
{
    m_view.ShowExplainButton(!m_book.BookUrl.empty());
    m_view.ShowTopicControls(true);
    m_book.BookFileNo = 2;
    m_navigation.FillTopicList();
    for (int number = 1; number <= m_book.TopicCount; ++number) {
        if (!m_book.TopicRecs(number).Deleted) {
            m_book.CurrentTopicName = m_book.TopicNames(number);
            m_book.CurrentTopicNo = number;
            m_navigation.FillTopicList(); // selects it
            m_navigation.GoToCurrentTopic();
            return;
        }
    }
}

void BookCommands::ShowBook()
{
    if (m_book.IsPlainText()) {
        ShowPlainText();
    } else {
        ShowScannedBook();
    }
}

void BookCommands::ShowScannedBook()
{
    m_view.ShowTopicControls(true);
    std::unique_ptr<Progress> progress = m_view.WatchScan();
    const bool scanned = ScanBook(m_book, m_seams, progress.get());
    progress.reset();
    if (!scanned) {
        if (!m_seams.end.Ended()) {
            ClearView();
        }
        return;
    }
    m_book.CurrentTopicName = m_book.StartTopic.empty() ? m_book.TopicNames(1) : m_book.StartTopic;
    // The scan leaves its count here. With it the last of several topics with one name would be selected.
    m_book.CurrentTopicNo = 0;
    m_navigation.FillTopicList();
    m_navigation.GoToCurrentTopic();
}

void BookCommands::ShowPlainText()
{
    m_view.ShowTopicControls(false);
    m_book.CurrentTopicNo = 0;
    m_navigation.GoToButton_Click();
}

void BookCommands::NewItem_Click()
{
    if (m_seams.messages.MsgBox("Start over?", Icon::Question, Buttons::OkCancel) == Reply::Ok) {
        ForgetBook();
        m_navigation.ForgetHistory();
        ClearView();
    }
}

bool BookCommands::MayLeave()
{
    return m_seams.end.Ended() || !m_book.BookChanged ||
           m_seams.messages.MsgBox("Exit without saving changes?", Icon::Question, Buttons::OkCancel) ==
               Reply::Ok;
}

// Forgets the book: its file, its name and its edits.
void BookCommands::ForgetBook()
{
    CloseBook(m_book);
    ResetBook(m_book);
    m_book.BookPath.clear();
    m_book.BookChanged = false;
}

// Shows the window without a book. Brings back the controls that a plain text file hides.
void BookCommands::ClearView()
{
    m_navigation.ClearDisplay();
    m_view.SetTopicList({});
    m_view.ShowExplainButton(false);
    m_view.ShowTopicControls(true);
    m_view.SetDefault(DefaultButton::GoTo);
}

} // namespace ls
