#pragma once

#include "render/pane/TextSelection.h"

#include <cstddef>

namespace ls {

class TopicText;

// A reader's place is the count of characters before it that are no blanks. It stays the same however the
// topic's lines are broken.

/// How far a reader has come at an offset of the text.
[[nodiscard]] std::size_t ReadingPlace(const TopicText& topic, std::size_t offset);

/// The first character, no blank, that a reader who has come so far still has to read; the end of the text
/// where there is none.
[[nodiscard]] std::size_t OffsetOfPlace(const TopicText& topic, std::size_t place);

/// Where a reader who has come so far stopped: behind the last character, no blank, that was read.
[[nodiscard]] std::size_t OffsetBehindPlace(const TopicText& topic, std::size_t place);

/// The display line, from 1, that a reader who has come so far goes on in.
[[nodiscard]] int LineOfPlace(const TopicText& topic, std::size_t place);

/// A selection that is to be found again when the topic's lines have been broken anew. Blanks at its ends are
/// lost, unless they are those of the whole text. A caret without selection is kept as well.
class KeptSelection
{
public:
    KeptSelection(const TopicText& topic, const TextSelection& selection);

    /// The same characters in the same topic, whose lines may be others.
    [[nodiscard]] TextSelection In(const TopicText& topic) const;

private:
    std::size_t m_begin = 0; // places of a reader
    std::size_t m_end = 0;
    bool m_empty = true;
    bool m_behind = false; // a caret with a blank or a row's end behind it stays with what is before it
    bool m_fromStart = false;
    bool m_toEnd = false;
    bool m_backwards = false; // the caret is at the first character
};

} // namespace ls
