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

/// The result of opening the book.
enum class Opening
{
    Done,     ///< its tables are filled, or it is treated as plain text
    Declined, ///< it is no book, and plain text was declined
    Failed,   ///< a message says why
};

/// One run of a command: its arguments, the book, and the output.
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

    /// Opens the book of the first operand, and scans it unless it is treated as plain text.
    [[nodiscard]] Opening OpenTheBook();

    /// Closes the book that is open, if any, and opens this one.
    [[nodiscard]] Opening OpenTheBook(const std::string& path);

    /// Whether the command line names a topic; reports wrong usage if not. Call it before opening the book.
    [[nodiscard]] bool NamesTopic();

    /// The topic of the second operand or of --number, as the core's operations take it: number 0 means that
    /// the name is to be looked up. In a plain text file both stay empty. Any other status than `Done` means
    /// that a problem was reported.
    [[nodiscard]] Status ChooseTopic(std::string& name, Count16& number);

    /// Reports a fault of the book or the command, as a box would.
    Status Fail(const std::string& text, Icon icon = Icon::Exclamation);

    /// Reports wrong usage, with a hint on how to get help.
    Status WrongUsage(const std::string& text);

    /// Ends a failed command. In JSON it writes the messages alone, so that the output always parses.
    Status GiveUp();

    /// Ends a command whose book, or a line of it, does not fit into memory.
    [[nodiscard]] Status OutOfMemory();

    /// Writes an object with these members and the messages. If there are no messages, their member is left
    /// out, unless `alwaysMessages` is set.
    void WriteJson(const std::function<void(JsonWriter&)>& members, bool alwaysMessages = false);

    /// Writes a line for people; the text is UTF-8.
    void Line(std::string_view utf8);

    /// Writes book text as lines of the output. A line of any length costs no memory.
    void Write(std::string_view bookText);

    /// Book text as UTF-8, safe for the output.
    [[nodiscard]] std::string Shown(std::string_view bookText) const;

    /// The status to end with: faults of files and of the program win over the command's own status. Reports
    /// a file error that no message has named.
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
