#pragma once

#include <QRectF>

#include <span>

class QPainter;

namespace ls {

struct CellMetrics;
struct Run;

/// Paints recorded runs. Row 1 and column 1 stand at the painter's origin; only the cells that `area` touches
/// are looked at, so that the cost depends on what is seen and not on how much was printed. `runs` are in the
/// order of their rows. The ground is the caller's.
void PaintRuns(QPainter& painter, std::span<const Run> runs, const CellMetrics& metrics, const QRectF& area);

} // namespace ls
