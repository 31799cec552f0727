#include "print/chart_painter.h"

#include "core/formats.h"
#include "core/localized.h"

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double pieSize = 350;
constexpr double pieRadius = 165;
constexpr double legendStep = 40;
constexpr double swatchX = 370;
constexpr double swatchSize = 20;
constexpr double legendX = 400;

QFont legendFont()
{
    return printFont(14, false, true);
}

QFont smallLegendFont()
{
    return printFont(11, false, true);
}

// The lines of the legend for one slice.
struct Legend {
    QString share;
    QString parts;
};

Decimal sumOfTotals(const ChartView& chart)
{
    Decimal sum;
    for (const QString& key : chart.keys)
        sum = sum.plus(chart.data.at(key).total, moneyHandler);
    return sum;
}

Legend legendOf(const QString& key, const ChartView::Share& share, const Decimal& sum)
{
    const Decimal percent =
        sum.isZero() ? Decimal()
                     : share.total.dividedBy(sum, percentHandler).times(Decimal(100), moneyHandler);
    return {percent.toText() + u"% - "_s + key,
            localized("const: ") + amountText(share.constant) + u", "_s + localized("var: ") +
                amountText(share.total.minus(share.constant, moneyHandler))};
}

class ChartPainter {
public:
    ChartPainter(const ChartView& chart, Canvas& canvas, double height)
        : m_chart(chart), m_canvas(canvas), m_height(height), m_sum(sumOfTotals(chart))
    {}

    void draw()
    {
        for (std::size_t i = 0; i < m_chart.keys.size(); ++i) {
            const QString& key = m_chart.keys[i];
            const ChartView::Share& share = m_chart.data.at(key);
            const Color& color = ChartView::colors[i % ChartView::colors.size()];
            drawSlice(share, color);
            drawLegend(legendOf(key, share, m_sum), m_height - static_cast<double>(i + 1) * legendStep,
                       color);
        }
    }

private:
    // Nothing of nothing has no slice.
    void drawSlice(const ChartView::Share& share, const Color& color)
    {
        if (m_sum.isNaN() || m_sum.isZero() || share.total.isZero())
            return;
        const double total = share.total.toDouble();
        const double angle = total * 360 / m_sum.toDouble();
        const QPointF centre(pieSize / 2, pieSize / 2);
        m_canvas.wedge(centre, pieRadius, m_start, angle, color);
        m_canvas.wedge(centre, pieRadius * share.constant.toDouble() / total, m_start, angle, color);
        m_start += angle;
    }

    void drawLegend(const Legend& legend, double y, const Color& color)
    {
        m_canvas.fill(QRectF(swatchX, y, swatchSize, swatchSize), color);
        m_canvas.text({legendX, y}, legend.share, legendFont(), blackColor);
        m_canvas.text({legendX, y - 12}, legend.parts, smallLegendFont(), blackColor);
    }

    const ChartView& m_chart;
    Canvas& m_canvas;
    const double m_height;
    const Decimal m_sum;
    double m_start = 0; // degrees
};

} // namespace

QSizeF chartSize(const ChartView& chart)
{
    const Decimal sum = sumOfTotals(chart);
    double width = pieSize;
    FontFaces faces;
    for (const QString& key : chart.keys) {
        const Legend legend = legendOf(key, chart.data.at(key), sum);
        width = std::max({width, legendX + faces.textSize(legend.share, legendFont()).width(),
                          legendX + faces.textSize(legend.parts, smallLegendFont()).width()});
    }
    const auto slices = static_cast<double>(chart.keys.size());
    return {width + 10, std::max(pieSize, slices * legendStep + 20)};
}

void drawChart(const ChartView& chart, Canvas& canvas, const QSizeF& size)
{
    canvas.fill(QRectF(QPointF(0, 0), size), whiteColor);
    ChartPainter(chart, canvas, size.height()).draw();
}

} // namespace zelvor
