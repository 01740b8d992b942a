#pragma once

#include "files/FileFormRules.h"
#include "reader/window/BookCommands.h"
#include "reader/window/EditCommands.h"
#include "reader/window/Global.h"
#include "reader/window/Navigation.h"
#include "reader/window/RecordingView.h"
#include "reader/window/SaveCommand.h"
#include "support/MemoryFileSystem.h"
#include "support/RecordingMessages.h"
#include "support/RecordingPrinter.h"
#include "support/RecordingProcesses.h"
#include "support/RecordingRegistry.h"

#include <map>
#include <string>
#include <vector>

namespace ls::test {

/// Answers yes to every question, and records messages as "icon: text".
class AgreeingMessages : public Messages
{
public:
    using Messages::Messages;

    std::string input; ///< the text typed into input boxes; if empty, the proposed text stays

    /// The messages since the last call, joined by " + ", without questions.
    std::string Take();

protected:
    Reply ShowBox(const std::string& text, Icon icon, Buttons buttons, const std::string& title) override;
    std::optional<std::string> ShowInputBox(const std::string& prompt, const std::string& title,
                                            const std::string& initial) override;

private:
    std::string m_told;
};

/// Names and contents of files.
using Disk = std::map<std::string, std::string>;

/// A book with a reference, an advisor that leads to another topic's advisor, and an invalid logic block.
[[nodiscard]] std::string DeskBook();

/// The files of some folders, with their contents.
[[nodiscard]] Disk FilesOf(MemoryFileSystem& files, const std::vector<std::string>& folders);

/// The whole program without its windows, on files in memory. Its book is "/work/Book.IDA". Its settings in
/// "/ini" list "/work/Old.IDA".
struct Desk
{
    Desk();

    /// Opens the book with a lock and shows its topic A.
    void OpenBook();

    /// Opens another book, "/work/Long.IDA", whose topic A fills several blocks of the file.
    void OpenLong();

    /// Opens the book and edits the text of topic B, without saving.
    void OpenEdited();

    /// Picks that name in the file form and runs the Open command.
    void Open(const std::string& name);

    /// Picks that name in the file form and runs the Save command.
    void SaveAs(const std::string& name);

    /// The shown topic and its lines, whether there are edits, and whether the program ends: "A|a, edited".
    [[nodiscard]] std::string State() const;

    /// The files that exist now, with their contents.
    [[nodiscard]] Disk Files();

    ProgramEnd end;
    MemoryFileSystem files;
    AgreeingMessages messages{end};
    RecordingProcesses processes;
    RecordingRegistry registry;
    RecordingPrinter printer;
    Seams seams{files, messages, processes, end, UnixPaths};
    Global global;
    Book& book = global.book;
    RecordingView view;
    Navigation navigation{book, seams, view};
    BookCommands commands{book, global.settings, global.fileDialog, seams, view, navigation};
    SaveCommand save{book, global.settings, global.fileDialog, seams, view, commands};
    EditCommands edit{book, seams, view, navigation};
    std::string shown; ///< more state that a row compares: a dialogue's events, a list
};

/// The files that differ between two disks, each with a word: "Out.IDA whole, ...". `whole` is the disk after
/// a run without errors. For a file that is in `whole`: "whole" if equal, "cut" if it is only a beginning
/// that ends within a line, else "other". For any other file: "kept" if some file had this content before,
/// else "cut". A removed file is "gone".
[[nodiscard]] std::string Changes(const Disk& before, const Disk& after, const Disk& whole);

} // namespace ls::test
