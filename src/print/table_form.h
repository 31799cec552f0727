#pragma once

#include "core/view.h"
#include "print/print_view.h"

#include <utility>

namespace zelvor {

// The common pattern of the report forms: the title, the line with the period, a further line that heads the
// table, and one table below a coloured band of titles. Texts wrap, so a row is as high as its longest cell.
//
// A report may have tens of thousands of rows: what a cell shows is worked out once, when the rows come in,
// and a page draws only the rows that it holds.
class TableForm : public PrintView {
public:
    struct Column {
        QString identifier; // of the report's column; empty for the row's number
        QString title;
        double width = 0;
        CellKind kind = CellKind::Text;
        double gap = 0; // free room before the column, which begins another block then
    };

    static constexpr double lineHeight = 15; // of each line of a row

    // The first column begins at x `leftEdge`.
    TableForm(AppDelegate& owner, const QSizeF& sheet, QString formTitle, std::vector<Column> formColumns,
              double leftEdge = 1);

    const std::vector<Column> columns;
    const QStringList titles;
    const std::vector<double> colWidth;
    const std::vector<double> axis; // the columns' centres
    const Color groupColor = inOrderColor;

    // The period of the report, seconds since 1970 UTC, and what the report is about.
    qint64 start = 0;
    qint64 finish = 0;
    QString target;

    struct Row {
        bool isGathering = false;
        int lines = 1;
        double top = 0;             // below the band's lower edge
        std::vector<QString> cells; // the lines of a cell are parted by line feeds
    };
    const std::vector<Row>& rows() const { return m_rows; }

    // Copies what the report shows and lets the sheet grow until it holds all of it.
    void insertRows(const TableView& report);
    void setData() override;
    void drawRect(Canvas& canvas) override;
    virtual void drawTable(Canvas& canvas);
    // The rows and the heading of the table.
    double calculateTableHeight() const;

protected:
    // The line below the title: the period, unless a form has none.
    virtual QString heading() const;
    virtual QString furtherHeading() const { return {}; }
    // Of one line, unless a form needs two.
    virtual double bandHeight() const { return lineHeight; }
    virtual void drawTitles(Canvas& canvas, double bandTop) const;
    virtual bool isShown(const TableView& /*report*/, int /*row*/) const { return true; }
    virtual QString cellText(const TableView& report, int row, const Column& column) const;
    virtual const QFont& gatheringFont() const { return colTitleFont; }

    // White, in the middle of a cell of the band.
    void drawTitle(Canvas& canvas, const QString& text, double centre, double width, double top) const;

private:
    using Block = std::pair<double, double>; // its left and right edge

    double leftOf(std::size_t column) const { return axis[column] - colWidth[column] / 2; }
    double rightOf(std::size_t column) const { return axis[column] + colWidth[column] / 2; }
    double tableTop() const; // the lower edge of the band
    double rowsHeight() const;
    // Counts the rows that gather nothing in `number`.
    Row rowOf(const TableView& report, int place, int& number) const;
    void growSheet();
    QString wrapped(const QString& text, double width) const;
    void drawLines(Canvas& canvas, double top, std::vector<Row>::const_iterator first,
                   std::vector<Row>::const_iterator end) const;
    void drawRow(Canvas& canvas, const Row& row, double top) const;
    void drawText(Canvas& canvas, const Row& row, std::size_t column, double top) const;
    void drawFigure(Canvas& canvas, const Row& row, std::size_t column, double top) const;
    const QFont& fontOf(const Row& row) const { return row.isGathering ? gatheringFont() : colDataFont; }
    const Color& colorOf(const Row& row) const { return row.isGathering ? groupColor : blackColor; }

    const std::vector<Block> m_blocks;
    std::vector<Row> m_rows;
};

} // namespace zelvor
