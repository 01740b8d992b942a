#pragma once

#include "check/Findings.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace ls {

/// Checks cross references: their targets, and what their notes swallow. It reads notes as the book's scan
/// does.
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

    /// Takes a line that opens a cross reference.
    void Open(std::string_view line, int number);

    /// Takes a further line of the note.
    void Take(std::string_view line, int number);

    /// Ends the check at the end of the file.
    void Finish();

    /// Whether the last line closes a note and has text after the end tag.
    [[nodiscard]] bool TextAfter() const { return m_textAfter; }

private:
    void TakePiece(std::string_view piece);
    void CheckTarget(std::string_view line, int number);
    void CheckSwallowed(std::string_view line, int number);
    void TellHeader();

    Findings& m_findings;
    const std::unordered_map<std::string_view, int>& m_titles;
    int m_line = 0;           ///< the line of the open note; 0 for none
    int m_header = 0;         ///< the first line in the note that looks like a title
    std::size_t m_length = 0; ///< the length of the note's text
    bool m_told = false;      ///< a finding about this note was reported
    bool m_textAfter = false;
};

} // namespace ls
