#pragma once

#include <QRectF>

#include <span>

class QPainter;

namespace ls {

struct CellMetrics;
struct Run;

/// Paints recorded runs, which are in the order of their rows. Row 1 and column 1 are at the painter's
/// origin. Only the cells in `area` are visited, so the cost depends on what is visible, not on what was
/// printed. The caller paints the background.
void PaintRuns(QPainter& painter, std::span<const Run> runs, const CellMetrics& metrics, const QRectF& area);

} // namespace ls
