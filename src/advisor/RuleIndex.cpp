#include "advisor/RuleIndex.h"

#include <algorithm>
#include <functional>
#include <limits>

// How an answer finds the rules that it affects:
//
// 1. Each rule is read once into terms: the number of a variable's name, and the positions of its brackets in
//    the text.
// 2. A hash table gives the number of each name, so a name in many rules is stored and compared once.
// 3. Each rule has a mask with a bit for each name (its number modulo 64), so one comparison skips most
//    rules.
// 4. When a condition is cut out of a rule's text, the later terms move by its length and nothing is read
//    again.
// 5. A rule that is not of the usual form `VAR(VALUE)=A(X)B(Y)` is odd, for example one with nested brackets.
//    It has no terms, and the engine searches its text.
//
// The test InferenceModel.answerAfterAnswer_givesWhatThePlainReadingGives compares the index with a search in
// the texts.

namespace ls {

namespace {

bool IsMark(char c)
{
    return c == '(' || c == ')' || c == '=';
}

// The position of the first bracket or "=" from `from` on, or the end of the text.
std::size_t NextMark(std::string_view text, std::size_t from)
{
    while (from < text.size() && !IsMark(text[from])) {
        ++from;
    }
    return from;
}

bool EndsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

} // namespace

void RuleIndex::Clear()
{
    m_rows.Redim(0);
    m_terms.clear();
    m_names.clear();
    m_slots.clear();
}

void RuleIndex::Follow(const Array1<std::string>& rules, int count)
{
    if (count < m_rows.UpperBound()) {
        Clear();
    }
    const int known = m_rows.UpperBound();
    m_rows.Redim(count);
    for (int rule = known + 1; rule <= count; ++rule) {
        Read(rules(rule), m_rows(rule));
    }
}

// The slot of the name, or the free slot for it.
std::uint32_t& RuleIndex::SlotOf(std::string_view name)
{
    std::size_t at = std::hash<std::string_view>()(name) % m_slots.size();
    while (m_slots[at] != 0 && m_names[m_slots[at] - 1] != name) {
        at = (at + 1) % m_slots.size();
    }
    return m_slots[at];
}

void RuleIndex::MoreSlots()
{
    m_slots.assign(m_slots.empty() ? 64 : 2 * m_slots.size(), 0);
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        SlotOf(m_names[i]) = static_cast<std::uint32_t>(i + 1);
    }
}

std::uint32_t RuleIndex::NumberOf(std::string_view name)
{
    if (2 * m_names.size() >= m_slots.size()) {
        MoreSlots();
    }
    std::uint32_t& slot = SlotOf(name);
    if (slot == 0) {
        m_names.emplace_back(name);
        slot = static_cast<std::uint32_t>(m_names.size());
    }
    return slot - 1;
}

bool RuleIndex::HasMark(std::string_view text)
{
    return NextMark(text, 0) != text.size();
}

RuleIndex::Matches RuleIndex::NamesEndingIn(std::string_view var) const
{
    Matches matches;
    matches.m_anywhere = HasMark(var);
    matches.m_byName.resize(m_names.size());
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (EndsWith(m_names[i], var)) {
            matches.m_byName[i] = 1;
            matches.m_mask |= std::uint64_t{1} << (i % 64);
        }
    }
    return matches;
}

// False if the rule is odd.
bool RuleIndex::ReadTerms(std::string_view rule, bool& trailing)
{
    m_read.clear();
    if (rule.size() > std::numeric_limits<std::uint16_t>::max()) {
        return false;
    }
    std::size_t from = 0;
    for (;;) {
        const std::size_t open = NextMark(rule, from);
        if (open == rule.size()) {
            trailing = from < open;
            return !m_read.empty();
        }
        const std::size_t close = NextMark(rule, open + 1);
        if (rule[open] != '(' || close == rule.size() || rule[close] != ')') {
            return false;
        }
        m_read.push_back({NumberOf(rule.substr(from, open - from)), static_cast<std::uint16_t>(open),
                          static_cast<std::uint16_t>(close)});
        from = close + 1;
        if (m_read.size() == 1) { // the conclusion
            if (from == rule.size() || rule[from] != '=') {
                return false;
            }
            ++from;
        }
    }
}

// A rule never gets longer, so its new terms fit in the old place; those of a new rule are appended.
void RuleIndex::Read(std::string_view rule, Row& row)
{
    row.odd = !ReadTerms(rule, row.trailing);
    const std::size_t count = row.odd ? 0 : m_read.size();
    if (count > row.count) {
        row.first = static_cast<std::uint32_t>(m_terms.size());
        m_terms.resize(m_terms.size() + count);
    }
    row.count = static_cast<std::uint16_t>(count);
    std::copy_n(m_read.begin(), count, m_terms.begin() + row.first);
    MakeMask(row);
}

void RuleIndex::MakeMask(Row& row) const
{
    row.mask = 0;
    for (std::size_t i = row.first; i < std::size_t{row.first} + row.count; ++i) {
        row.mask |= std::uint64_t{1} << (m_terms[i].name % 64);
    }
}

void RuleIndex::Cut(int rule, const Term& term)
{
    Row& row = m_rows(rule);
    const std::size_t width = term.close + 1 - (term.open - m_names[term.name].size());
    const auto end = m_terms.begin() + row.first + row.count;
    const auto from = m_terms.begin() + (&term - m_terms.data());
    std::transform(from + 1, end, from, [width](const Term& later) {
        return Term{later.name, static_cast<std::uint16_t>(later.open - width),
                    static_cast<std::uint16_t>(later.close - width)};
    });
    --row.count;
    MakeMask(row);
}

} // namespace ls
