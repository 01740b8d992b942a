#pragma once

#include "book/Book.h"
#include "book/BookLoader.h"
#include "files/FileDialog.h"
#include "files/FileFormRules.h"
#include "platform/SystemSeams.h"
#include "reader/settings/Settings.h"
#include "reader/window/BookCommands.h"
#include "reader/window/Navigation.h"
#include "reader/window/RecordingView.h"
#include "reader/window/SaveCommand.h"
#include "support/RecordingMessages.h"
#include "support/RecordingProcesses.h"

#include <memory>
#include <string>
#include <vector>

namespace ls::test {

/// The main window's rules on real files.
struct RealDesk
{
    explicit RealDesk(const std::string& iniDir) { settings.IniDir = iniDir; }

    /// Opens a book, locked, and edits its second topic. False if it cannot be opened.
    bool OpenEdited(const std::string& path)
    {
        book.BookPath = path;
        book.LockBook = true;
        if (!OpenBook(book, seams) || !ScanBook(book, seams)) {
            return false;
        }
        book.TopicRecs(2).Text = "edited\r\n";
        book.BookChanged = true;
        return true;
    }

    /// Saves with that name in the file form. Returns the boxes shown.
    std::vector<std::string> SaveAs(const std::string& path)
    {
        view.onFileForm = [this, path] { AcceptFileName(dialog, path, false, book.LockBook, seams); };
        save.SaveItem_Click();
        return messages.Take();
    }

    ProgramEnd end;
    std::unique_ptr<FileSystem> files = MakeFileSystem();
    RecordingMessages messages{end};
    RecordingProcesses processes;
    Seams seams{*files, messages, processes, end, NativePaths()};
    Book book;
    Settings settings;
    FileDialog dialog;
    RecordingView view;
    Navigation navigation{book, seams, view};
    BookCommands commands{book, settings, dialog, seams, view, navigation};
    SaveCommand save{book, settings, dialog, seams, view, commands};
};

} // namespace ls::test
