#include "advisor/ValueList.h"

#include <algorithm>

namespace ls {

bool ValueList::FromTheEnd::operator()(const std::string& a, const std::string& b) const
{
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

bool ValueList::Holds(std::string_view value) const
{
    if (value.find(',') != std::string_view::npos) {
        // "X,Y" may lie across several values. It is a rare slip of an author: the text itself is searched.
        return m_text.find(std::string(value) + ",") != std::string::npos;
    }
    // Without a comma inside, the value and its comma can only be the end of one piece.
    const auto found = m_pieces.lower_bound(std::string(value));
    return found != m_pieces.end() && found->size() >= value.size() &&
           std::string_view(*found).substr(found->size() - value.size()) == value;
}

void ValueList::Index(std::string_view value)
{
    for (;;) {
        const std::size_t comma = value.find(',');
        m_pieces.emplace(value.substr(0, comma));
        if (comma == std::string_view::npos) {
            return;
        }
        value.remove_prefix(comma + 1);
    }
}

bool ValueList::Add(std::string_view value)
{
    if (!m_seen.emplace(value).second || Holds(value)) {
        return false;
    }
    Index(value);
    m_text.append(value).push_back(',');
    return true;
}

} // namespace ls
