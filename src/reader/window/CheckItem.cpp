#include "reader/window/CheckItem.h"

#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Progress.h"
#include "base/QuietMessages.h"
#include "base/StdSubs.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "check/CheckBook.h"
#include "reader/window/MainView.h"
#include "reader/window/Navigation.h"

#include <algorithm>
#include <optional>

namespace ls {

namespace {

// Passes the steps on and remembers whether the user cancelled.
class CancelWatch : public Progress
{
public:
    explicit CancelWatch(Progress* progress) : m_progress(progress) {}

    bool Step(std::int64_t done, std::int64_t total) override
    {
        m_cancelled = m_cancelled || (m_progress != nullptr && !m_progress->Step(done, total));
        return !m_cancelled;
    }
    [[nodiscard]] bool Cancelled() const { return m_cancelled; }

private:
    Progress* m_progress;
    bool m_cancelled = false;
};

// A second reader of the open file. Each read names its position, so both can share the file. The first error
// goes into `error`.
class SameBookFile : public BookFile
{
public:
    SameBookFile(BookFile& file, FileError& error) : m_file(&file), m_error(&error) {}

    FileError ReadAt(FilePos pos, char* buffer, std::size_t size, std::size_t& got) override
    {
        return Note(m_file->ReadAt(pos, buffer, size, got));
    }
    FileError Size(FilePos& size) override { return Note(m_file->Size(size)); }

private:
    FileError Note(const FileError& error)
    {
        if (m_error->Ok()) {
            *m_error = error;
        }
        return error;
    }

    BookFile* m_file;
    FileError* m_error;
};

// The book as it is in its file, without the changes made to its topics in memory. From now on errors of that
// file go into `error`.
void ScanAgain(const Book& book, const Seams& seams, Progress* progress, Book& fresh, FileError& error)
{
    ProgramEnd end; // a read error must not end the program here
    QuietMessages quiet(end);
    fresh.BookPath = book.BookPath;
    fresh.OpenPath = book.OpenPath;
    static_cast<BookHeader&>(fresh) = book;
    fresh.BookStartPos = book.BookStartPos;
    fresh.File = std::make_unique<SameBookFile>(*book.File, error);
    ScanBook(fresh, {seams.files, quiet, seams.processes, end, seams.paths}, progress);
}

std::string CountText(std::ptrdiff_t count, const std::string& what)
{
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

std::string Summary(const std::vector<Finding>& findings, const std::string& name, bool whole)
{
    if (findings.empty()) {
        return whole ? "Nothing was found in " + name + " that would surprise its author."
                     : "Nothing was found so far in " + name + ".";
    }
    const auto errors = std::count_if(findings.begin(), findings.end(),
                                      [](const Finding& f) { return f.severity == Severity::Error; });
    const auto warnings = static_cast<std::ptrdiff_t>(findings.size()) - errors;
    return CountText(errors, "error") + " and " + CountText(warnings, "warning") + " in " + name + ".";
}

// False, after a message, if there is no file to check.
bool IsCheckable(const Book& book, const Seams& seams)
{
    if (book.File != nullptr && !book.IsPlainText()) {
        return true;
    }
    const bool unsaved = book.TopicCount > 0 && !book.IsPlainText();
    seams.messages.MsgBox(unsaved ? "Please save the book first: the check reads its file."
                                  : "There is no book to check.",
                          Icon::Exclamation);
    return false;
}

} // namespace

CheckedBook CheckOpenBook(const Book& book, const Seams& seams, Progress* progress)
{
    CancelWatch watch(progress);
    FileError error;
    Book fresh;
    if (book.BookChanged) {
        ScanAgain(book, seams, &watch, fresh, error);
    }
    CheckedBook checked;
    // Half a table would give false findings.
    if (error.Ok()) {
        checked.findings = CheckBook(book.BookChanged ? fresh : book, seams, &watch, error);
    }
    if (!error.Ok()) {
        ShowCheckError(book, seams, error);
    }
    const bool whole = error.Ok() && !watch.Cancelled();
    checked.summary = Summary(checked.findings, FromPath(NameOf(seams.paths, book.BookPath)), whole);
    if (!whole) {
        checked.notes = watch.Cancelled() ? "The check was cancelled: this is what was found until then.\n"
                                          : "The file could not be read to its end.\n";
    }
    if (book.BookChanged) {
        checked.notes +=
            "Your changes that are not saved yet were not checked: the lines are those of the file.\n";
    }
    return checked;
}

void CheckItem_Click(Book& book, const Seams& seams, MainView& view, Navigation& navigation)
{
    if (!IsCheckable(book, seams)) {
        return;
    }
    CheckedBook checked;
    {
        const std::unique_ptr<Progress> progress = view.WatchCheck();
        checked = CheckOpenBook(book, seams, progress.get());
    }
    const std::optional<std::size_t> chosen = view.ShowCheckForm(checked);
    if (!chosen || seams.end.Ended()) {
        return;
    }
    const std::string& topic = checked.findings.at(*chosen).topic;
    if (topic.empty()) {
        seams.messages.MsgBox(
            "This is found in no topic: it stands before the first one, or behind the last.",
            Icon::Exclamation);
        return;
    }
    book.CurrentTopicName = ToBook(topic).value_or(std::string());
    navigation.FillTopicList();
    navigation.GoToCurrentTopic();
}

} // namespace ls
