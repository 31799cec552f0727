#pragma once

#include "print/graph_painter.h"
#include "print/print_view.h"

namespace zelvor {

// The dynamics report on paper: the graph over the width of the sheet, the names of its lines in their
// colours, and below it the figures in bands of as many months as stand side by side. No band is cut by the
// edge of a page.
class PrintDynamics final : public PrintView {
public:
    // Copies what the report shows.
    PrintDynamics(AppDelegate& owner, const DynamicsReportView& report);

    void setData() override;
    void drawRect(Canvas& canvas) override;

    // A stretch of months, and the upper edge of its table below the top of the sheet.
    struct Band {
        std::size_t first;
        std::size_t end;
        double top;
    };
    const std::vector<Band>& bands() const { return m_bands; }

private:
    // What a column of figures shows of a row.
    struct Cell {
        QString text;
        bool isRed = false;
    };

    void measureColumns();
    void placeBands();
    double heightOfBand() const;
    double changeWidth(std::size_t month) const { return month > 0 ? m_changeWidth : 0; }
    double widthOf(const Band& band) const;
    GraphScale graphScale() const;
    QString heading() const;
    Cell figure(const DynamicsReportRow& row, std::size_t month) const;
    Cell change(const DynamicsReportRow& row, std::size_t month) const;
    void drawLegend(Canvas& canvas, double y) const;
    void drawBand(Canvas& canvas, const Band& band) const;
    void drawTitles(Canvas& canvas, const Band& band, double bottom) const;
    void drawRow(Canvas& canvas, const Band& band, const DynamicsReportRow& row, double bottom) const;
    void drawLines(Canvas& canvas, const Band& band, double top) const;
    void drawCell(Canvas& canvas, const Cell& cell, double right, double bottom) const;

    const qint64 m_start;
    const qint64 m_finish;
    GraphView m_graph;
    QStringList m_monthTitles;
    double m_nameWidth = 0;
    double m_figureWidth = 0;
    double m_changeWidth = 0;
    std::size_t m_monthsOfABand = 1;
    std::vector<Band> m_bands;
};

} // namespace zelvor
