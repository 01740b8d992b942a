#include "cli/CommandContext.h"

#include "base/CodePage.h"
#include "book/BookLoader.h"
#include "cli/Help.h"
#include "cli/JsonWriter.h"
#include "cli/TerminalText.h"

#include <algorithm>
#include <ostream>

namespace ls {

namespace {

constexpr std::size_t Piece =
    256 * 1024; // text is written in pieces; converting one needs several times as much
constexpr const char* NoBookQuestion = "The file you opened is not a Lodestar Book or Advice file.";

} // namespace

CommandContext::CommandContext(const CommandSpec& command, const Arguments& arguments,
                               CliEnvironment& environment)
    : m_command(&command), m_arguments(&arguments), m_environment(&environment), m_files(environment.files),
      m_progress(environment.err, environment.errIsTerminal),
      m_messages(m_end, environment.err, environment.errIsTerminal, m_progress), m_seams{
                                                                                     m_files, m_messages,
                                                                                     environment.processes,
                                                                                     m_end, environment.paths}
{
    if (arguments.Has(PlainOption.name)) {
        m_messages.AnswerTo(NoBookQuestion, Reply::Ok);
    }
}

Opening CommandContext::OpenTheBook()
{
    return OpenTheBook(m_arguments->Operands().front());
}

Opening CommandContext::OpenTheBook(const std::string& path)
{
    CloseBook(m_book);
    ResetBook(m_book);
    m_book.BookPath = path;
    if (!OpenBook(m_book, m_seams)) {
        const bool declined = !m_messages.All().empty() && m_messages.All().back().asked;
        const auto isPlain = [](const OptionSpec& option) { return option.name == PlainOption.name; };
        if (declined && std::any_of(m_command->options.begin(), m_command->options.end(), isPlain)) {
            m_environment->err << "lsbook: --plain takes it as plain text.\n";
        }
        return declined ? Opening::Declined : Opening::Failed;
    }
    if (m_book.IsPlainText()) {
        return Opening::Done;
    }
    const bool scanned = ScanBook(m_book, m_seams, &m_progress);
    m_progress.Erase();
    return scanned ? Opening::Done : Opening::Failed;
}

bool CommandContext::NamesTopic()
{
    const bool title = m_arguments->Operands().size() > 1;
    const bool number = m_arguments->Has(NumberOption.name);
    if (title && number) {
        WrongUsage("TITLE and --number exclude each other");
        return false;
    }
    if (title && m_arguments->Operands()[1].empty()) {
        WrongUsage("TITLE is empty");
        return false;
    }
    if (!title && !number && !m_arguments->Has(PlainOption.name)) {
        WrongUsage("TITLE is missing (or --number N)");
        return false;
    }
    return true;
}

Status CommandContext::ChooseTopic(std::string& name, Count16& number)
{
    const bool byTitle = m_arguments->Operands().size() > 1;
    const bool byNumber = m_arguments->Has(NumberOption.name);
    if (m_book.IsPlainText()) {
        return byTitle || byNumber ? Fail("A plain text file has no topics to choose from.") : Status::Done;
    }
    if (byNumber) {
        const int wanted = m_arguments->Number(NumberOption.name, 0);
        if (wanted > m_book.TopicCount) {
            return Fail("There is no topic number " + std::to_string(wanted) + ": the book has " +
                        std::to_string(m_book.TopicCount) +
                        (m_book.TopicCount == 1 ? " topic." : " topics."));
        }
        number = wanted;
        name = m_book.TopicNames(wanted);
        return Status::Done;
    }
    if (!byTitle) {
        return WrongUsage("TITLE is missing (or --number N)");
    }
    const std::string& title = m_arguments->Operands()[1];
    const std::optional<std::string> bookTitle = ToBook(title);
    if (!bookTitle) {
        // No book can hold such a character, so no topic has it in its name.
        return Fail("Topic [" + FromPath(title) + "] was not found.", Icon::Warning);
    }
    number = 0;
    name = *bookTitle;
    return Status::Done;
}

Status CommandContext::Fail(const std::string& text, Icon icon)
{
    m_messages.MsgBox(text, icon);
    return Status::Fault;
}

Status CommandContext::WrongUsage(const std::string& text)
{
    ReportWrongUsage(m_environment->err, m_command->name, text);
    return Status::Usage;
}

Status CommandContext::GiveUp()
{
    if (Json()) {
        WriteJson([](JsonWriter&) {}, true);
    }
    return Status::Fault;
}

Status CommandContext::OutOfMemory()
{
    Fail(MakeFileError(error::OutOfMemory).description, Icon::Critical);
    if (!m_jsonBegun) { // half-written JSON cannot be repaired
        GiveUp();
    }
    return Status::FileFault;
}

void CommandContext::WriteJson(const std::function<void(JsonWriter&)>& members, bool alwaysMessages)
{
    ReportUntoldError();
    m_jsonBegun = true;
    JsonWriter json(m_environment->out);
    json.BeginObject();
    members(json);
    if (alwaysMessages || !m_messages.All().empty()) {
        json.Key("messages");
        m_messages.Write(json);
    }
    json.EndObject();
}

void CommandContext::Line(std::string_view utf8)
{
    m_environment->out << LineForStream(utf8, m_environment->outIsTerminal) << '\n';
}

void CommandContext::Write(std::string_view bookText)
{
    while (!bookText.empty()) {
        std::size_t size = std::min(Piece, bookText.size());
        while (size < bookText.size() && bookText[size - 1] == '\r') {
            ++size; // keeps CR and LF in one piece
        }
        m_environment->out << Shown(WithNewlines(bookText.substr(0, size)));
        bookText.remove_prefix(size);
    }
}

std::string CommandContext::Shown(std::string_view bookText) const
{
    return ForStream(FromBook(bookText), m_environment->outIsTerminal);
}

Status CommandContext::Verdict(Status ofCommand)
{
    if (ofCommand == Status::Usage) {
        return ofCommand;
    }
    ReportUntoldError();
    if (!m_files.Error().Ok()) {
        return Status::FileFault;
    }
    if (m_end.Ended()) {
        return Status::ProgramEnd;
    }
    // After a critical box the output is cut or failed; a script must not take it as done.
    const auto critical = [](const CliMessages::Shown& box) { return box.icon == Icon::Critical; };
    const bool error = std::any_of(m_messages.All().begin(), m_messages.All().end(), critical);
    return ofCommand == Status::Done && error ? Status::Fault : ofCommand;
}

void CommandContext::ReportUntoldError()
{
    const FileError& error = m_files.Error();
    if (error.Ok()) {
        return;
    }
    const std::string tail = NumberAndDescription(error);
    const auto tells = [&tail](const CliMessages::Shown& box) {
        return box.text.ends_with(tail) || box.text.ends_with(tail + ".");
    };
    if (std::none_of(m_messages.All().begin(), m_messages.All().end(), tells)) {
        m_messages.MsgBox("Error reading <<" + FromPath(m_files.FailedPath()) + ">> with code " + tail,
                          Icon::Critical);
    }
}

} // namespace ls
