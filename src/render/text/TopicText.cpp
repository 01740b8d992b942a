#include "render/text/TopicText.h"

#include "base/Count16.h"
#include "render/text/DisplayLines.h"
#include "render/text/DrawLines.h"

#include <algorithm>

namespace ls {

// The surface that the lines are drawn on.
class TopicText::Collector : public TextSurface
{
public:
    explicit Collector(TopicText& topic) : m_topic(topic) {}

    void Clear() override {}
    void SetBold(bool on) override { m_style.bold = on; }
    void SetItalic(bool on) override { m_style.italic = on; }
    void SetUnderline(bool on) override { m_style.underline = on; }
    void SetColour(Colour colour) override { m_style.colour = colour; }

    void BeginLine(int /*displayLine*/) override
    {
        if (m_rowEnded) {
            m_rowEnded = false;
            Append("\n");
            m_topic.m_rowStarts.push_back(m_topic.m_text.size());
        }
        m_topic.m_lineStarts.push_back(m_topic.m_text.size());
    }

    void Print(std::string_view text, bool endRow) override
    {
        Append(text);
        m_rowEnded = endRow;
    }

    [[nodiscard]] double InnerWidth() const override { return 0; }
    [[nodiscard]] double InnerHeight() const override { return 0; }
    [[nodiscard]] double TextWidth(std::string_view text) const override
    {
        return static_cast<double>(text.size());
    }
    [[nodiscard]] double TextHeight(std::string_view /*text*/) const override { return 1; }

private:
    void Append(std::string_view text)
    {
        if (text.empty()) {
            return;
        }
        const std::size_t begin = m_topic.m_text.size();
        m_topic.m_text += text;
        std::vector<StyledPart>& parts = m_topic.m_parts;
        if (!parts.empty() && parts.back().style == m_style) {
            parts.back().range.end = m_topic.m_text.size();
        } else {
            parts.push_back({{begin, m_topic.m_text.size()}, m_style});
        }
    }

    TopicText& m_topic;
    TextStyle m_style;
    bool m_rowEnded = false;
};

namespace {

// The number, from 1, of the last start at or before an offset; 0 for none.
int NumberAt(const std::vector<std::size_t>& starts, std::size_t offset)
{
    return static_cast<int>(std::upper_bound(starts.begin(), starts.end(), offset) - starts.begin());
}

} // namespace

TopicText::TopicText(const DisplayLines& lines, float bookVersion)
{
    Collector collector(*this);
    DrawRows(collector, lines, 1, Count16::Max, bookVersion);
}

std::string TopicText::Part(TextRange range) const
{
    const std::size_t begin = std::min(range.begin, m_text.size());
    return range.end > begin ? m_text.substr(begin, range.end - begin) : std::string();
}

std::size_t TopicText::LineStart(int displayLine) const
{
    const auto index = static_cast<std::size_t>(std::max(displayLine, 1) - 1);
    return index < m_lineStarts.size() ? m_lineStarts[index] : m_text.size();
}

int TopicText::LineAt(std::size_t offset) const
{
    return NumberAt(m_lineStarts, offset);
}

int TopicText::RowAt(std::size_t offset) const
{
    return NumberAt(m_rowStarts, offset);
}

TextRange TopicText::Row(int row) const
{
    const auto index = static_cast<std::size_t>(std::clamp(row, 1, RowCount()) - 1);
    const bool last = index + 1 == m_rowStarts.size();
    return {m_rowStarts[index], last ? m_text.size() : m_rowStarts[index + 1] - 1};
}

StyledPart TopicText::StyleAt(std::size_t offset) const
{
    const auto part = std::partition_point(m_parts.begin(), m_parts.end(),
                                           [offset](const StyledPart& p) { return p.range.end <= offset; });
    return part != m_parts.end() ? *part : StyledPart{{m_text.size(), m_text.size()}, {}};
}

int HeadingLevel(Colour colour)
{
    if (colour == DarkRed) {
        return 1;
    }
    if (colour == DarkGreen) {
        return 2;
    }
    return colour == DarkBlue ? 3 : 0;
}

} // namespace ls
