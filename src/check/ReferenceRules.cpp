#include "check/ReferenceRules.h"

#include "base/Text.h"
#include "book/BookWords.h"
#include "book/XrefText.h"

namespace ls {

namespace {

constexpr std::size_t LongestNote = 32000;

} // namespace

void ReferenceRules::CheckTarget(std::string_view line, int number)
{
    const std::string target = XrefTarget(line);
    if (target.empty()) {
        m_findings.Error(
            "reference-empty", number,
            "The cross reference names no topic, so the reader is not offered it: write it as <XREF "
            "TOPIC=\"Title\">.");
        return;
    }
    const std::string name = target.front() == '[' ? target : "[" + target + "]";
    if (m_titles.count(name) == 0) {
        m_findings.Error(
            "reference-missing-topic", number,
            "No topic has the title " + Quoted(target) +
                ", so the reader who follows the cross reference is told that it was not found: write "
                "the title as it stands in the book, letter for letter.");
    }
}

void ReferenceRules::Open(std::string_view line, int number)
{
    CheckTarget(line, number);
    m_line = number;
    m_length = 0;
    m_told = false;
    m_header = 0;
    const std::size_t opened = line.find('>');
    TakePiece(opened == std::string_view::npos ? std::string_view() : line.substr(opened + 1));
}

void ReferenceRules::TellHeader()
{
    m_findings.Error(
        "header-in-reference", m_header,
        "The cross reference in line " + std::to_string(m_line) +
            " is not closed, so this title becomes a part of its note and the reader does not find "
            "the topic: add \"</XREF>\" there.");
    m_told = true;
}

// Reports what a note swallows if its end is missing. A line with a bracket may belong to the note. If
// another reference begins before the note ends, the end is missing and that line is a title.
void ReferenceRules::CheckSwallowed(std::string_view line, int number)
{
    if (line.size() > 2 && line.front() == '[' && m_header == 0) {
        m_header = number;
    } else if (line.starts_with(XrefOpening) && !m_told) {
        if (m_header != 0) {
            TellHeader();
            return;
        }
        m_told = true;
        m_findings.Warning(
            "not-closed", m_line,
            "The cross reference is not closed, so the reader is not offered the next one, in line " +
                std::to_string(number) + ": add \"</XREF>\".");
    } else if (BeginsUpper(line, XrefClosing) && !line.starts_with(XrefClosing)) {
        m_told = true;
        m_findings.Warning(
            "tag-case", number,
            "Only \"</XREF>\" in capital letters closes the cross reference in line " +
                std::to_string(m_line) +
                ", so what follows becomes a part of the note that the reader sees: write it so.");
    }
}

void ReferenceRules::Take(std::string_view line, int number)
{
    CheckSwallowed(line, number);
    TakePiece(line);
}

// Reads a piece of the note as the scan does.
void ReferenceRules::TakePiece(std::string_view piece)
{
    m_textAfter = false;
    const std::size_t end = piece.find(XrefClosing);
    const bool otherEnd = end == std::string_view::npos && Contains(piece, XrefOtherClosing);
    if (end != std::string_view::npos) {
        m_textAfter = !Trim(piece.substr(end + XrefClosing.size())).empty();
        piece = piece.substr(0, end);
    }
    piece = Trim(piece);
    const bool adds = !otherEnd && !(piece.empty() && (m_length == 0 || end != std::string_view::npos));
    const std::size_t joint = m_length == 0 ? 0 : LineEnd.size();
    const bool tooLong = adds && m_length + joint + piece.size() > LongestNote;
    if (tooLong) {
        m_findings.Error(
            "text-too-long", m_line,
            "The note of the cross reference is longer than 32,000 characters, so the reader sees "
            "\"???\" instead of its end: shorten it.");
    }
    m_length += adds ? joint + piece.size() : 0;
    if (end != std::string_view::npos || otherEnd || tooLong) {
        m_line = 0;
    }
}

void ReferenceRules::Finish()
{
    if (InNote() && !m_told && m_header != 0) {
        TellHeader();
    } else if (InNote() && !m_told) {
        m_findings.Warning(
            "not-closed", m_line,
            "The cross reference is not closed, so the reader sees all that follows in its note: add "
            "\"</XREF>\".");
    }
}

} // namespace ls
