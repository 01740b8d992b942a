#pragma once

#include "authoring/LogicTags.h"
#include "base/Text.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>

namespace ls::logic {

/// The lines of a text, divided as in the file of a book: LF without CR is an ordinary character.
class Lines
{
public:
    explicit Lines(std::string_view text) : m_text(text) {}

    bool Next(std::string_view& line)
    {
        if (m_next >= m_text.size()) {
            return false;
        }
        const std::size_t end = std::min(m_text.find('\r', m_next), m_text.size());
        line = m_text.substr(m_next, end - m_next);
        m_next = end + (m_text.substr(end).starts_with(LineEnd) ? 2 : 1);
        ++m_number;
        return true;
    }

    [[nodiscard]] int Number() const { return m_number; }

private:
    std::string_view m_text;
    std::size_t m_next = 0;
    int m_number = 0;
};

/// Collects the text of an entry piece by piece.
class EntryText
{
public:
    void Add(std::string_view piece, bool last)
    {
        m_cut = m_cut || m_text.size() + piece.size() > ShownLength;
        piece = Trim(piece);
        if (!m_text.empty() && !(last && piece.empty())) {
            m_text += LineEnd;
        }
        m_text += piece;
    }

    /// Whether the advisor cuts the text only because of blanks around its lines.
    [[nodiscard]] bool CutByBlanks() const { return m_cut && m_text.size() <= ShownLength; }

    /// Returns the text. A line beginning with "[" would start a topic, so it gets a leading blank if the
    /// text is to be on lines of its own.
    [[nodiscard]] std::string Take()
    {
        if (!OnOwnLines(m_text) || m_text.find('[') == std::string::npos) {
            return std::move(m_text);
        }
        std::string guarded;
        for (std::size_t i = 0; i < m_text.size(); ++i) {
            const bool lineStart = i == 0 || (i >= 2 && m_text[i - 1] == '\n' && m_text[i - 2] == '\r');
            guarded.append(m_text[i] == '[' && lineStart ? " " : "").append(1, m_text[i]);
        }
        return guarded;
    }

private:
    std::string m_text;
    bool m_cut = false;
};

} // namespace ls::logic
