#pragma once

#include "render/pane/TextSelection.h"

#include <cstddef>

namespace ls {

class TopicText;

// A reader's place is the count of characters before it, without blanks. It does not change when the topic's
// lines are broken anew.

/// The reader's place at an offset in the text.
[[nodiscard]] std::size_t ReadingPlace(const TopicText& topic, std::size_t offset);

/// The offset of the first character after the place that is not blank; the end of the text if there is none.
[[nodiscard]] std::size_t OffsetOfPlace(const TopicText& topic, std::size_t place);

/// The offset at which the last word before the place ends.
[[nodiscard]] std::size_t EndBeforePlace(const TopicText& topic, std::size_t place);

/// The display line, from 1, in which the reader goes on.
[[nodiscard]] int LineOfPlace(const TopicText& topic, std::size_t place);

/// A selection that can be found again after the topic's lines are broken anew. Blanks at its ends are lost,
/// except at the start and end of the text. Without a selection it holds the caret.
class KeptSelection
{
public:
    KeptSelection(const TopicText& topic, const TextSelection& selection);

    /// Selects the same characters in the same topic with other lines.
    [[nodiscard]] TextSelection In(const TopicText& topic) const;

private:
    std::size_t m_begin = 0; // both are places as above
    std::size_t m_end = 0;
    bool m_empty = true;
    bool m_afterWord = false; // a caret before a blank or a row's end stays after the character before it
    bool m_fromStart = false;
    bool m_toEnd = false;
    bool m_backwards = false; // the caret is at the start of the selection
};

} // namespace ls
