// The check of a book, and of a logic text that is being edited.

#include "World.h"
#include "base/LineCursor.h"
#include "check/CheckBook.h"

#include <algorithm>

namespace ls::fuzz {

namespace {

// The number of lines as an editor counts them: CR, CR LF and LF end a line.
int EditorLines(const std::string& text)
{
    int lines = 1;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool end =
            text[i] == '\n' || (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n'));
        lines += end ? 1 : 0;
    }
    return lines;
}

void RequireGood(const std::vector<Finding>& findings, int lines)
{
    Require(std::is_sorted(findings.begin(), findings.end(),
                           [](const Finding& a, const Finding& b) { return a.line < b.line; }),
            "findings stand in the order of their lines");
    for (const Finding& finding : findings) {
        Require(finding.line >= 1 && finding.line <= lines, "a finding is in a line that is there");
        Require(!finding.rule.empty() && !finding.text.empty(), "a finding has a rule and a text");
        RequireUtf8(finding.text + finding.topic + finding.file);
    }
}

} // namespace

void TestInput(Input& input)
{
    const std::string bytes = AsBook(input.Text());
    World world(input);
    Book book;
    if (!world.OpenBookOf(book, bytes)) {
        return;
    }
    world.messages.texts.clear();
    FileError error;
    const std::vector<Finding> findings = CheckBook(book, world.Get(), nullptr, error);
    Require(error.Ok(), "a book that can be read is checked to its end");
    RequireGood(findings, EditorLines(bytes));
    const std::size_t block = bytes.find("<IXML>");
    if (block != std::string::npos && book.TopicCount > 0) {
        const int topic = 1 + static_cast<int>(input.Choose(static_cast<std::size_t>(book.TopicCount)));
        const std::string text = bytes.substr(block);
        RequireGood(CheckLogicText(book, world.Get(), topic, text), EditorLines(text));
    }
    Require(world.messages.texts.empty(), "a check shows nothing");
    Require(!world.end.Ended(), "no fault of a book ends a check");
}

} // namespace ls::fuzz
