#include "print/print_dynamics.h"

#include "core/localized.h"

#include <algorithm>
#include <cmath>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double sheetWidth = 750; // that is drawn on
constexpr double leftEdge = 1;
constexpr double pageHeight = 505;   // of landscape A4 between its margins
constexpr double headingBottom = 45; // below the top of the sheet
constexpr double graphTop = 52;
constexpr double graphHeight = 240;
// Of its height, under the labels of the months. What a loss draws there, the titles of the table cover.
constexpr double emptyBelowGraph = 27;
constexpr double lineHeight = 15;
constexpr double bandGap = 12;
constexpr double textInset = 6;
constexpr double numberInset = 3;
constexpr double leastNameWidth = 80;
constexpr double leastFigureWidth = 56;
constexpr double leastChangeWidth = 40;

QString changeText(double fraction)
{
    const Decimal percent = Decimal::fromDouble(fraction).times(Decimal(100), moneyHandler);
    return PrintView::numberText(percent) + u" %"_s;
}

} // namespace

PrintDynamics::PrintDynamics(AppDelegate& owner, const DynamicsReportView& report)
    : PrintView(owner, landscape, localized("Dynamics")), m_start(report.start()), m_finish(report.finish()),
      m_graph(owner.calendar)
{
    m_graph.dates = report.dates();
    m_graph.reportRows = report.reportRows();
    const GraphView& shown = report.graph();
    m_graph.realizationColor.setColor(shown.realizationColor.color());
    m_graph.marginColor.setColor(shown.marginColor.color());
    m_graph.incomColor.setColor(shown.incomColor.color());
    m_graph.expensesColor.setColor(shown.expensesColor.color());
    for (const MonthPeriod& month : m_graph.dates)
        m_monthTitles.append(report.monthTitle(month));
    measureColumns();
    placeBands();
}

void PrintDynamics::setData()
{
    PrintView::setData();
    placeBands(); // a logo needs its room on the sheet
}

void PrintDynamics::measureColumns()
{
    m_nameWidth = leastNameWidth;
    m_figureWidth = leastFigureWidth;
    m_changeWidth = leastChangeWidth;
    const auto widen = [this](double& width, const QString& text) {
        width = std::max(width, std::ceil(textSize(text, colDataFont).width()) + 3 * numberInset);
    };
    for (const auto& row : m_graph.reportRows) {
        widen(m_nameWidth, row->name);
        for (std::size_t month = 0; month < m_graph.dates.size(); ++month) {
            widen(m_figureWidth, figure(*row, month).text);
            widen(m_changeWidth, change(*row, month).text);
        }
    }
    const double fitting = (sheetWidth - m_nameWidth) / (m_figureWidth + m_changeWidth);
    m_monthsOfABand = static_cast<std::size_t>(std::max(fitting, 1.0));
}

double PrintDynamics::heightOfBand() const
{
    return lineHeight + static_cast<double>(m_graph.reportRows.size()) * (lineHeight + 1);
}

double PrintDynamics::widthOf(const Band& band) const
{
    double width = m_nameWidth;
    for (std::size_t month = band.first; month < band.end; ++month)
        width += m_figureWidth + changeWidth(month);
    return width;
}

void PrintDynamics::placeBands()
{
    m_bands.clear();
    double top =
        delta + (m_graph.dates.empty() ? graphTop : graphTop + graphHeight - emptyBelowGraph + bandGap);
    for (std::size_t first = 0; first < m_graph.dates.size(); first += m_monthsOfABand) {
        const double edge = pageHeight * std::ceil(top / pageHeight);
        if (top + heightOfBand() > edge)
            top = edge + bandGap;
        m_bands.push_back({first, std::min(first + m_monthsOfABand, m_graph.dates.size()), top});
        top += heightOfBand() + bandGap;
    }
    setFrame({landscape.width(), m_bands.empty() ? top : top - bandGap + 1});
}

QString PrintDynamics::heading() const
{
    return localized("Period From: ") + dateText(m_start) + localized(" To:") + dateText(m_finish);
}

// As many months as there are fit the sheet; a label stands where the one before leaves room.
GraphScale PrintDynamics::graphScale() const
{
    GraphScale scale;
    const double others = graphWidth(m_graph) - static_cast<double>(m_graph.dates.size()) * scale.monthWidth;
    scale.monthWidth =
        std::min(scale.monthWidth, (sheetWidth - others) / static_cast<double>(m_graph.dates.size()));
    double label = 0;
    for (const MonthPeriod& month : m_graph.dates)
        label = std::max(label, textSize(m_graph.label(month), dataFont).width() + 8);
    scale.labelEvery = static_cast<std::size_t>(std::ceil(label / scale.monthWidth));
    return scale;
}

