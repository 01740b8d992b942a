#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ls {

/// The values of a variable as one text, each followed by ",": "YES,NO,".
///
/// A value is left out when the text already holds it and its comma anywhere, so also when it ends an earlier
/// value: behind "BA" no "A" is taken. That test, asked for each of thousands of rules, must not search the
/// whole text each time; the list keeps an index that gives the same answer.
class ValueList
{
public:
    ValueList() : m_ends(FromTheEnd{&m_text}) {}
    ValueList(const ValueList&) = delete;
    ValueList& operator=(const ValueList&) = delete;

    /// Appends the value unless the text holds it; true when it was appended.
    bool Add(std::string_view value);

    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    // Orders the places of commas by the characters in front of them, the nearest first: all places behind
    // the same characters stand together. Only so many characters count, or a value of commas alone would
    // make every comparison as long as itself.
    struct FromTheEnd
    {
        using is_transparent = void;
        bool operator()(std::size_t a, std::size_t b) const;
        bool operator()(std::size_t a, std::string_view b) const;

        const std::string* text;
    };

    [[nodiscard]] bool Holds(std::string_view value) const;

    std::string m_text;
    std::multiset<std::size_t, FromTheEnd> m_ends; ///< where the commas of the text stand
    std::vector<std::string> m_first;       ///< the first values asked for; most variables have no more
    std::unordered_set<std::string> m_seen; ///< the others: the text holds each since then
};

} // namespace ls
