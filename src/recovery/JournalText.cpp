#include "recovery/JournalText.h"

#include "recovery/JournalSections.h"

namespace ls {

namespace {

std::int64_t FromBool(bool value)
{
    return value ? 1 : 0;
}

// Writes sections one after the other and counts them for the last one.
class Writer
{
public:
    void Put(std::string_view kind, const JournalTexts& texts)
    {
        PutJournalSection(m_bytes, kind, texts);
        ++m_count;
    }

    void PutBook(const JournalBook& book, std::int64_t written)
    {
        Put("BOOK", JournalTexts().Put(written).Put(book.path).Put(book.size).Put(FromBool(book.locked)));
    }

    void PutHeader(const JournalHeader& header)
    {
        Put("HEADER",
            JournalTexts().Put(header.author).Put(header.copyright).Put(header.url).Put(header.post));
    }

    void PutTable(const std::vector<JournalTopic>& topics)
    {
        JournalTexts texts;
        for (const JournalTopic& topic : topics) {
            texts.Put(topic.name).Put(topic.fileNumber).Put(FromBool(topic.deleted));
        }
        Put("TABLE", texts);
    }

    void PutRec(const JournalRec& rec)
    {
        Put("TOPIC", JournalTexts()
                         .Put(rec.topic)
                         .Put(rec.name)
                         .Put(FromBool(rec.deleted))
                         .Put(rec.text)
                         .Put(rec.logic));
    }

    void PutRunning(std::string_view kind, const RunningText& running)
    {
        Put(kind, JournalTexts().Put(running.topic).Put(running.name).Put(running.utf8));
    }

    void PutProperties(const Properties& typed)
    {
        Put("TYPINGHEADER", JournalTexts()
                                .Put(typed.author)
                                .Put(typed.copyright)
                                .Put(typed.webUrl)
                                .Put(FromBool(typed.webPost)));
    }

    void PutRemovals(const std::vector<RunningRemoval>& removals)
    {
        JournalTexts texts;
        for (const RunningRemoval& removal : removals) {
            texts.Put(removal.topic).Put(removal.name).Put(FromBool(removal.removed));
        }
        Put("TYPINGREMOVALS", texts);
    }

    [[nodiscard]] const std::string& Bytes() const { return m_bytes; }

    [[nodiscard]] std::string Finish()
    {
        Put("END", JournalTexts().Put(m_count));
        return std::move(m_bytes);
    }

private:
    std::string m_bytes = std::string(JournalMagic) + std::to_string(JournalVersion) + '\n';
    std::int64_t m_count = 0;
};

void PutHead(const Journal& journal, Writer& writer)
{
    if (journal.book) {
        writer.PutBook(*journal.book, journal.written);
    }
}

} // namespace

std::string JournalHead(const Journal& journal)
{
    Writer writer;
    PutHead(journal, writer);
    return writer.Bytes();
}

std::string JournalText(const Journal& journal)
{
    Writer writer;
    PutHead(journal, writer);
    if (journal.header) {
        writer.PutHeader(*journal.header);
    }
    if (journal.topics) {
        writer.PutTable(*journal.topics);
    }
    for (const JournalRec& rec : journal.recs) {
        writer.PutRec(rec);
    }
    if (journal.running.text) {
        writer.PutRunning("TYPING", *journal.running.text);
    }
    if (journal.running.logic) {
        writer.PutRunning("TYPINGLOGIC", *journal.running.logic);
    }
    if (journal.running.properties) {
        writer.PutProperties(*journal.running.properties);
    }
    if (!journal.running.removals.empty()) {
        writer.PutRemovals(journal.running.removals);
    }
    return writer.Finish();
}

} // namespace ls
