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

/// Says yes to whatever is asked, and keeps what was said as "icon: text".
class AgreeingMessages : public Messages
{
public:
    using Messages::Messages;

    std::string input; ///< what is typed into an input box; nothing takes what it proposes

    /// What was said since the last call, joined by " + "; questions left out.
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

/// A book with a reference, an advisor that leads to another topic's, and a block that is none.
[[nodiscard]] std::string DeskBook();

/// The files of some folders, with their contents.
[[nodiscard]] Disk FilesOf(MemoryFileSystem& files, const std::vector<std::string>& folders);

/// The whole program without its windows, on files in memory: "/work/Book.IDA", and settings in "/ini" that
/// remember "/work/Old.IDA".
struct Desk
{
    Desk();

    /// The book is opened with a lock, and its topic A is on show.
    void OpenBook();

    /// Opens another book, "/work/Long.IDA", whose topic A lies in several blocks of the file.
    void OpenLong();

    /// Opens the book, with the text of topic B edited and not saved.
    void OpenEdited();

    /// Picks that name in the file form and runs the Open command.
    void Open(const std::string& name);

    /// Picks that name in the file form and runs the Save command.
    void SaveAs(const std::string& name);

    /// What is on show, whether the edits are there, and whether the program goes on: "A|a, edited".
    [[nodiscard]] std::string State() const;

    /// The files that lie there now, with their contents.
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
    std::string shown; ///< what a row wants to be told besides: a dialogue's events, a list
};

/// What differs between two disks, by name: "Out.IDA whole" where it is as in `whole`, "cut" where it is the
/// beginning of that and ends within a line, "other" where it is something else; of a name that `whole` lacks
/// "kept" when it holds what some file held before, else "cut"; "gone".
[[nodiscard]] std::string Changes(const Disk& before, const Disk& after, const Disk& whole);

} // namespace ls::test
