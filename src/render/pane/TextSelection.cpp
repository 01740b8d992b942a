#include "render/pane/TextSelection.h"

#include "base/Text.h"

#include <algorithm>

namespace ls {

namespace {

enum class Kind
{
    RowEnd,
    Blank,
    Letter,
    Sign
};

bool IsLetterOrDigit(char c)
{
    const auto byte = static_cast<unsigned char>(c);
    const bool digit = c >= '0' && c <= '9';
    const bool capital = (c >= 'A' && c <= 'Z') || (byte >= 0xC0 && byte != 0xD7 && byte != 0xF7);
    constexpr std::string_view Others = "\x83\x8A\x8C\x8E\x9A\x9C\x9E\x9F\xAA\xB5\xBA";
    return digit || capital || (c >= 'a' && c <= 'z') || c == '_' || Others.find(c) != std::string_view::npos;
}

Kind KindOf(char c)
{
    if (c == '\n') {
        return Kind::RowEnd;
    }
    if (c == ' ' || c == '\t') {
        return Kind::Blank;
    }
    return IsLetterOrDigit(c) ? Kind::Letter : Kind::Sign;
}

bool IsGap(char c)
{
    const Kind kind = KindOf(c);
    return kind == Kind::Blank || kind == Kind::RowEnd;
}

} // namespace

TextRange WordAt(std::string_view text, std::size_t offset)
{
    std::size_t at = std::min(offset, text.size());
    const bool atRowEnd = at == text.size() || text[at] == '\n';
    if (atRowEnd) {
        if (at == 0 || text[at - 1] == '\n') {
            return {at, at};
        }
        --at;
    }
    const Kind kind = KindOf(text[at]);
    TextRange word{at, at + 1};
    while (word.begin > 0 && KindOf(text[word.begin - 1]) == kind) {
        --word.begin;
    }
    while (word.end < text.size() && KindOf(text[word.end]) == kind) {
        ++word.end;
    }
    return word;
}

std::size_t NextWord(std::string_view text, std::size_t offset)
{
    std::size_t at = std::min(offset, text.size());
    if (at < text.size() && !IsGap(text[at])) {
        at = WordAt(text, at).end;
    }
    while (at < text.size() && IsGap(text[at])) {
        ++at;
    }
    return at;
}

std::size_t PreviousWord(std::string_view text, std::size_t offset)
{
    std::size_t at = std::min(offset, text.size());
    while (at > 0 && IsGap(text[at - 1])) {
        --at;
    }
    return at == 0 ? 0 : WordAt(text, at - 1).begin;
}

TextRange TextSelection::Range() const
{
    return {std::min(m_anchor, m_caret), std::max(m_anchor, m_caret)};
}

void TextSelection::MoveTo(std::size_t offset, bool extend)
{
    m_column.reset();
    m_caret = offset;
    if (!extend) {
        m_anchor = offset;
    }
}

void TextSelection::Select(TextRange range)
{
    MoveTo(range.begin, false);
    MoveTo(range.end, true);
}

void TextSelection::SelectBetween(TextRange first, TextRange last)
{
    const bool backwards = last.begin < first.begin;
    MoveTo(backwards ? first.end : first.begin, false);
    MoveTo(backwards ? last.begin : std::max(first.end, last.end), true);
}

void TextSelection::Move(const TopicText& topic, CaretMove move, bool extend, int pageRows)
{
    switch (move) {
    case CaretMove::Up:
        MoveRows(topic, -1, extend);
        break;
    case CaretMove::Down:
        MoveRows(topic, 1, extend);
        break;
    case CaretMove::PageUp:
        MoveRows(topic, -pageRows, extend);
        break;
    case CaretMove::PageDown:
        MoveRows(topic, pageRows, extend);
        break;
    default:
        MoveTo(Target(topic, move, extend), extend);
        break;
    }
}

// Above the first row the caret goes to the start of the text, below the last row to its end.
void TextSelection::MoveRows(const TopicText& topic, int rows, bool extend)
{
    const int from = topic.RowAt(m_caret);
    const std::size_t column = m_column.value_or(m_caret - topic.Row(from).begin);
    const int to = from + rows;
    if (to < 1) {
        MoveTo(0, extend);
    } else if (to > topic.RowCount()) {
        MoveTo(topic.Length(), extend);
    } else {
        const TextRange row = topic.Row(to);
        MoveTo(row.begin + std::min(column, row.Length()), extend);
    }
    m_column = column;
}

std::size_t TextSelection::Target(const TopicText& topic, CaretMove move, bool extend) const
{
    const TextRange selected = Range();
    const bool collapse = !extend && !selected.Empty();
    switch (move) {
    case CaretMove::Left:
        return collapse ? selected.begin : m_caret - (m_caret > 0 ? 1 : 0);
    case CaretMove::Right:
        return collapse ? selected.end : std::min(m_caret + 1, topic.Length());
    case CaretMove::WordLeft:
        return PreviousWord(topic.Text(), m_caret);
    case CaretMove::WordRight:
        return NextWord(topic.Text(), m_caret);
    case CaretMove::RowStart:
        return topic.Row(topic.RowAt(m_caret)).begin;
    case CaretMove::RowEnd:
        return topic.Row(topic.RowAt(m_caret)).end;
    case CaretMove::TextStart:
        return 0;
    default:
        return topic.Length();
    }
}

} // namespace ls
