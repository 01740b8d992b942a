#include "render/pane/SelectedRuns.h"

#include <algorithm>

namespace ls {

namespace {

// Computes where each run begins in the text. REQUIRES: the first run is the first one of its line.
class RunPlaces
{
public:
    explicit RunPlaces(const TopicText& topic) : m_topic(&topic) {}

    std::size_t Start(const Run& run)
    {
        if (run.displayLine != m_line) {
            m_line = run.displayLine;
            m_next = m_topic->LineStart(run.displayLine);
        }
        const std::size_t start = m_next;
        m_next += run.text.size();
        return start;
    }

private:
    const TopicText* m_topic;
    int m_line = 0;
    std::size_t m_next = 0;
};

void AddPiece(const Run& run, std::size_t start, TextRange range, std::vector<Run>& pieces)
{
    const std::size_t end = start + run.text.size();
    const std::size_t first = std::max(start, range.begin);
    const std::size_t last = std::min(end, range.end);
    if (first < last) {
        Run& piece = pieces.emplace_back(run);
        piece.text = run.text.substr(first - start, last - first);
        piece.firstColumn += static_cast<int>(first - start);
        piece.endRow = false;
    }
    if (run.endRow && range.begin <= end && range.end > end) {
        Run& rowEnd = pieces.emplace_back();
        rowEnd.displayLine = run.displayLine;
        rowEnd.row = run.row;
        rowEnd.firstColumn = run.firstColumn + static_cast<int>(run.text.size());
        rowEnd.text = " ";
    }
}

} // namespace

std::size_t OffsetAt(std::span<const Run> runs, const TopicText& topic, CellPlace place)
{
    if (runs.empty()) {
        return 0;
    }
    const int row = std::clamp(place.row, runs.front().row, runs.back().row);
    auto run = std::partition_point(runs.begin(), runs.end(), [row](const Run& r) { return r.row < row; });
    // Finds the last run that begins at the column or before it. If all begin after it, the row's first run
    // counts.
    RunPlaces places(topic);
    std::size_t offset = topic.LineStart(run->displayLine);
    for (; run != runs.end() && run->row == row; ++run) {
        const std::size_t start = places.Start(*run);
        if (run->firstColumn <= place.column) {
            const auto into = static_cast<std::size_t>(place.column - run->firstColumn);
            offset = start + std::min(into, run->text.size());
        }
    }
    return std::min(offset, topic.Length());
}

std::optional<CellPlace> PlaceOf(std::span<const Run> runs, const TopicText& topic, std::size_t offset)
{
    RunPlaces places(topic);
    for (const Run& run : runs) {
        const std::size_t start = places.Start(run);
        if (start <= offset && offset <= start + run.text.size()) {
            return CellPlace{run.row, run.firstColumn + static_cast<int>(offset - start)};
        }
    }
    return std::nullopt;
}

std::vector<Run> SelectedRuns(std::span<const Run> runs, const TopicText& topic, TextRange range)
{
    std::vector<Run> pieces;
    if (range.Empty()) {
        return pieces;
    }
    RunPlaces places(topic);
    for (const Run& run : runs) {
        AddPiece(run, places.Start(run), range, pieces);
    }
    return pieces;
}

} // namespace ls
