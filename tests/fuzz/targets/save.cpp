// Saving a book. Without edits it opens again as the same book. Otherwise it opens with the edited, added,
// removed and moved topics.

#include "World.h"
#include "authoring/SpecialLines.h"
#include "authoring/TextEditing.h"
#include "authoring/TopicTable.h"
#include "base/Text.h"
#include "book/BookLoader.h"
#include "book/SaveBook.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

using Strings = std::vector<std::string>;

constexpr std::string_view LineEnd = "\r\n";
constexpr const char* SomeLogic =
    "<IXML>\r\n<LOGIC>\r\nTARGET R\r\nR(1)=X(1)\r\n</LOGIC>\r\n<DEFINITIONS>\r\n"
    "<Q ID=X>x?</Q>\r\n</DEFINITIONS>\r\n</IXML>\r\n";

struct Opened
{
    Strings topics; ///< name, text and logic of each topic
    Strings xrefs;
};

std::string Save(World& world, const Book& book, const std::string& path)
{
    Require(SaveBook(book, world.Get(), path) == WriteOutcome::Written, "a book that was read can be saved");
    return world.files[path];
}

void Load(World& world, Book& book, int topic)
{
    std::string name = book.TopicNames(topic);
    Count16 number = topic;
    LoadTopicRec(book, world.Get(), name, number);
}

// Loads every topic into memory, as the editors do.
Opened LoadAll(World& world, Book& book)
{
    Opened opened;
    for (int number = 1; number <= book.TopicCount; ++number) {
        Load(world, book, number);
        opened.topics.insert(opened.topics.end(), {book.TopicNames(number), book.TopicRecs(number).Text,
                                                   book.TopicRecs(number).Logic});
    }
    for (int i = 1; i <= book.XrefCount; ++i) {
        const XrefRec& xref = book.Xrefs(i);
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

// A text in the editor's form, made of some of the input's lines. It holds nothing that Done would ask about.
std::string ChooseText(Input& input)
{
    const Strings lines = input.Lines();
    const std::size_t from = input.Choose(lines.size());
    std::string text;
    for (std::size_t i = from; i < lines.size() && i < from + 1 + input.Choose(6); ++i) {
        text += lines[i] + "\n";
    }
    text = WithCrLf(text);
    return FindSpecialLines(text).empty() ? text : "edited \r\n\r\n";
}

// A saved text as it is read again: without blanks at the ends of lines.
std::string ReadBack(const std::string& text)
{
    std::string trimmed;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find(LineEnd, at), text.size());
        const std::string_view line = std::string_view(text).substr(at, end - at);
        // saving keeps this blank, so that the line stays text
        const bool index = TrimRight(line) == "<INDEX>" && line.ends_with(' ');
        trimmed.append(TrimRight(line)).append(index ? " " : "").append(LineEnd);
        at = end + LineEnd.size();
    }
    return trimmed;
}

// A note that begins in the text and ends in the logic block may hide lines that look like topics. If one
// half is edited, these lines become topics, or the note extends over the topics after it.
bool HoldsTogether(const TopicRec& rec)
{
    const auto hides = [](const SpecialLine& line) { return line.meaning != LineMeaning::BeginsLogic; };
    const std::vector<SpecialLine> text = FindSpecialLines(rec.Text);
    const std::vector<SpecialLine> logic = FindSpecialLines(rec.Logic);
    return std::any_of(text.begin(), text.end(), hides) || std::any_of(logic.begin(), logic.end(), hides);
}

void EditTopic(World& world, Book& book, Input& input, int topic)
{
    TopicRec& rec = book.TopicRecs(topic);
    if (!book.TopicNames(topic).ends_with(']')) {
        return; // without the header line's bracket the topic is not found, so it cannot be edited
    }
    Load(world, book, topic);
    if (rec.Text.empty() && rec.Logic.empty()) {
        rec.Text = LineEnd; // as if the author emptied it
    }
    if (HoldsTogether(rec)) {
        return;
    }
    if (input.Choose(3) != 2) {
        rec.Text = ChooseText(input);
    }
    if (input.Choose(4) == 3) {
        rec.Logic = rec.Logic.empty() ? SomeLogic : "";
    }
}

