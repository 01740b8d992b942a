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
        *m_stream << "\rReading " << percent << '%' << std::flush;
    }
    return true;
}

void ProgressLine::Erase()
{
    if (m_percent >= 0) {
        *m_stream << "\r\033[K" << std::flush;
        m_percent = -1;
    }
}

} // namespace ls
