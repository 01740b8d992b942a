#pragma once

#include "render/text/RunList.h"
#include "render/text/TopicText.h"

#include <optional>
#include <span>
#include <vector>

namespace ls {

/// A place between the characters of recorded rows: before the character in that row and column, from 1.
struct CellPlace
{
    int row = 1;
    int column = 1;

    friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

// In the functions below, `runs` are prints of `topic` that begin at any line.

/// The place in the text that is nearest to a place in the rows. A column after a row's end gives that end, a
/// place above the first row gives the first row, a place below the last row gives the last row.
[[nodiscard]] std::size_t OffsetAt(std::span<const Run> runs, const TopicText& topic, CellPlace place);

/// Where an offset of the text is in the rows; nothing if its line was not drawn.
[[nodiscard]] std::optional<CellPlace> PlaceOf(std::span<const Run> runs, const TopicText& topic,
                                               std::size_t offset);

/// The part of the rows that `range` covers: pieces of the runs, with their styles. A row's end becomes a
/// plain blank, so that a selected empty row is visible.
[[nodiscard]] std::vector<Run> SelectedRuns(std::span<const Run> runs, const TopicText& topic,
                                            TextRange range);

} // namespace ls