// Whether a cross reference has a note without an end. Topics that are moved after it become part of the
// note.
bool HasEndlessNote(const Book& book, const std::string& bytes)
{
    for (int i = 1; i <= book.TopicCount; ++i) {
        const auto from = static_cast<std::size_t>(book.TopicPos(i) - 1);
        const bool last = i == book.TopicCount;
        const auto to = last ? bytes.size() : static_cast<std::size_t>(book.TopicPos(i + 1) - 1);
        const std::string topic = bytes.substr(from, to - from);
        for (const SpecialLine& line : FindSpecialLines(topic)) {
            if (line.meaning == LineMeaning::OpensEndless) {
                return true;
            }
        }
    }
    return false;
}

void ArrangeTopics(Book& book, Input& input)
{
    for (std::size_t added = input.Choose(3); added > 0; --added) {
        Require(AddTopic(book, "Added " + std::to_string(added)), "a topic can be added");
        book.TopicRecs(book.TopicCount).Text = ChooseText(input);
    }
    std::vector<RemovalChoice> removals;
    for (int i = 1; i <= book.TopicCount; ++i) {
        if (input.Choose(5) == 4) {
            removals.push_back({i, true});
        }
    }
    SetRemoved(book, removals);
    for (std::size_t moves = input.Choose(3); moves > 0; --moves) {
        const auto count = static_cast<std::size_t>(book.TopicCount);
        const int after = static_cast<int>(input.Choose(std::min<std::size_t>(count + 1, 256)));
        std::vector<int> selected;
        for (int i = 1; i <= book.TopicCount; ++i) {
            if (i != after && input.Choose(4) == 3) {
                selected.push_back(i);
            }
        }
        MoveTopics(book, selected, after);
    }
}

// The expected contents of the saved book. Edited topics gain a line end after their text and their logic.
Strings Expected(World& world, Book& book, const std::vector<TopicRec>& edits)
{
    Strings topics;
    for (int number = 1; number <= book.TopicCount; ++number) {
        const TopicRec& edited = edits[static_cast<std::size_t>(number) - 1];
        if (edited.Deleted) {
            continue;
        }
        topics.push_back(book.TopicNames(number));
        if (edited.Text.empty() && edited.Logic.empty()) {
            Load(world, book, number);
            topics.insert(topics.end(), {book.TopicRecs(number).Text, book.TopicRecs(number).Logic});
        } else {
            topics.push_back(edited.Text.empty() ? "" : ReadBack(edited.Text + "\r\n"));
            topics.push_back(edited.Logic.empty() ? "" : edited.Logic + "\r\n");
        }
    }
    return topics;
}

// An author's session: edits all or some topics, and adds, removes and moves others.
void TakeSession(World& world, Input& input, const std::string& bytes)
{
    Book book;
    Require(world.OpenBookOf(book, bytes, "/work/Session.IDA"), "a saved book opens");
    const bool every = input.Choose(2) == 0;
    for (int i = 1; i <= book.TopicCount; ++i) {
        if (every || input.Choose(3) == 2) {
            EditTopic(world, book, input, i);
        }
    }
    if (!HasEndlessNote(book, bytes)) {
        ArrangeTopics(book, input);
    }
    std::vector<TopicRec> edits(book.TopicRecs.begin(), book.TopicRecs.begin() + book.TopicCount);
    const std::string saved = Save(world, book, "/work/Edited.IDA");
    const Strings expected = Expected(world, book, edits);
    Book again;
    Require(world.OpenBookOf(again, saved, "/work/Edited.IDA"), "an edited book opens");
    RequireEqual(LoadAll(world, again).topics, expected, "an edited book has the texts that it was given");
    Book unedited;
    Require(world.OpenBookOf(unedited, saved, "/work/Edited.IDA"), "an edited book opens again");
    RequireEqual(Save(world, unedited, "/work/Thrice.IDA"), saved, "saved again, it is the same bytes");
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
    const Opened before = LoadAll(world, book);
    Book second;
    Require(world.OpenBookOf(second, saved, "/work/Saved.IDA"), "a saved book opens");
    RequireEqual(Save(world, second, "/work/Again.IDA"), saved, "saved again, a book is the same bytes");
    const Opened after = LoadAll(world, second);
    RequireEqual(after.topics, before.topics, "a saved book has the topics that it had");
    RequireEqual(after.xrefs, before.xrefs, "a saved book has the references that it had");
    TakeSession(world, input, saved);
}

} // namespace ls::fuzz
