#pragma once

#include "render/text/RunList.h"
#include "render/text/TopicText.h"

#include <optional>
#include <span>
#include <vector>

namespace ls {

/// A place between the characters of recorded rows: in front of the one in that row and column, from 1.
struct CellPlace
{
    int row = 1;
    int column = 1;

    friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

// In the following, `runs` are those that lines of `topic` gave, drawn from whichever line on.

/// The place in the text that is nearest to a place in the rows: a row's end for columns behind it, the first
/// row for what lies above, the last for what lies below.
[[nodiscard]] std::size_t OffsetAt(std::span<const Run> runs, const TopicText& topic, CellPlace place);

/// Where a place in the text is seen; nothing when its line was not drawn.
[[nodiscard]] std::optional<CellPlace> PlaceOf(std::span<const Run> runs, const TopicText& topic,
                                               std::size_t offset);

/// What a part of the text covers in the rows: pieces of the runs with the styles they have. The end of a row
/// is a plain blank, so that an empty row is seen to be selected, too.
[[nodiscard]] std::vector<Run> SelectedRuns(std::span<const Run> runs, const TopicText& topic,
                                            TextRange range);

} // namespace ls
