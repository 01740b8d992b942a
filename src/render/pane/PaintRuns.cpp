#include "render/pane/PaintRuns.h"

#include "forms/CellMetrics.h"
#include "render/text/RunList.h"

#include <QPainter>
#include <QString>

#include <algorithm>
#include <cmath>

namespace ls {

namespace {

// The visible cells of a row, counted from 0: from `first` to before `end`.
struct ColumnRange
{
    std::size_t first = 0;
    std::size_t end = 0;
};

// The columns in the area, and one more on each side, as slanted letters lean out of their cells.
ColumnRange VisibleColumns(const CellMetrics& metrics, const QRectF& area)
{
    const double left = std::floor(area.left() / metrics.charWidth) - 1;
    const double right = std::ceil(area.right() / metrics.charWidth) + 1;
    return {static_cast<std::size_t>(std::max(0.0, left)), static_cast<std::size_t>(std::max(0.0, right))};
}

double RowTop(const Run& run, const CellMetrics& metrics)
{
    return (run.row - 1) * metrics.rowHeight;
}

std::size_t FaceOf(const Run& run)
{
    return (run.bold ? BoldFace : RegularFace) + (run.italic ? ItalicFace : RegularFace);
}

// Draws text from `column` on. Characters that advance by exactly one cell are drawn together, others alone.
void DrawCells(QPainter& painter, const std::string_view text, std::size_t column, double baseline,
               const CellMetrics& metrics, const std::bitset<256>& exact)
{
    const auto isExact = [&exact](char c) { return exact[static_cast<unsigned char>(c)]; };
    QString piece;
    for (std::size_t at = 0; at < text.size(); at += static_cast<std::size_t>(piece.size())) {
        const auto* start = text.begin() + at;
        const auto* end = isExact(*start) ? std::find_if_not(start, text.end(), isExact) : start + 1;
        piece.resize(end - start);
        std::transform(start, end, piece.begin(), [](char c) { return QChar(CellCharacter(c)); });
        painter.drawText(QPointF(static_cast<double>(column + at) * metrics.charWidth, baseline), piece);
    }
}

void PaintRun(QPainter& painter, const Run& run, const CellMetrics& metrics, const ColumnRange& columns)
{
    const auto start = static_cast<std::size_t>(run.firstColumn - 1);
    const std::size_t first = std::max(start, columns.first);
    const std::size_t end = std::min(start + run.text.size(), columns.end);
    if (first >= end) {
        return;
    }
    const std::size_t face = FaceOf(run);
    const double top = RowTop(run, metrics);
    const QColor colour(run.colour.red, run.colour.green, run.colour.blue);
    painter.setFont(metrics.fonts[face]);
    painter.setPen(colour);
    DrawCells(painter, std::string_view(run.text).substr(first - start, end - first), first,
              top + metrics.baseline, metrics, metrics.exact[face]);
    if (run.underline) {
        painter.fillRect(QRectF(static_cast<double>(first) * metrics.charWidth, top + metrics.underlineTop,
                                static_cast<double>(end - first) * metrics.charWidth, metrics.underlineSize),
                         colour);
    }
}

} // namespace

void PaintRuns(QPainter& painter, std::span<const Run> runs, const CellMetrics& metrics, const QRectF& area)
{
    const ColumnRange columns = VisibleColumns(metrics, area);
    painter.save();
    painter.setLayoutDirection(Qt::LeftToRight); // columns count from the left on every desktop
    const auto isAbove = [&](const Run& run) {
        return RowTop(run, metrics) + metrics.rowHeight <= area.top();
    };
    for (auto run = std::partition_point(runs.begin(), runs.end(), isAbove);
         run != runs.end() && RowTop(*run, metrics) < area.bottom(); ++run) {
        PaintRun(painter, *run, metrics, columns);
    }
    painter.restore();
}

} // namespace ls
