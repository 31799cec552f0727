#pragma once

#include "print/canvas.h"
#include "reports/chart_view.h"

namespace zelvor {

// The room that the pie and its legend take.
QSizeF chartSize(const ChartView& chart);
// Draws the pie with its lower left corner at the origin of the canvas.
void drawChart(const ChartView& chart, Canvas& canvas, const QSizeF& size);

} // namespace zelvor
