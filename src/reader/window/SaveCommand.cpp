#include "reader/window/SaveCommand.h"

#include "base/FileSystem.h"
#include "base/Messages.h"
#include "base/Progress.h"
#include "base/StdSubs.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "book/BookWords.h"
#include "book/SaveBook.h"
#include "files/FileDialog.h"
#include "reader/settings/Settings.h"
#include "reader/window/BookCommands.h"
#include "reader/window/MainView.h"

#include <memory>
#include <string_view>
#include <vector>

namespace ls {

std::string ProposedName(const Book& book, const Seams& seams)
{
    const bool inProgramFolder = book.BookPath.starts_with(ProgramFolderPrefix);
    const bool hasFolder = book.BookPath.find(seams.paths.separator) != std::string::npos;
    if (book.OpenPath.empty() || (!inProgramFolder && !hasFolder)) {
        return NumberedName(seams.paths, book.BookPath);
    }
    // `OpenPath` has the real spelling of its folders. If relative, it refers to the current folder, but a
    // name typed into the form refers to `WorkDir`.
    if (!book.WorkDir.empty() && !IsAbsolute(seams.paths, book.OpenPath)) {
        return NumberedName(seams.paths, JoinPath(seams.paths, seams.files.CurrentFolder(), book.OpenPath));
    }
    return NumberedName(seams.paths, book.OpenPath);
}

void SaveCommand::SaveItem_Click()
{
    if (!MaySave() || !AskForName()) {
        return;
    }
    OfferType();
    const std::string path = m_dialog.ChosenFullPath;
    if (!IsFree(path) || !Write(path)) {
        return;
    }
    CloseBook(m_book);
    m_book.BookPath = path;
    m_seams.messages.MsgBox("File saved", Icon::Information);
    AddRecentFile(m_settings, path);
    SaveIniFile(m_settings, m_seams);
    m_commands.OpenSaved();
}

// Others may have changed a file that was opened shared; their changes would be missing from the copy.
bool SaveCommand::MaySave()
{
    if (m_book.TopicCount == 0) {
        m_seams.messages.MsgBox("I have nothing to save.", Icon::Exclamation);
        return false;
    }
    return m_book.BookPath.empty() || m_book.LockBook ||
           m_seams.messages.MsgBox(
               "You did not have the input file locked for editing.  It is best to save only if you are sure "
               "that no other editing was started on this file since you opened it.  Continue to save?",
               Icon::Warning, Buttons::OkCancel) == Reply::Ok;
}

bool SaveCommand::AskForName()
{
    m_dialog = FileDialog{};
    m_dialog.FileMode = "W";
    m_dialog.FileFormTitle = "Save the book as:";
    m_dialog.ShowSharing = false;
    m_dialog.DefaultFolder = m_book.WorkDir.empty() ? m_seams.files.CurrentFolder() : m_book.WorkDir;
    m_dialog.FilePattern = "*" + std::string(BookType);
    m_dialog.InitialFileName = ProposedName(m_book, m_seams);
    m_view.ShowFileForm();
    m_view.ShowExplainButton(!m_book.BookUrl.empty()); // "Save Info" may have changed the address
    return m_dialog.FileFormOK && !m_dialog.ChosenFile.empty() && !m_seams.end.Ended();
}

void SaveCommand::OfferType()
{
    if (NameOf(m_seams.paths, m_dialog.ChosenFile).find('.') != std::string::npos) {
        return;
    }
    if (m_seams.messages.MsgBox(
            "You did not specify a filetype as part of the name. Would you like me to add "
            "a type of .IDA?",
            Icon::Question, Buttons::YesNo) == Reply::Yes) {
        m_dialog.ChosenFile += BookType;
        m_dialog.ChosenFullPath += BookType;
    }
}

// A file that exists is not opened, because opening locks it for a moment and could keep others out.
bool SaveCommand::IsFree(const std::string& path)
{
    FileError error;
    if (m_seams.files.Exists(path)) {
        std::vector<FolderEntry> entries;
        const bool isFolder = m_seams.files.List(path, entries).Ok();
        error = isFolder ? MakeFileError(error::PathFileAccess) : FileError{};
    } else {
        std::unique_ptr<BookFile> file;
        error = m_seams.files.OpenForReading(path, Sharing::Shared, file);
    }
    if (error.Ok()) {
        m_seams.messages.MsgBox(
            "The output file already exists, so I cannot save your book with this filename.", Icon::Warning);
    } else if (error.number != error::FileNotFound) {
        m_seams.messages.MsgBox("Can't test for presence of output file" + DueTo(error), Icon::Warning);
    }
    return error.number == error::FileNotFound;
}

bool SaveCommand::Write(const std::string& path)
{
    const std::unique_ptr<Progress> progress = m_view.WatchSave(path);
    return SaveBook(m_book, m_seams, path, progress.get()) == WriteOutcome::Written;
}

} // namespace ls
