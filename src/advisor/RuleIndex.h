#pragma once

#include "base/Array1.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace ls {

/// Where the rules name their variables, so that an answer need not search the text of every rule.
///
/// The texts of the rules are what counts; the index only follows them. It holds rules of the usual form,
/// `VAR(VALUE)=A(X)B(Y)` with no other bracket or "=" and perhaps a text behind the last ")". All others,
/// e.g. with nested brackets, are marked as odd, and the engine works on their texts alone.
///
/// Rules are numbered as in their table. Who changes that other than at its end tells the index.
class RuleIndex
{
public:
    /// One `NAME(VALUE)` of a rule: positions in its text.
    struct Term
    {
        std::uint32_t name;  ///< number of the text between the last bracket or "=" and the "("
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

    /// The names that end in a variable's name: those are where a search for "VAR(" finds something.
    class Matches
    {
    public:
        /// The first matching term of a rule at or behind `from`, or its end.
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

    /// Takes in the rules that were added since the last call. Fewer rules than it knows are another rule
    /// base.
    void Follow(const Array1<std::string>& rules, int count);

    /// Forgets everything, for another rule base.
    void Clear();

    /// Whether the text holds a bracket or a "=". As a variable or a value it may then be found across terms,
    /// and only the rule's text tells.
    [[nodiscard]] static bool HasMark(std::string_view text);

    [[nodiscard]] Matches NamesEndingIn(std::string_view var) const;

    /// False when "VAR(" is not found in the rule's text.
    [[nodiscard]] bool MayName(int rule, const Matches& matches) const
    {
        const Row& row = At(rule);
        return matches.m_anywhere || row.odd || (row.mask & matches.m_mask) != 0;
    }

    /// Whether the rule's terms tell all about it and the variable of `matches` can be found by them.
    [[nodiscard]] bool HasTerms(int rule, const Matches& matches) const
    {
        return !matches.m_anywhere && !At(rule).odd;
    }

    /// Whether the rule is not of the usual form. It has no terms then.
    [[nodiscard]] bool Odd(int rule) const { return At(rule).odd; }

    /// The terms of a rule that is not odd.
    [[nodiscard]] Terms TermsOf(int rule) const { return {m_terms.data() + At(rule).first, At(rule).count}; }

    /// Whether nothing stands behind the "=" of a rule that is not odd.
    [[nodiscard]] bool Fired(int rule) const { return At(rule).count == 1 && !At(rule).trailing; }

    /// The number of a name; it gets one when it is new.
    std::uint32_t NumberOf(std::string_view name);
    [[nodiscard]] const std::string& Name(std::uint32_t number) const { return m_names[number]; }
    [[nodiscard]] std::size_t NameCount() const { return m_names.size(); }

    /// A rule's text has changed.
    void Update(int rule, std::string_view text) { Read(text, m_rows(rule)); }

    /// A term with its whole name was cut out of the rule's text.
    void Cut(int rule, const Term& term);

    /// A rule has moved in front of its place, and the one that was there is gone.
    void Move(int rule, int place) { m_rows(place) = At(rule); }

    /// Only so many rules are left.
    void Truncate(int count) { m_rows.Redim(count); }

private:
    struct Row
    {
        std::uint64_t mask = 0;  ///< a bit for each name, the number modulo 64
        std::uint32_t first = 0; ///< of its terms
        std::uint16_t count = 0;
        bool odd = false;
        bool trailing = false; ///< there is a text behind the last ")"
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
    std::vector<std::uint32_t> m_slots; ///< a hash table: the number of a name plus 1; 0 is free
};

} // namespace ls
