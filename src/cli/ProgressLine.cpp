#include "cli/ProgressLine.h"

#include <ostream>

namespace ls {

bool ProgressLine::Step(std::int64_t done, std::int64_t total)
{
    if (!m_shown || total <= 0) {
        return true;
    }
    const auto percent = static_cast<int>(static_cast<double>(done) * 100.0 / static_cast<double>(total));
    if (percent != m_percent) {
        m_percent = percent;
        m_stands = true;
        *m_stream << "\rReading " << percent << '%' << std::flush;
    }
    return true;
}

void ProgressLine::Show(const std::string& text)
{
    if (m_shown) {
        *m_stream << "\r\033[K" << text << std::flush;
        m_stands = true;
        m_percent = -1;
    }
}

void ProgressLine::Erase()
{
    if (m_stands) {
        *m_stream << "\r\033[K" << std::flush;
        m_stands = false;
        m_percent = -1;
    }
}

} // namespace ls
