#pragma once

#include "base/Count16.h"
#include "base/ProgramEnd.h"
#include "base/Seams.h"
#include "book/Book.h"
#include "cli/Arguments.h"
#include "cli/CliEnvironment.h"
#include "cli/CliMessages.h"
#include "cli/ProgressLine.h"
#include "cli/Status.h"
#include "cli/WatchedFiles.h"

#include <functional>
#include <string>
#include <string_view>

namespace ls {

class JsonWriter;

/// What opening the book came to.
enum class Opening
{
    Done,     ///< its tables are filled, or it is shown as plain text
    Declined, ///< it is no book, and was not to be taken as plain text
    Failed,   ///< a message tells why
};

/// One run of a command: its arguments, the book, and the ways to report.
class CommandContext
{
public:
    CommandContext(const CommandSpec& command, const Arguments& arguments, CliEnvironment& environment);
    CommandContext(const CommandContext&) = delete;
    CommandContext& operator=(const CommandContext&) = delete;

    [[nodiscard]] const Arguments& Args() const { return *m_arguments; }
    [[nodiscard]] CliEnvironment& Env() const { return *m_environment; }
    [[nodiscard]] Book& TheBook() { return m_book; }
    [[nodiscard]] const WatchedFiles& Files() const { return m_files; }
    [[nodiscard]] const Seams& TheSeams() const { return m_seams; }
    [[nodiscard]] ProgressLine& TheProgress() { return m_progress; }
    [[nodiscard]] std::size_t MessageCount() const { return m_messages.All().size(); }
    [[nodiscard]] bool Json() const { return m_arguments->Has(JsonOption.name); }

    /// Opens the book that the first operand names, and scans it unless it is taken as plain text.
    [[nodiscard]] Opening OpenTheBook();

    /// The same for another one of several books; the one before it is closed.
    [[nodiscard]] Opening OpenTheBook(const std::string& path);

    /// Whether a topic is named at all; else reports the wrong usage. To be asked before the book is opened.
    [[nodiscard]] bool NamesTopic();

    /// The topic that the second operand or --number names, as the core's operations take it: a number that
    /// is 0 is to be looked up. In a plain text file both stay empty. Not `Done` after a report.
    [[nodiscard]] Status ChooseTopic(std::string& name, Count16& number);

    /// Reports a fault of the book or the command as a box would.
    Status Fail(const std::string& text, Icon icon = Icon::Exclamation);

    /// Reports wrong usage, and how to ask for help.
    Status WrongUsage(const std::string& text);

    /// Ends a command that came to nothing: in JSON with the messages alone, so that there is always
    /// something to parse.
    Status GiveUp();

    /// Ends a command whose book, or a line of it, does not fit into memory.
    [[nodiscard]] Status OutOfMemory();

    /// Writes an object with these members and the messages: always, or only when there are any.
    void WriteJson(const std::function<void(JsonWriter&)>& members, bool alwaysMessages = false);

    /// Writes a line of text for people; the text is UTF-8.
    void Line(std::string_view utf8);

    /// Writes book text as lines of the output; one of any length costs no memory.
    void Write(std::string_view bookText);

    /// Book text as UTF-8, fit for the output.
    [[nodiscard]] std::string Shown(std::string_view bookText) const;

    /// The status to end with: faults of files and of the program come before the command's own verdict. An
    /// error of a file that no message told of is reported.
    [[nodiscard]] Status Verdict(Status ofCommand);

private:
    void ReportUntoldError();

    const CommandSpec* m_command;
    const Arguments* m_arguments;
    CliEnvironment* m_environment;
    WatchedFiles m_files;
    ProgramEnd m_end;
    ProgressLine m_progress;
    CliMessages m_messages;
    Seams m_seams;
    Book m_book;
    bool m_jsonBegun = false;
};

} // namespace ls