void PrintDynamics::drawRect(Canvas& canvas)
{
    const double width = frame().width();
    const double top = frame().height() - delta;
    canvas.fill(QRectF({0, 0}, frame()), whiteColor);
    printLogo(canvas);
    canvas.text({width - textSize(title, titleFont).width() - 10, top - 30}, title, titleFont, titleColor);
    canvas.text({width - textSize(heading(), dataFont).width() - 12, top - headingBottom}, heading(),
                dataFont, blackColor);
    if (m_graph.dates.empty())
        return;
    drawLegend(canvas, top - headingBottom);
    const QPointF corner(0, top - graphTop - graphHeight);
    if (canvas.shows(corner.y(), corner.y() + graphHeight)) {
        Canvas part = canvas.movedTo(corner);
        drawGraph(m_graph, part, {sheetWidth, graphHeight}, graphScale());
    }
    for (const Band& band : m_bands)
        drawBand(canvas, band);
}

void PrintDynamics::drawLegend(Canvas& canvas, double y) const
{
    constexpr double lineLength = 20;
    double x = leftEdge + textInset;
    for (const auto& row : m_graph.reportRows) {
        const Color& color = m_graph.colorOf(*row);
        const QSizeF size = textSize(row->name, columnTitleFont);
        canvas.fill(QRectF(x, y + size.height() / 2 - 1.5, lineLength, 3), color);
        canvas.text({x + lineLength + 5, y}, row->name, columnTitleFont, color);
        x += lineLength + 5 + size.width() + 24;
    }
}

void PrintDynamics::drawBand(Canvas& canvas, const Band& band) const
{
    const double top = frame().height() - band.top;
    if (m_graph.reportRows.empty() || !canvas.shows(top - heightOfBand(), top))
        return;
    double bottom = top - lineHeight;
    drawTitles(canvas, band, bottom);
    for (const auto& row : m_graph.reportRows) {
        bottom -= lineHeight + 1;
        drawRow(canvas, band, *row, bottom);
    }
    drawLines(canvas, band, top);
}

void PrintDynamics::drawTitles(Canvas& canvas, const Band& band, double bottom) const
{
    canvas.fill(QRectF(leftEdge, bottom, widthOf(band), lineHeight), titleColor);
    const auto draw = [&](const QString& text, double centre) {
        const QSizeF size = textSize(text, colTitleFont);
        canvas.text({centre - size.width() / 2, bottom + lineHeight - 2 - size.height()}, text, colTitleFont,
                    whiteColor);
    };
    draw(localized("Name"), leftEdge + m_nameWidth / 2);
    double left = leftEdge + m_nameWidth;
    for (std::size_t month = band.first; month < band.end; ++month) {
        draw(m_monthTitles[static_cast<qsizetype>(month)], left + m_figureWidth / 2);
        left += m_figureWidth;
        if (month > 0)
            draw(u"%"_s, left + m_changeWidth / 2);
        left += changeWidth(month);
    }
}

PrintDynamics::Cell PrintDynamics::figure(const DynamicsReportRow& row, std::size_t month) const
{
    return {numberText(row.data[month])};
}

PrintDynamics::Cell PrintDynamics::change(const DynamicsReportRow& row, std::size_t month) const
{
    const QVariant value = row.valueForIdentifier(u"percent_"_s + QString::number(month));
    if (value.typeId() == QMetaType::QString)
        return {};
    return {changeText(value.toDouble()), value.toDouble() < 0};
}

void PrintDynamics::drawRow(Canvas& canvas, const Band& band, const DynamicsReportRow& row,
                            double bottom) const
{
    const double rise = (lineHeight - textSize(row.name, colDataFont).height()) / 2;
    canvas.text({leftEdge + textInset, bottom + rise}, row.name, colDataFont, blackColor);
    double right = leftEdge + m_nameWidth;
    for (std::size_t month = band.first; month < band.end; ++month) {
        right += m_figureWidth;
        drawCell(canvas, figure(row, month), right, bottom + rise);
        right += changeWidth(month);
        drawCell(canvas, change(row, month), right, bottom + rise);
    }
}

void PrintDynamics::drawCell(Canvas& canvas, const Cell& cell, double right, double bottom) const
{
    const double width = textSize(cell.text, colDataFont).width();
    canvas.text({right - numberInset - width, bottom}, cell.text, colDataFont,
                cell.isRed ? redColor : blackColor);
}

void PrintDynamics::drawLines(Canvas& canvas, const Band& band, double top) const
{
    const double bottom = top - heightOfBand();
    const double right = leftEdge + widthOf(band);
    Canvas::Path path{.lineWidth = 0.2};
    double y = top - lineHeight;
    for (std::size_t row = 0; row < m_graph.reportRows.size(); ++row) {
        y -= lineHeight + 1;
        path.add({leftEdge, y}, {right, y});
    }
    path.add({leftEdge, top}, {leftEdge, bottom});
    double x = leftEdge + m_nameWidth;
    for (std::size_t month = band.first; month < band.end; ++month) {
        path.add({x, top}, {x, bottom});
        x += m_figureWidth;
        if (month > 0)
            path.add({x, top}, {x, bottom});
        x += changeWidth(month);
    }
    path.add({right, top}, {right, bottom});
    canvas.stroke(path, tableBorderColor);
}

} // namespace zelvor
