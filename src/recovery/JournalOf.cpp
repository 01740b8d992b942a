#include "recovery/JournalOf.h"

#include "base/FileSystem.h"
#include "book/Book.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

JournalBook BookOf(const Book& book, const Seams& seams)
{
    if (!book.File || book.OpenPath.empty()) {
        return {};
    }
    JournalBook of;
    const bool full = IsAbsolute(seams.paths, book.OpenPath);
    of.path = full ? book.OpenPath : JoinPath(seams.paths, seams.files.CurrentFolder(), book.OpenPath);
    of.locked = book.LockBook;
    if (!book.File->Size(of.size).Ok()) {
        of.size = 0; // no book has this size, so the edits are offered as a new book
    }
    return of;
}

// The table, each topic with its position in the file: topics may have been moved since the scan.
std::vector<JournalTopic> TopicsOf(const Book& book)
{
    std::vector<FilePos> inFile;
    for (int number = 1; number <= book.TopicCount; ++number) {
        if (const FilePos pos = book.TopicPos(number); pos != 0) {
            inFile.push_back(pos);
        }
    }
    std::sort(inFile.begin(), inFile.end());
    std::vector<JournalTopic> topics;
    topics.reserve(static_cast<std::size_t>(book.TopicCount));
    for (int number = 1; number <= book.TopicCount; ++number) {
        const FilePos pos = book.TopicPos(number);
        const auto place = std::lower_bound(inFile.begin(), inFile.end(), pos) - inFile.begin();
        topics.push_back({book.TopicNames(number), pos == 0 ? 0 : static_cast<int>(place) + 1,
                          book.TopicRecs(number).Deleted});
    }
    return topics;
}

std::vector<JournalRec> RecsOf(const Book& book)
{
    std::vector<JournalRec> recs;
    for (int number = 1; number <= book.TopicCount; ++number) {
        const TopicRec& rec = book.TopicRecs(number);
        if (!rec.Text.empty() || !rec.Logic.empty()) {
            recs.push_back({number, book.TopicNames(number), rec.Deleted, rec.Text, rec.Logic});
        }
    }
    return recs;
}

} // namespace

bool HasEdits(const Book& book, const RunningEdits& running)
{
    return !book.IsPlainText() && (book.BookChanged || !running.None());
}

Journal JournalOf(const Book& book, const RunningEdits& running, const Seams& seams)
{
    Journal journal;
    journal.book = BookOf(book, seams);
    journal.header = JournalHeader{book.BookAuthor, book.BookCopyright, book.BookUrl, book.BookPost};
    journal.topics = TopicsOf(book);
    journal.recs = RecsOf(book);
    journal.running = running;
    return journal;
}

} // namespace ls
