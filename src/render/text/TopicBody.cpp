#include "render/text/TopicBody.h"

#include "base/Text.h"

namespace ls {

namespace {

// Enough characters to recognise a tag at the start of a line and to find a hanging indent.
constexpr std::size_t Telling = 16;

} // namespace

bool FileBody::Next(std::string_view& line)
{
    if (!m_error.Ok() || m_cursor->AtEnd()) {
        return false;
    }
    m_error = m_cursor->ReadLine(line);
    return m_error.Ok();
}

bool FileBody::NextPart(std::string_view& line, LineCursor*& rest)
{
    if (m_inLine && m_error.Ok()) {
        m_error = m_cursor->EndLine();
    }
    if (!m_error.Ok() || m_cursor->AtEnd()) {
        return false;
    }
    bool whole = true;
    m_error = m_cursor->BeginLine(line, whole);
    while (m_error.Ok() && !whole && Trim(line).size() < Telling) {
        m_error = m_cursor->ReadOn(line, 0, whole);
    }
    m_inLine = !whole;
    rest = whole ? nullptr : m_cursor;
    return m_error.Ok();
}

bool TextBody::Next(std::string_view& line)
{
    if (m_at >= m_text.size()) {
        return false;
    }
    const std::size_t end = m_text.find(LineEnd, m_at);
    line = m_text.substr(m_at, end == std::string_view::npos ? end : end - m_at);
    m_at = end == std::string_view::npos ? m_text.size() : end + LineEnd.size();
    return true;
}

} // namespace ls
