#pragma once

#include "check/Findings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ls {

/// Cross references: their targets, and what their notes swallow. A note is followed as the book's scan
/// follows it.
class ReferenceRules
{
public:
    /// `titles` holds the names of all topics, with their brackets.
    ReferenceRules(const std::unordered_map<std::string_view, int>& titles, Findings& findings)
        : m_findings(findings), m_titles(titles)
    {
    }

    /// Whether the next line belongs to a note.
    [[nodiscard]] bool InNote() const { return m_line != 0; }

    /// A line that opens a cross reference.
    void Open(std::string_view line, int number);

    /// A further line of the note.
    void Take(std::string_view line, int number);

    /// The file is through.
    void Finish();

    /// Whether the line that closed a note, or opened and closed one, has text behind the end tag.
    [[nodiscard]] bool TextBehind() const { return m_textBehind; }

private:
    void TakePiece(std::string_view piece);
    void CheckTarget(std::string_view line, int number);
    void CheckSwallowed(std::string_view line, int number);
    void TellHeader();

    Findings& m_findings;
    const std::unordered_map<std::string_view, int>& m_titles;
    int m_line = 0;           ///< of the open note; 0 when there is none
    int m_header = 0;         ///< the first line in the note that looks like a title
    std::size_t m_length = 0; ///< of its text
    bool m_told = false;      ///< a finding about this note was made
    bool m_textBehind = false;
};

} // namespace ls
