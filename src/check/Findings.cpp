#include "check/Findings.h"

#include <algorithm>
#include <utility>

namespace ls {

void Findings::Add(Severity severity, std::string_view rule, int line, std::string text)
{
    m_errors += severity == Severity::Error ? 1 : 0;
    m_list.push_back({m_file, line, m_topic, severity, std::string(rule), std::move(text)});
}

std::vector<Finding> Findings::TakeSorted()
{
    std::stable_sort(m_list.begin(), m_list.end(),
                     [](const Finding& a, const Finding& b) { return a.line < b.line; });
    m_errors = 0;
    return std::exchange(m_list, {});
}

} // namespace ls
