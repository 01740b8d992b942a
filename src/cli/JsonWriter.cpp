#include "cli/JsonWriter.h"

#include "base/CodePage.h"

#include <array>
#include <charconv>
#include <ostream>
#include <string>

namespace ls {

namespace {

constexpr std::size_t Piece = 256 * 1024; // of a text; its JSON may be six times as long

void AppendEscape(std::string& text, char32_t c)
{
    constexpr std::string_view Digits = "0123456789abcdef";
    text.append("\\u00").append(1, Digits[c / 16]).append(1, Digits[c % 16]);
}

void AppendCharacter(std::string& text, char32_t c)
{
    switch (c) {
    case U'"':
        text += "\\\"";
        break;
    case U'\\':
        text += "\\\\";
        break;
    case U'\b':
        text += "\\b";
        break;
    case U'\f':
        text += "\\f";
        break;
    case U'\n':
        text += "\\n";
        break;
    case U'\r':
        text += "\\r";
        break;
    case U'\t':
        text += "\\t";
        break;
    default:
        // DEL and the high control characters need no escape in JSON, but a terminal would obey them.
        if (c < 0x20 || (c >= 0x7F && c < 0xA0)) {
            AppendEscape(text, c);
        } else {
            AppendUtf8(text, c);
        }
    }
}

} // namespace

JsonWriter& JsonWriter::Key(std::string_view name)
{
    BeginElement();
    WriteString(name);
    *m_stream << ": ";
    m_afterKey = true;
    return *this;
}

JsonWriter& JsonWriter::String(std::string_view utf8)
{
    BeginElement();
    WriteString(utf8);
    return *this;
}

JsonWriter& JsonWriter::BookText(std::string_view bytes)
{
    BeginElement();
    *m_stream << '"';
    // No character is split, because each is one byte.
    for (; bytes.size() > Piece; bytes.remove_prefix(Piece)) {
        WriteCharacters(FromBook(bytes.substr(0, Piece)));
    }
    WriteCharacters(FromBook(bytes));
    *m_stream << '"';
    return *this;
}

JsonWriter& JsonWriter::Number(std::int64_t number)
{
    BeginElement();
    *m_stream << std::to_string(number);
    return *this;
}

JsonWriter& JsonWriter::Number(float number)
{
    BeginElement();
    std::array<char, 64> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    // JSON has neither infinity nor "not a number".
    const bool finite = error == std::errc() && number - number == 0.0F;
    *m_stream << (finite ? std::string_view(digits.data(), end) : std::string_view("null"));
    return *this;
}

JsonWriter& JsonWriter::Bool(bool value)
{
    BeginElement();
    *m_stream << (value ? "true" : "false");
    return *this;
}

JsonWriter& JsonWriter::Null()
{
    BeginElement();
    *m_stream << "null";
    return *this;
}

JsonWriter& JsonWriter::Begin(char bracket)
{
    const bool lines = m_open.empty() || (m_open.size() == 1 && m_afterKey && bracket == '[');
    BeginElement();
    *m_stream << bracket;
    m_open.push_back({lines, true});
    return *this;
}

JsonWriter& JsonWriter::End(char bracket)
{
    const Container ended = m_open.back();
    m_open.pop_back();
    if (ended.lines && !ended.empty) {
        BeginLine(m_open.size());
    }
    *m_stream << bracket;
    if (m_open.empty()) {
        *m_stream << '\n';
    }
    return *this;
}

void JsonWriter::BeginElement()
{
    if (m_afterKey) {
        m_afterKey = false;
        return;
    }
    if (m_open.empty()) {
        return;
    }
    Container& container = m_open.back();
    if (!container.empty) {
        *m_stream << (container.lines ? "," : ", ");
    }
    container.empty = false;
    if (container.lines) {
        BeginLine(m_open.size());
    }
}

void JsonWriter::BeginLine(std::size_t depth)
{
    *m_stream << '\n' << std::string(depth * 2, ' ');
}

void JsonWriter::WriteString(std::string_view utf8)
{
    *m_stream << '"';
    WriteCharacters(utf8);
    *m_stream << '"';
}

void JsonWriter::WriteCharacters(std::string_view utf8)
{
    std::string text;
    for (std::size_t at = 0; at < utf8.size();) {
        AppendCharacter(text, NextUtf8(utf8, at));
    }
    *m_stream << text;
}

} // namespace ls
