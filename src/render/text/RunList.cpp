#include "render/text/RunList.h"

namespace ls {

void RunList::Clear()
{
    m_runs.clear();
    m_style.row = 1;
    m_style.firstColumn = 1;
}

void RunList::Print(std::string_view text, bool endRow)
{
    Run& run = m_runs.emplace_back(m_style);
    run.text = text;
    run.endRow = endRow;
    if (endRow) {
        ++m_style.row;
        m_style.firstColumn = 1;
    } else {
        m_style.firstColumn += static_cast<int>(text.size());
    }
}

} // namespace ls
