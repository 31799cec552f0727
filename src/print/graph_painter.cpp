#include "print/graph_painter.h"

#include "core/formats.h"

namespace zelvor {

namespace {

constexpr double axisX = 70;
constexpr double axisY = 50;
constexpr double valueRight = 65; // the right edge of the values beside the upright axis
constexpr int smallestFont = 4;
constexpr double unscaledHeight = 100; // below and above the scale
constexpr double rightMargin = 30;     // behind the last month
constexpr double hairline = 0.2;
constexpr int stepHeight = 50;
constexpr double dotRadius = 3;

class GraphPainter {
public:
    GraphPainter(const GraphView& graph, Canvas& canvas, const QSizeF& size, const GraphScale& scale)
        : m_graph(graph), m_canvas(canvas), m_size(size), m_scale(scale), m_maxValue(graph.maxValue()),
          m_unit((size.height() - unscaledHeight) / static_cast<double>(m_maxValue)),
          m_right(graphWidth(graph, scale))
    {}

    void draw()
    {
        drawAxes();
        drawGrid();
        for (std::size_t month = 0; month < m_graph.dates.size(); ++month)
            drawMonth(month);
        for (const auto& row : m_graph.reportRows)
            drawRow(*row);
    }

private:
    double monthX(std::size_t month) const
    {
        return axisX + m_scale.monthWidth * (static_cast<double>(month) + 0.5);
    }

    void drawAxes()
    {
        Canvas::Path axes{0.5};
        axes.add({axisX, axisY}, {axisX, m_size.height() - 20});
        axes.add({axisX, axisY}, {m_right, axisY});
        m_canvas.stroke(axes, blackColor);
    }

    // A height that leaves no room for a step has no grid.
    void drawGrid()
    {
        const int steps = static_cast<int>(m_size.height() - unscaledHeight) / stepHeight;
        Canvas::Path grid{hairline, {1, 1}};
        for (int i = 1; i <= steps; ++i) {
            const double value = static_cast<double>(m_maxValue) / steps * i;
            const double y = m_unit * value + axisY;
            grid.add({axisX + 1, y}, {m_right - 5, y});
            drawValue(value, y);
        }
        m_canvas.stroke(grid, blackColor);
    }

    void drawValue(double value, double y)
    {
        const QString text = wholeNumberText(Decimal::fromDouble(value));
        QFont font = m_font;
        QSizeF size = m_canvas.textSize(text, font);
        while (size.width() > valueRight && font.pixelSize() > smallestFont) { // billions
            font.setPixelSize(font.pixelSize() - 1);
            size = m_canvas.textSize(text, font);
        }
        m_canvas.text({valueRight - size.width(), y - size.height() / 2}, text, font, blackColor);
    }

    void drawMonth(std::size_t month)
    {
        Canvas::Path tick{hairline};
        tick.add({monthX(month), axisY + 2}, {monthX(month), axisY - 2});
        m_canvas.stroke(tick, blackColor);
        if (month % m_scale.labelEvery != 0)
            return;
        const QString text = m_graph.label(m_graph.dates[month]);
        const QSizeF size = m_canvas.textSize(text, m_font);
        const double left = monthX(month) - size.width() / 2;
        if (left + size.width() <= m_right) // the last one of a squeezed graph may have no room
            m_canvas.text({left, axisY - 2 - size.height()}, text, m_font, blackColor);
    }

    void drawRow(const DynamicsReportRow& row)
    {
        std::vector<QPointF> points;
        for (std::size_t month = 0; month < row.data.size(); ++month) {
            if (!row.data[month].isNaN())
                points.emplace_back(monthX(month), row.data[month].toDouble() * m_unit + axisY);
        }
        const Color& color = m_graph.colorOf(row);
        const QRectF sheet(QPointF(0, 0), m_size);
        if (points.size() == 1 && sheet.contains(points.front())) // a line of one point could not be seen
            m_canvas.wedge(points.front(), dotRadius, 0, 360, color);
        m_canvas.polyline(points, 3, color, sheet);
    }

    const GraphView& m_graph;
    Canvas& m_canvas;
    const QSizeF m_size;
    const GraphScale m_scale;
    const qint64 m_maxValue;
    const double m_unit; // points
    const double m_right;
    const QFont m_font = printFont(10);
};

} // namespace

double graphWidth(const GraphView& graph, const GraphScale& scale)
{
    return axisX + static_cast<double>(graph.dates.size()) * scale.monthWidth + rightMargin;
}

void drawGraph(const GraphView& graph, Canvas& canvas, const QSizeF& size, const GraphScale& scale)
{
    canvas.fill(QRectF(QPointF(0, 0), size), whiteColor);
    if (!graph.reportRows.empty())
        GraphPainter(graph, canvas, size, scale).draw();
}

} // namespace zelvor
