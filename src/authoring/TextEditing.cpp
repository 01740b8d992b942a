#include "authoring/TextEditing.h"

#include "authoring/SpecialLines.h"
#include "base/CodePage.h"
#include "base/Messages.h"
#include "base/ProgramEnd.h"
#include "base/Text.h"
#include "book/Book.h"

#include <utility>
#include <vector>

namespace ls {

std::string TextToEdit(const Book& book)
{
    return FromBook(book.TopicRecs(book.CurrentTopicNo).Text);
}

std::string WithCrLf(std::string_view text)
{
    std::string result;
    result.reserve(text.size() + text.size() / 16);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r' && text[i] != '\n') {
            result += text[i];
            continue;
        }
        result += LineEnd;
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
            ++i;
        }
    }
    return result;
}

void ShowUnmapped(const Seams& seams, const std::string& where, char32_t character)
{
    std::string text = where + " holds the character \"";
    AppendUtf8(text, character);
    text += "\" (" + CodeOf(character) + "), which a book cannot hold. Please replace it.";
    seams.messages.MsgBox(text, Icon::Warning);
}

DoneOutcome SaveTopicText(Book& book, const Seams& seams, const std::string& utf8)
{
    Unmapped unmapped;
    std::optional<std::string> text = ToBook(WithCrLf(utf8), &unmapped);
    if (!text) {
        ShowUnmapped(seams, "Line " + std::to_string(unmapped.line), unmapped.character);
        return {false, unmapped.line};
    }
    const std::vector<SpecialLine> special = FindSpecialLines(*text);
    if (!special.empty() && seams.messages.MsgBox(SpecialLinesQuestion(special), Icon::Question,
                                                  Buttons::OkCancel) != Reply::Ok) {
        return {false, special.front().line};
    }
    if (text->empty()) {
        text = LineEnd;
    }
    book.TopicRecs(book.CurrentTopicNo).Text = std::move(*text);
    book.BookChanged = true;
    return {true, 0};
}

bool MayDropText(bool changed, const Seams& seams)
{
    return !changed || seams.end.Ended() ||
           seams.messages.MsgBox("Close without keeping your changes?", Icon::Question, Buttons::OkCancel) ==
               Reply::Ok;
}

std::string ClosingTag(std::string_view openTag)
{
    return "</" + std::string(openTag.substr(1));
}

std::optional<std::string> SymbolToInsert(std::string_view symbol, const Seams& seams)
{
    if (symbol.empty()) {
        seams.messages.MsgBox("First pick a symbol from the list.", Icon::Exclamation);
        return std::nullopt;
    }
    if (symbol == "<") {
        return "&LT";
    }
    if (symbol == ">") {
        return "&GT";
    }
    return symbol == "&" ? "&AMP" : "";
}

} // namespace ls
