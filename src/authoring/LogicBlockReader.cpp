#include "authoring/LogicBlockReader.h"

#include "advisor/LogicLine.h"
#include "authoring/LogicLines.h"
#include "authoring/LogicTags.h"
#include "base/Quoted.h"
#include "base/Text.h"

#include <algorithm>
#include <utility>

namespace ls::logic {

namespace {

constexpr std::size_t None = std::string_view::npos;

bool IsBlank(std::string_view text)
{
    return Trim(text).empty();
}

class Reader
{
public:
    Reader(std::string_view text, std::string& logicText, std::vector<LostPart>& lost)
        : m_empty(text.empty()), m_lines(text), m_logicText(logicText), m_lost(lost)
    {
    }

    std::vector<LogicEntry> Run()
    {
        if (!m_empty && FindLogic() && ReadLogic()) {
            ReadDefinitions();
        }
        LoseRest();
        return std::move(m_entries);
    }

private:
    // A tag in the current line that opens an entry.
    struct Opening
    {
        bool question = false;
        std::size_t at = None;
        std::size_t identifier = None;
        std::size_t close = None; ///< its ">"
    };

    bool NextLine();
    bool FindLogic();
    bool ReadLogic();
    void CloseWithoutDefinitions(std::vector<std::string_view>& lines);
    void ReadDefinitions();
    void TakeLine();
    void TakeEntries();
    [[nodiscard]] Opening FindOpening() const;
    [[nodiscard]] Opening OpeningAt(std::size_t at, const EntryTags& tags) const;
    void ReadEntry(const Opening& opening);
    bool ReadEntryText(LogicEntry& entry, const EntryTags& tags);
    bool NextEntryLine();
    void LoseRest();
    void LoseHiding();
    void Lose(std::string what) { m_lost.push_back({m_lines.Number(), std::move(what)}); }
    void LoseText(std::string_view text)
    {
        if (!IsBlank(text)) {
            Lose("The text " + Quoted(Trim(text)) + " would be dropped.");
        }
    }

    bool m_empty;
    Lines m_lines;
    std::string& m_logicText;
    std::vector<LostPart>& m_lost;
    std::vector<LogicEntry> m_entries;

