#pragma once

#include "print/canvas.h"
#include "reports/graph_view.h"

namespace zelvor {

// Where the lines of the graph and its labels stand along the horizontal. On the screen a month is 100 wide;
// a print squeezes as many as there are onto the sheet and labels only every so many of them.
struct GraphScale {
    double monthWidth = 100;
    std::size_t labelEvery = 1; // 1 for each month
};

// The width that the graph takes, for whoever scrolls it.
double graphWidth(const GraphView& graph, const GraphScale& scale = {});
// Draws the graph with its lower left corner at the origin of the canvas.
void drawGraph(const GraphView& graph, Canvas& canvas, const QSizeF& size, const GraphScale& scale = {});

} // namespace zelvor
