#include "reader/settings/StatementReader.h"

#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace ls {

namespace {

constexpr char Separator = ';';
constexpr char Continuation = '+';
constexpr char Escape = '~';

void Append(Statement& statement, char c, bool escaped)
{
    statement.text += c;
    statement.marks += escaped ? Escape : ' ';
}

} // namespace

std::size_t Statement::Find(char mark) const
{
    std::size_t at = text.find(mark);
    while (at != std::string::npos && IsEscaped(at)) {
        at = text.find(mark, at + 1);
    }
    return at;
}

Statement Statement::Part(std::size_t from, std::size_t count) const
{
    std::size_t end = from + std::min(count, text.size() - from);
    const auto isBlank = [this](std::size_t at) { return text[at] == ' ' && !IsEscaped(at); };
    while (from < end && isBlank(from)) {
        ++from;
    }
    while (end > from && isBlank(end - 1)) {
        --end;
    }
    return {text.substr(from, end - from), marks.substr(from, end - from)};
}

bool StatementReader::ReadLine(std::string& line)
{
    if (m_next == std::string::npos) {
        if (!m_error.Ok() || m_cursor.AtEnd()) {
            return false;
        }
        m_error = m_cursor.ReadLine(m_lines);
        if (!m_error.Ok()) {
            return false;
        }
        m_next = 0;
    }
    const std::size_t end = m_lines.find('\n', m_next);
    const bool last = end == std::string::npos;
    line = Trim(std::string_view(m_lines).substr(m_next, last ? end : end - m_next));
    m_next = last ? end : end + 1;
    return true;
}

bool StatementReader::ReadFilledLine(std::string& line)
{
    while (ReadLine(line)) {
        if (!line.empty()) {
            return true;
        }
    }
    line.clear();
    return false;
}

// Reads one statement of IniLine from m_taken on, and the lines that continue it. It moves an index and cuts
// nothing off, because a line may be as long as its file.
Statement StatementReader::TakeStatement()
{
    Statement statement;
    while (m_taken < IniLine.size() && IniLine[m_taken] != Separator) {
        const char c = IniLine[m_taken++];
        const bool last = m_taken == IniLine.size();
        if (c == Escape) {
            if (!last) { // at a line's end "~" escapes nothing and is dropped
                Append(statement, IniLine[m_taken++], true);
            }
        } else if (c == Continuation && last) {
            m_taken = 0;
            if (!ReadFilledLine(IniLine)) {
                return statement;
            }
        } else {
            Append(statement, c, false);
        }
    }
    ++m_taken;
    return statement;
}

bool StatementReader::Next(Statement& statement)
{
    for (;;) {
        if (m_taken >= IniLine.size()) {
            m_taken = 0;
            if (!ReadFilledLine(IniLine)) {
                return false;
            }
        }
        statement = TakeStatement().Part(0);
        if (!statement.text.empty()) {
            return true;
        }
    }
}

} // namespace ls
