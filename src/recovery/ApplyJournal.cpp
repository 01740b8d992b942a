#include "recovery/ApplyJournal.h"

#include "base/Count16.h"
#include "base/FileSystem.h"
#include "book/Book.h"

#include <algorithm>
#include <map>
#include <utility>

namespace ls {

namespace {

bool IsSameFile(const JournalBook& of, const Book& book, const Seams& seams)
{
    FilePos size = 0;
    return !of.path.empty() && book.File && book.File->Size(size).Ok() && size == of.size &&
           (of.path == book.OpenPath || seams.files.SameFile(of.path, book.OpenPath));
}

// Whether `topics` holds every topic of the file exactly once, under its name in the file.
bool HasTopicsOf(const std::vector<JournalTopic>& topics, const Book& book)
{
    Array1<char> found(book.TopicCount);
    int count = 0;
    for (const JournalTopic& topic : topics) {
        if (topic.fileNumber == 0) {
            continue;
        }
        const int number = topic.fileNumber;
        if (number < 1 || number > found.UpperBound() || found(number) != 0 ||
            book.TopicNames(number) != topic.name) {
            return false;
        }
        found(number) = 1;
        ++count;
    }
    return count == book.TopicCount;
}

bool IsInTable(const std::vector<JournalTopic>& topics, int number, const std::string& name)
{
    const auto index = static_cast<std::size_t>(number);
    return number >= 1 && index <= topics.size() && topics[index - 1].name == name;
}

bool IsInTable(const std::vector<JournalTopic>& topics, const std::optional<RunningText>& running)
{
    return !running || IsInTable(topics, running->topic, running->name);
}

void TakeHeader(const Journal& journal, Book& book)
{
    if (journal.header) {
        book.BookAuthor = journal.header->author;
        book.BookCopyright = journal.header->copyright;
        book.BookUrl = journal.header->url;
        book.BookPost = journal.header->post;
    }
}

void FinishBook(Book& book)
{
    book.CurrentTopicName.clear();
    book.CurrentTopicNo = 0;
    ++book.TopicOrder;
    book.BookChanged = true;
}

// The edited topics, by their numbers in the old table. Topics that the user was only typing in are included.
std::map<int, JournalRec> EditedTopics(const Journal& journal)
{
    std::map<int, JournalRec> edited;
    for (const JournalRec& rec : journal.recs) {
        edited.emplace(rec.topic, rec);
    }
    for (const std::optional<RunningText>* running : {&journal.running.text, &journal.running.logic}) {
        if (*running) {
            edited.emplace((*running)->topic, JournalRec{(*running)->topic, (*running)->name, false, {}, {}});
        }
    }
    return edited;
}

} // namespace

bool FitsBook(const Journal& journal, const Book& book, const Seams& seams)
{
    if (!journal.book || !journal.topics || book.IsPlainText() || !IsSameFile(*journal.book, book, seams) ||
        !HasTopicsOf(*journal.topics, book)) {
        return false;
    }
    const std::vector<JournalTopic>& topics = *journal.topics;
    return std::all_of(journal.recs.begin(), journal.recs.end(),
                       [&topics](const JournalRec& rec) { return IsInTable(topics, rec.topic, rec.name); }) &&
           std::all_of(journal.running.removals.begin(), journal.running.removals.end(),
                       [&topics](const RunningRemoval& removal) {
                           return IsInTable(topics, removal.topic, removal.name);
                       }) &&
           IsInTable(topics, journal.running.text) && IsInTable(topics, journal.running.logic);
}

RunningEdits ApplyJournal(const Journal& journal, Book& book)
{
    const std::vector<JournalTopic>& topics = *journal.topics;
    std::vector<FilePos> positions(topics.size(), 0);
    for (std::size_t i = 0; i < topics.size(); ++i) {
        if (topics[i].fileNumber != 0) {
            positions[i] = book.TopicPos(topics[i].fileNumber);
        }
    }
    book.TopicCount = static_cast<int>(topics.size());
    GrowTopicTables(book, book.TopicCount);
    for (std::size_t i = 0; i < topics.size(); ++i) {
        const int number = static_cast<int>(i) + 1;
        book.TopicNames(number) = topics[i].name;
        book.TopicPos(number) = positions[i];
        book.TopicRecs(number) = TopicRec{{}, {}, topics[i].deleted};
    }
    for (const JournalRec& rec : journal.recs) {
        TopicRec& to = book.TopicRecs(rec.topic);
        to.Text = rec.text;
        to.Logic = rec.logic;
    }
    TakeHeader(journal, book);
    FinishBook(book);
    return journal.running;
}

bool HasNewBookEdits(const Journal& journal)
{
    const RunningEdits& running = journal.running;
    if (!journal.recs.empty() || running.text || running.logic || running.properties) {
        return true;
    }
    const bool ofAFile = journal.book && !journal.book->path.empty();
    return !ofAFile && journal.header && *journal.header != JournalHeader{};
}

RunningEdits AsNewBook(const Journal& journal, Book& book)
{
    std::map<int, int> newNumbers;
    for (const auto& [number, rec] : EditedTopics(journal)) {
        const int index = static_cast<int>(newNumbers.size()) + 1; // no more than a book's table holds
        newNumbers[number] = index;
        GrowTopicTables(book, index);
        book.TopicNames(index) = rec.name;
        book.TopicPos(index) = 0;
        book.TopicRecs(index) = TopicRec{rec.text, rec.logic, rec.deleted};
    }
    book.TopicCount = static_cast<int>(newNumbers.size());
    TakeHeader(journal, book);
    FinishBook(book);
    RunningEdits running = journal.running;
    for (std::optional<RunningText>* typed : {&running.text, &running.logic}) {
        if (*typed) {
            (*typed)->topic = newNumbers[(*typed)->topic];
        }
    }
    running.removals.clear();
    for (RunningRemoval removal : journal.running.removals) {
        if (const auto found = newNumbers.find(removal.topic); found != newNumbers.end()) {
            removal.topic = found->second;
            running.removals.push_back(std::move(removal));
        }
    }
    return running;
}

} // namespace ls
