#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_set>

namespace ls {

/// The values of a variable as one text, each followed by ",": "YES,NO,".
///
/// A value is left out when the text already holds it and its comma anywhere, so also when it ends an earlier
/// value: behind "BA" no "A" is taken. That test, asked for each of thousands of rules, must not search the
/// whole text each time; the list keeps an index that gives the same answer.
class ValueList
{
public:
    ValueList() = default;
    ValueList(const ValueList&) = delete;
    ValueList& operator=(const ValueList&) = delete;

    /// Appends the value unless the text holds it; true when it was appended.
    bool Add(std::string_view value);

    [[nodiscard]] const std::string& Text() const { return m_text; }

private:
    // Orders texts by their last character, then the one before it, and so on: all texts that end alike stand
    // together, the shortest first.
    struct FromTheEnd
    {
        bool operator()(const std::string& a, const std::string& b) const;
    };

    [[nodiscard]] bool Holds(std::string_view value) const;
    void Index(std::string_view value);

    std::string m_text;
    std::unordered_set<std::string> m_seen;     ///< every value asked for: the text holds it since then
    std::set<std::string, FromTheEnd> m_pieces; ///< what stands between the commas of the text
};

} // namespace ls
