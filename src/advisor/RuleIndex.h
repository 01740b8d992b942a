#pragma once

#include "base/Array1.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Knows which variables each rule names and where, so that an answer need not search the text of every rule.
///
/// The texts of the rules decide; the index only follows them. It has terms for rules of the usual form,
/// `VAR(VALUE)=A(X)B(Y)` with no other bracket or "=", perhaps with a text after the last ")". All other
/// rules, such as those with nested brackets, are odd: the engine works on their texts alone.
///
/// The index numbers rules as the rule table does. Code that changes that table, except by appending, must
/// call the matching function of the index.
class RuleIndex
{
public:
    /// One `NAME(VALUE)` of a rule, as positions in its text.
    struct Term
    {
        std::uint32_t name;  ///< number of the text from the last bracket or "=" to the "("
        std::uint16_t open;  ///< of the "("
        std::uint16_t close; ///< of the ")"

        [[nodiscard]] std::string_view Value(std::string_view rule) const
        {
            return rule.substr(open + 1, close - open - 1);
        }
    };

    /// The terms of a rule: the conclusion, then the conditions. Valid until a rule is added or changed.
    class Terms
    {
    public:
        Terms(const Term* first, std::size_t count) : m_first(first), m_count(count) {}
        [[nodiscard]] const Term* begin() const { return m_first; }
        [[nodiscard]] const Term* end() const { return m_first + m_count; }

    private:
        const Term* m_first;
        std::size_t m_count;
    };

    /// The names that a search for "VAR(" in the text would find: all that end in "VAR".
    class Matches
    {
    public:
        /// A rule's first matching term from `from` on, or its end.
        [[nodiscard]] const Term* Find(const Terms& terms, const Term* from) const
        {
            while (from != terms.end() && !m_byName[from->name]) {
                ++from;
            }
            return from;
        }

    private:
        friend class RuleIndex;
        std::vector<char> m_byName;
        std::uint64_t m_mask = 0;
        bool m_anywhere = false;
    };

    /// Adds the rules that were appended since the last call. If there are fewer rules than before, reads
    /// them all as another rule base.
    void Follow(const Array1<std::string>& rules, int count);

    /// Forgets everything; for another rule base.
    void Clear();

    /// Whether the text contains a bracket or a "=". Such a variable or value can match across two terms, so
    /// the rule's text must be searched.
    [[nodiscard]] static bool HasMark(std::string_view text);

    [[nodiscard]] Matches NamesEndingIn(std::string_view var) const;

    /// False if the rule's text cannot contain "VAR(".
    [[nodiscard]] bool MayName(int rule, const Matches& matches) const
    {
        const Row& row = At(rule);
        return matches.m_anywhere || row.odd || (row.mask & matches.m_mask) != 0;
    }

    /// Whether the terms are enough to find the variable of `matches` in the rule.
    [[nodiscard]] bool HasTerms(int rule, const Matches& matches) const
    {
        return !matches.m_anywhere && !At(rule).odd;
    }

    /// Whether the rule lacks the usual form and so has no terms.
    [[nodiscard]] bool Odd(int rule) const { return At(rule).odd; }

    /// The terms of a rule that is not odd.
    [[nodiscard]] Terms TermsOf(int rule) const { return {m_terms.data() + At(rule).first, At(rule).count}; }

    /// Whether nothing is left after the "=". The rule must not be odd.
    [[nodiscard]] bool Fired(int rule) const { return At(rule).count == 1 && !At(rule).trailing; }

    /// The number of a name; a new name gets a new number.
    std::uint32_t NumberOf(std::string_view name);
    [[nodiscard]] const std::string& Name(std::uint32_t number) const { return m_names[number]; }
    [[nodiscard]] std::size_t NameCount() const { return m_names.size(); }

    /// Call after a rule's text has changed.
    void Update(int rule, std::string_view text) { Read(text, m_rows(rule)); }

    /// Call after a term with its whole name was cut out of the rule's text.
    void Cut(int rule, const Term& term);

    /// Call after a rule has moved to an earlier place and replaced the rule there.
    void Move(int rule, int place) { m_rows(place) = At(rule); }

    /// Call after the rule table was cut to that many rules.
    void Truncate(int count) { m_rows.Redim(count); }

private:
    struct Row
    {
        std::uint64_t mask = 0;  ///< a bit for each name, the number modulo 64
        std::uint32_t first = 0; ///< place of its first term in m_terms
        std::uint16_t count = 0;
        bool odd = false;
        bool trailing = false; ///< there is text after the last ")"
    };

    [[nodiscard]] const Row& At(int rule) const { return m_rows(rule); }
    std::uint32_t& SlotOf(std::string_view name);
    void MoreSlots();
    void Read(std::string_view rule, Row& row);
    void MakeMask(Row& row) const;
    bool ReadTerms(std::string_view rule, bool& trailing);

    Array1<Row> m_rows;
    std::vector<Term> m_terms;
    std::vector<Term> m_read; ///< of the rule being read
    std::vector<std::string> m_names;
    std::vector<std::uint32_t> m_slots; ///< a hash table: a name's number plus 1; 0 is free
};

} // namespace ls
