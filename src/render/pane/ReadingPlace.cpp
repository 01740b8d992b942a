#include "render/pane/ReadingPlace.h"

#include "render/text/TopicText.h"

#include <algorithm>
#include <string>

namespace ls {

namespace {

// A TAB counts as blank, as it becomes blanks at the start of a line.
bool IsSolid(char c)
{
    return c != ' ' && c != '\n' && c != '\t';
}

} // namespace

std::size_t ReadingPlace(const TopicText& topic, std::size_t offset)
{
    const std::string& text = topic.Text();
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(offset, text.size()));
    return static_cast<std::size_t>(std::count_if(text.begin(), end, IsSolid));
}

std::size_t OffsetOfPlace(const TopicText& topic, std::size_t place)
{
    const std::string& text = topic.Text();
    std::size_t solid = 0;
    const auto at =
        std::find_if(text.begin(), text.end(), [&](char c) { return IsSolid(c) && solid++ == place; });
    return static_cast<std::size_t>(at - text.begin());
}

std::size_t EndBeforePlace(const TopicText& topic, std::size_t place)
{
    return place == 0 ? 0 : std::min(OffsetOfPlace(topic, place - 1) + 1, topic.Length());
}

int LineOfPlace(const TopicText& topic, std::size_t place)
{
    return place == 0 ? 1 : std::max(topic.LineAt(OffsetOfPlace(topic, place)), 1);
}

KeptSelection::KeptSelection(const TopicText& topic, const TextSelection& selection)
{
    const TextRange range = selection.Range();
    m_begin = ReadingPlace(topic, range.begin);
    m_end = ReadingPlace(topic, range.end);
    m_empty = range.Empty();
    m_afterWord = range.end == topic.Length() || !IsSolid(topic.Text()[range.end]);
    m_fromStart = range.begin == 0;
    m_toEnd = range.end >= topic.Length();
    m_backwards = selection.Caret() < selection.Anchor();
}

TextSelection KeptSelection::In(const TopicText& topic) const
{
    const std::size_t begin = m_fromStart ? 0 : OffsetOfPlace(topic, m_begin);
    const std::size_t after = m_toEnd ? topic.Length() : EndBeforePlace(topic, m_end);
    TextSelection selection;
    if (m_empty) {
        selection.MoveTo(m_afterWord && !m_fromStart ? after : begin, false);
        return selection;
    }
    const std::size_t end = std::max(begin, after);
    selection.MoveTo(m_backwards ? end : begin, false);
    selection.MoveTo(m_backwards ? begin : end, true);
    return selection;
}

} // namespace ls
