#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace ls {

/// The values of a variable in one text, each followed by ",": "YES,NO,".
///
/// A value is left out if the text already contains it with its comma, even as the end of another value:
/// after "BA" no "A" is added. With thousands of rules it would be slow to search the whole text for each
/// one, so an index gives the same answer.
class ValueList
{
public:
    ValueList() : m_ends(FromTheEnd{&m_text}) {}
    ValueList(const ValueList&) = delete;
    ValueList& operator=(const ValueList&) = delete;

    /// Appends the value unless the text contains it. True if it was appended.
    bool Add(std::string_view value);

    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    // Finds whether a value ends at some comma. The commas are ordered by the text before them, compared
    // backwards, so that commas after equal texts are adjacent. Only the last 64 characters count; otherwise
    // values of many commas would make comparisons slow.
    struct FromTheEnd
    {
        using is_transparent = void;
        bool operator()(std::size_t a, std::size_t b) const;
        bool operator()(std::size_t a, std::string_view b) const;

        const std::string* text;
    };

    [[nodiscard]] bool Holds(std::string_view value) const;

    std::string m_text;
    std::multiset<std::size_t, FromTheEnd> m_ends; ///< the positions of the commas in the text
    std::vector<std::string> m_first;              ///< the first values asked for; enough for most variables
    std::unordered_set<std::string> m_seen;        ///< the other values asked for; the text contains them all
};

} // namespace ls
