#include "authoring/LogicBlock.h"
#include "authoring/SpecialLines.h"
#include "authoring/TextEditing.h"
#include "base/CodePage.h"
#include "base/ProgramEnd.h"
#include "base/QuietMessages.h"
#include "base/Text.h"
#include "book/Book.h"
#include "book/BookLoader.h"
#include "recovery/ApplyJournal.h"

#include <algorithm>

namespace ls {

namespace {

using Notes = std::vector<std::string>;

// The text as a book holds it. Each character that a book cannot hold is noted once; `what` names its place.
std::string KeptText(std::string_view utf8, const std::string& what, Notes& notes)
{
    std::string kept;
    std::vector<std::string> told;
    for (std::size_t at = 0; at < utf8.size();) {
        std::string one;
        const char32_t character = NextUtf8(utf8, at);
        AppendUtf8(one, character);
        if (const std::optional<std::string> byte = ToBook(one)) {
            kept += *byte;
            continue;
        }
        const std::string code = CodeOf(character);
        kept += code;
        const std::string note = what + " held the character \"" + one + "\", which a book cannot hold; \"" +
                                 code + "\" stands there now.";
        if (std::find(told.begin(), told.end(), note) == told.end()) {
            told.push_back(note);
        }
    }
    notes.insert(notes.end(), told.begin(), told.end());
    return kept;
}

std::string OfTopic(const char* what, const std::string& name)
{
    return std::string(what) + " of the topic \"" + FromBook(WithoutBrackets(name)) + "\"";
}

bool IsTopicOf(const Book& book, int topic)
{
    return topic >= 1 && topic <= book.TopicCount;
}

// Loads the topic, as the editor's command does before it opens; otherwise a topic with an edited text would
// be saved without its logic, and the reverse. False if it cannot be read from its file.
bool BringIntoMemory(Book& book, const Seams& seams, const RunningText& running)
{
    const TopicRec& rec = book.TopicRecs(running.topic);
    if (!rec.Text.empty() || !rec.Logic.empty() || book.TopicPos(running.topic) == 0) {
        return true;
    }
    ProgramEnd end;
    QuietMessages messages(end);
    const Seams quiet = seams.With(messages, end);
    std::string name = running.name;
    Count16 number = running.topic;
    return LoadTopicRec(book, quiet, name, number);
}

void KeepText(Book& book, const RunningText& running, Notes& notes)
{
    const std::string what = OfTopic("The text", running.name);
    std::string text = KeptText(WithCrLf(running.utf8), what, notes);
    for (const SpecialLine& special : FindSpecialLines(text)) {
        notes.push_back("Line " + std::to_string(special.line) + " of the text of the topic \"" +
                        FromBook(WithoutBrackets(running.name)) + "\" " +
                        std::string(Consequence(special.meaning)) + " in the saved book.");
    }
    book.TopicRecs(running.topic).Text = text.empty() ? std::string(LineEnd) : text;
}

// Notes the comments of the old block that the editor cannot hold. The editor's Done asks about them.
void KeepLogic(Book& book, const RunningText& running, Notes& notes)
{
    TopicRec& rec = book.TopicRecs(running.topic);
    const std::string what = OfTopic("The logic", running.name);
    for (const LostPart& lost : ParseLogicBlock(rec.Logic).lost) {
        notes.push_back(what + ", line " + std::to_string(lost.line) + " before it was edited: " + lost.what);
    }
    rec.Logic = KeptText(running.utf8, what, notes);
}

void KeepProperties(Book& book, const Properties& typed, Notes& notes)
{
    book.BookAuthor = KeptText(typed.author, "The book's author", notes);
    book.BookCopyright = KeptText(typed.copyright, "The book's copyright", notes);
    book.BookUrl = KeptText(typed.webUrl, "The book's web site", notes);
    book.BookPost = typed.webPost ? "YES" : "";
    for (const std::string& misread : MisreadProperties(book)) {
        notes.push_back(misread);
    }
}

void KeepRemoval(Book& book, const RunningRemoval& removal, Notes& notes)
{
    book.TopicRecs(removal.topic).Deleted = removal.removed;
    const std::string name = "The topic \"" + FromBook(WithoutBrackets(removal.name)) + "\"";
    notes.push_back(removal.removed ? name + " was checked in Topic Deletion, and is removed now. The same "
                                             "form restores it."
                                    : name + " was unchecked in Topic Deletion, and is restored now.");
}

} // namespace

std::vector<std::string> KeepRunningEdits(Book& book, const Seams& seams, const RunningEdits& running)
{
    Notes notes;
    if (running.text && IsTopicOf(book, running.text->topic)) {
        // If it fails, the writer copies the logic from the file.
        static_cast<void>(BringIntoMemory(book, seams, *running.text));
        KeepText(book, *running.text, notes);
    }
    if (running.logic && IsTopicOf(book, running.logic->topic)) {
        if (BringIntoMemory(book, seams, *running.logic)) {
            KeepLogic(book, *running.logic, notes);
        } else {
            notes.push_back(OfTopic("The logic", running.logic->name) +
                            " that was typed is not in the book, as the topic cannot be read:\n" +
                            running.logic->utf8);
        }
    }
    if (running.properties) {
        KeepProperties(book, *running.properties, notes);
    }
    for (const RunningRemoval& removal : running.removals) {
        if (IsTopicOf(book, removal.topic)) {
            KeepRemoval(book, removal, notes);
        }
    }
    return notes;
}

} // namespace ls
