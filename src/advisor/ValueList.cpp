#include "advisor/ValueList.h"

#include <algorithm>

namespace ls {

namespace {

constexpr std::size_t Counted = 64;
constexpr std::size_t Few = 8;

std::string_view Tail(std::string_view text)
{
    return text.size() > Counted ? text.substr(text.size() - Counted) : text;
}

std::string_view Before(const std::string& text, std::size_t end)
{
    return std::string_view(text).substr(0, end);
}

bool EndsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

bool LessFromTheEnd(std::string_view a, std::string_view b)
{
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

} // namespace

bool ValueList::FromTheEnd::operator()(std::size_t a, std::size_t b) const
{
    return LessFromTheEnd(Tail(Before(*text, a)), Tail(Before(*text, b)));
}

bool ValueList::FromTheEnd::operator()(std::size_t a, std::string_view b) const
{
    return LessFromTheEnd(Tail(Before(*text, a)), b);
}

// Whether the text contains the value with its comma, so that the text before some comma ends with the value.
bool ValueList::Holds(std::string_view value) const
{
    const std::string_view tail = Tail(value);
    for (auto end = m_ends.lower_bound(tail); end != m_ends.end(); ++end) {
        const std::string_view before = Before(m_text, *end);
        if (!EndsWith(before, tail)) {
            return false;
        }
        if (EndsWith(before, value)) { // the first one matches, unless the value is longer than `Counted`
            return true;
        }
    }
    return false;
}

bool ValueList::Add(std::string_view value)
{
    if (std::find(m_first.begin(), m_first.end(), value) != m_first.end()) {
        return false;
    }
    if (m_first.size() < Few) {
        m_first.emplace_back(value);
    } else if (!m_seen.emplace(value).second) {
        return false;
    }
    if (Holds(value)) {
        return false;
    }
    std::size_t at = m_text.size();
    m_text.append(value).push_back(',');
    while ((at = m_text.find(',', at)) != std::string::npos) {
        m_ends.insert(at++);
    }
    return true;
}

} // namespace ls
