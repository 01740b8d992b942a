#include "check/Findings.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

namespace ls {

void Findings::Add(Severity severity, std::string_view rule, int line, std::string text)
{
    m_errors += severity == Severity::Error ? 1 : 0;
    m_list.push_back({m_file, line, m_topic, severity, std::string(rule), std::move(text)});
}

// Sorts indexes, since findings are large and a book may have many of them.
std::vector<Finding> Findings::TakeSorted()
{
    std::vector<std::size_t> order(m_list.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
        return m_list[a].line != m_list[b].line ? m_list[a].line < m_list[b].line : a < b;
    });
    std::vector<Finding> sorted;
    sorted.reserve(m_list.size());
    for (const std::size_t at : order) {
        sorted.push_back(std::move(m_list[at]));
    }
    m_list.clear();
    m_errors = 0;
    return sorted;
}

} // namespace ls