    std::string_view m_line; ///< the current line
    std::string m_upper;     ///< the same in upper case
    std::size_t m_at = 0;    ///< how far it is read
    bool m_ended = false;    ///< the definitions, or the whole block, are over
    bool m_stopped = false;  ///< the line begins with "[" and is not read
};

// Reads the next line. False at the end of the block, or at a line beginning with "[", which ends it too.
bool Reader::NextLine()
{
    if (m_ended || !m_lines.Next(m_line)) {
        m_ended = true;
        return false;
    }
    m_upper = UpperCase(m_line);
    m_at = 0;
    m_stopped = m_line.starts_with('[');
    m_ended = m_stopped;
    return !m_stopped;
}

bool Reader::FindLogic()
{
    bool first = true;
    while (NextLine()) {
        const std::string_view trimmed = Trim(m_upper);
        if (trimmed == LogicOpening) {
            return true;
        }
        if (trimmed != BlockClosing && !(first && trimmed == BlockOpening)) {
            LoseText(m_line);
        }
        first = false;
    }
    Lose("There is no \"<LOGIC>\" line; one would be added.");
    return false;
}

// Removes "</LOGIC>" from the line of a comment of one or two characters, which is saved with that tag.
void CutRunInTag(std::vector<std::string_view>& lines)
{
    if (lines.size() == 1 && lines[0].starts_with('*') && lines[0].ends_with(LogicClosing) &&
        lines[0].size() <= LogicClosing.size() + 2) {
        lines[0] = TrimRight(lines[0].substr(0, lines[0].size() - LogicClosing.size()));
    }
}

// The advisor reads lines between "</LOGIC>" and the definitions as logic too.
bool Reader::ReadLogic()
{
    std::vector<std::string_view> lines;
    bool found = false;
    std::size_t closed = None; // the number of lines before "</LOGIC>"
    while (NextLine()) {
        const std::string_view trimmed = Trim(m_upper);
        const LogicLine kind = ClassifyLogicLine(trimmed);
        found = kind == LogicLine::Definitions;
        if (found) {
            if (trimmed != DefinitionsOpening) {
                Lose("The line " + Quoted(Trim(m_line)) + " would become \"<DEFINITIONS>\".");
            }
            break;
        }
        if (kind == LogicLine::LogicEnd) {
            closed = std::min(closed, lines.size());
        } else {
            lines.push_back(TrimRight(m_line));
        }
    }
    if (closed == None) {
        CutRunInTag(lines);
    }
    while (closed != None && lines.size() > closed && lines.back().empty()) {
        lines.pop_back();
    }
    if (!found) {
        CloseWithoutDefinitions(lines);
    }
    for (const std::string_view line : lines) {
        m_logicText.append(line).append(LineEnd);
    }
    return found;
}

void Reader::CloseWithoutDefinitions(std::vector<std::string_view>& lines)
{
    Lose("There is no \"<DEFINITIONS>\" line; one would be added.");
    const auto last =
        std::find_if(lines.rbegin(), lines.rend(), [](std::string_view line) { return !line.empty(); });
    if (last != lines.rend() && EqualsUpper(Trim(*last), BlockClosing)) {
        lines.erase(last.base() - 1, lines.end());
    }
}

void Reader::ReadDefinitions()
{
    while (NextLine()) {
        TakeLine();
    }
}

// The advisor registers no questions after the first line that contains "</DEFINITIONS>". It finds texts up
// to the first line with nothing but this tag.
void Reader::TakeLine()
{
    const std::string_view trimmed = Trim(m_upper);
    if (trimmed.empty() || trimmed == BlockClosing) {
        return;
    }
    if (trimmed == DefinitionsClosing) {
        m_ended = true;
        return;
    }
    const bool hides = trimmed.starts_with('[') || trimmed.find(DefinitionsClosing) != None;
    if (hides) {
        LoseHiding();
    }
    if (trimmed.starts_with('*')) {
        if (!hides) {
            Lose("The comment " + Quoted(Trim(m_line)) + " would be dropped.");
        }
    } else if (!hides || HoldsOpening(m_upper)) {
        TakeEntries();
    }
}

void Reader::LoseHiding()
{
    Lose("The line " + Quoted(Trim(m_line)) +
         ", which hides the questions behind it from the advisor, would not be kept as it is.");
}

// Reads all entries that begin in the current line, or in the line where one of them ends.
void Reader::TakeEntries()
{
    int begun = m_lines.Number();
    while (!m_ended) {
        // The last line of an entry may begin with "*" too.
        const bool comment = TrimLeft(m_upper).starts_with('*');
        const Opening opening = comment ? Opening() : FindOpening();
        const std::size_t end = std::min(opening.at, m_line.size());
        if (Trim(std::string_view(m_upper).substr(m_at, end - m_at)) != DefinitionsClosing) {
            LoseText(m_line.substr(m_at, end - m_at));
        }
        if (opening.at == None) {
            return;
        }
        const bool atLineStart = begun == m_lines.Number() && IsBlank(m_line.substr(0, opening.at));
        if (opening.question && !atLineStart) {
            Lose("The question for " +
                 Quoted(m_line.substr(opening.identifier, opening.close - opening.identifier)) +
                 " does not begin its line, so the advisor passes over it; it would be put on a line of its "
                 "own.");
        }
        ReadEntry(opening);
    }
}

Reader::Opening Reader::FindOpening() const
{
    for (std::size_t at = m_upper.find('<', m_at); at != None; at = m_upper.find('<', at + 1)) {
        for (const EntryTags& tags : {QuestionTags, AdviceTags}) {
            if (m_upper.compare(at, tags.opening.size(), tags.opening) == 0) {
                return OpeningAt(at, tags);
            }
        }
    }
    return {};
}

// An identifier ends at the first ">" that is not inside parentheses, as in `INCOME(>1000)`.
Reader::Opening Reader::OpeningAt(std::size_t at, const EntryTags& tags) const
{
    Opening opening;
    opening.question = tags.opening == QuestionTags.opening;
    opening.identifier = at + tags.opening.size();
    opening.close = m_line.find('>', opening.identifier);
    if (opening.close == None) {
        return {};
    }
    const std::string_view identifier = m_line.substr(opening.identifier, opening.close - opening.identifier);
    const std::size_t open = identifier.find('(');
    if (!opening.question && open != None && identifier.find(')', open) == None) {
        const std::size_t end = m_line.find(")>", opening.close);
        opening.close = end == None ? opening.close : end + 1;
    }
    opening.at = at;
    return opening;
}

void Reader::ReadEntry(const Opening& opening)
{
    const EntryTags& tags = opening.question ? QuestionTags : AdviceTags;
    LogicEntry entry;
    entry.question = opening.question;
    entry.identifier = m_line.substr(opening.identifier, opening.close - opening.identifier);
    entry.raw = m_line.substr(opening.at, opening.close + 1 - opening.at);
    entry.line = m_lines.Number();
    m_at = opening.close + 1;
    const std::string name =
        (entry.question ? "The question for " : "The advice for ") + Quoted(entry.identifier);
    if (!ReadEntryText(entry, tags)) {
        m_lost.push_back({entry.line, name + " has no " + Quoted(tags.closing) + "; one would be added."});
        entry.raw.append(LineEnd).append(tags.closing);
    }
    m_entries.push_back(std::move(entry));
}

// Reads an entry through its closing tag. False if the definitions end before that. Lines inside an entry may
// begin with "*".
bool Reader::ReadEntryText(LogicEntry& entry, const EntryTags& tags)
{
    EntryText text;
    std::size_t closing = None;
    for (bool first = true; closing == None && (first || NextEntryLine()); first = false) {
        closing = m_line.find(tags.closing, m_at);
        const std::string_view piece = m_line.substr(m_at, closing == None ? None : closing - m_at);
        text.Add(piece, closing != None);
        entry.raw.append(first ? "" : LineEnd).append(piece);
    }
    if (text.CutByBlanks()) {
        m_lost.push_back({entry.line, "The text of " + Quoted(entry.identifier) +
                                          ", which the advisor cuts because of its blanks, would be shown "
                                          "whole."});
    }
    entry.text = text.Take();
    if (closing == None) {
        return false;
    }
    entry.raw.append(tags.closing);
    m_at = closing + tags.closing.size();
    if (m_lines.Number() != entry.line && m_upper.find(DefinitionsClosing, m_at) != None) {
        LoseHiding();
    }
    return true;
}

// Reads the next line of an open entry. False if the definitions end there.
bool Reader::NextEntryLine()
{
    m_ended = !NextLine() || Trim(m_upper) == DefinitionsClosing;
    return !m_ended;
}

// After the definitions only the closing tag belongs to the block; reports all other text as lost.
void Reader::LoseRest()
{
    if (m_stopped) {
        Lose("The advisor reads no further than " + Quoted(Trim(m_line)) +
             "; that line and all behind it would be dropped.");
    }
    while (m_lines.Next(m_line)) {
        const std::string_view trimmed = Trim(m_line);
        if (!EqualsUpper(trimmed, BlockClosing) && !(m_stopped && EqualsUpper(trimmed, DefinitionsClosing))) {
            LoseText(m_line);
        }
    }
}

} // namespace

std::vector<LogicEntry> ReadLogicBlock(std::string_view text, std::string& logicText,
                                       std::vector<LostPart>& lost)
{
    return Reader(text, logicText, lost).Run();
}

} // namespace ls::logic
