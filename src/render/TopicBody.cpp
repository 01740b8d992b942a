#include "render/TopicBody.h"

namespace ls {

bool FileBody::Next(std::string_view& line)
{
    if (!m_failed.Ok() || m_cursor->AtEnd()) {
        return false;
    }
    m_failed = m_cursor->ReadLine(line);
    return m_failed.Ok();
}

bool TextBody::Next(std::string_view& line)
{
    constexpr std::string_view LineEnd = "\r\n";
    if (m_at >= m_text.size()) {
        return false;
    }
    const std::size_t end = m_text.find(LineEnd, m_at);
    line = m_text.substr(m_at, end == std::string_view::npos ? end : end - m_at);
    m_at = end == std::string_view::npos ? m_text.size() : end + LineEnd.size();
    return true;
}

} // namespace ls
