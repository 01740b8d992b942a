// Saving a book: unedited and edited, it opens as what it was.

#include "World.h"
#include "book/BookLoader.h"
#include "book/SaveBook.h"

namespace ls::fuzz {

namespace {

struct Opened
{
    std::vector<std::string> topics; ///< name, text and logic of each
    std::vector<std::string> xrefs;
};

std::string Save(World& world, const Book& book, const std::string& path)
{
    Require(SaveBook(book, world.Get(), path) == WriteOutcome::Written, "a book that was read can be saved");
    return world.files[path];
}

// Brings every topic into memory, as the editors do. `behind` is what an edited topic gains.
Opened LoadAll(World& world, Book& book, const std::string& behind)
{
    Opened opened;
    for (int i = 1; i <= book.TopicCount; ++i) {
        std::string name = book.TopicNames(static_cast<std::size_t>(i));
        Count16 number = i;
        LoadTopicRec(book, world.Get(), name, number);
        const TopicRec& rec = book.TopicRecs(static_cast<std::size_t>(i));
        opened.topics.push_back(book.TopicNames(static_cast<std::size_t>(i)));
        opened.topics.push_back(rec.Text + (rec.Text.empty() ? "" : behind));
        opened.topics.push_back(rec.Logic + (rec.Logic.empty() ? "" : behind));
    }
    for (int i = 1; i <= book.XrefCount; ++i) {
        const XrefRec& xref = book.Xrefs(static_cast<std::size_t>(i));
        opened.xrefs.push_back(xref.FromTopic + ">" + xref.ToTopic + ":" + xref.Text);
    }
    return opened;
}

bool HeaderReadsBack(const BookHeader& header)
{
    BookHeader again;
    ParseBookHeader(HeaderLine(header), again);
    BookHeader written = header;
    written.BookVersion = again.BookVersion;
    return again == written;
}

} // namespace

void TestInput(Input& input)
{
    World world(input);
    Book book;
    if (!world.OpenBookOf(book, AsBook(input.Text())) || book.TopicCount == 0 || !HeaderReadsBack(book)) {
        return;
    }
    const std::string saved = Save(world, book, "/work/Saved.IDA");
    const Opened before = LoadAll(world, book, "");
    Book second;
    Require(world.OpenBookOf(second, saved, "/work/Saved.IDA"), "a saved book opens");
    RequireEqual(Save(world, second, "/work/Again.IDA"), saved, "saved again, a book is the same bytes");
    const Opened after = LoadAll(world, second, "");
    RequireEqual(after.topics, before.topics, "a saved book has the topics that it had");
    RequireEqual(after.xrefs, before.xrefs, "a saved book has the references that it had");
}

} // namespace ls::fuzz
