#include "print/table_form.h"

#include "core/localized.h"

#include <QtCore/QStringTokenizer>

#include <algorithm>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double textInset = 6;
constexpr double numberInset = 3;
constexpr double leastMargin = 1;      // between a text and the edge of its cell, when room is short
constexpr double headingHeight = 45;   // of the heading of a table
constexpr double titleHeight = 40;     // of what stands above it
constexpr double bandBottomBelow = 75; // the top of the sheet

QStringList titlesOf(const std::vector<TableForm::Column>& columns)
{
    QStringList titles;
    for (const TableForm::Column& column : columns)
        titles.append(column.title);
    return titles;
}

std::vector<double> widthsOf(const std::vector<TableForm::Column>& columns)
{
    std::vector<double> widths;
    for (const TableForm::Column& column : columns)
        widths.push_back(column.width);
    return widths;
}

std::vector<double> centresOf(const std::vector<TableForm::Column>& columns, double left)
{
    std::vector<double> centres;
    for (const TableForm::Column& column : columns) {
        left += column.gap;
        centres.push_back(left + column.width / 2);
        left += column.width;
    }
    return centres;
}

std::vector<std::pair<double, double>> blocksOf(const std::vector<TableForm::Column>& columns, double left)
{
    std::vector<std::pair<double, double>> blocks;
    for (const TableForm::Column& column : columns) {
        left += column.gap;
        if (blocks.empty() || column.gap > 0)
            blocks.push_back({left, left});
        left += column.width;
        blocks.back().second = left;
    }
    return blocks;
}

bool isText(CellKind kind)
{
    return kind == CellKind::Text;
}

bool isCentred(CellKind kind)
{
    return kind == CellKind::Date || kind == CellKind::CheckBox;
}

// How far a text stands above the lower edge of its line.
double rise(const QSizeF& text)
{
    return (TableForm::lineHeight - text.height()) / 2;
}

// Line feeds and tabs that came in with a comment: a cell has its own lines.
QString onOneLine(QString text)
{
    for (QChar& c : text) {
        if (c < u' ' || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
            c = u' ';
    }
    return text;
}

bool isGatheringFont(CellFont font)
{
    return font == CellFont::GatheringBold12 || font == CellFont::GatheringBold14;
}

double heightOf(const TableForm::Row& row)
{
    return row.lines * TableForm::lineHeight + 1;
}

QString percentText(double fraction)
{
    const Decimal percent = Decimal::fromDouble(fraction).times(Decimal(100), moneyHandler);
    return PrintView::numberText(percent) + u" %"_s;
}

QString yesOrNo(bool value)
{
    return value ? localized("yes") : localized("no");
}

} // namespace

TableForm::TableForm(AppDelegate& owner, const QSizeF& sheet, QString formTitle,
                     std::vector<Column> formColumns, double leftEdge)
    : PrintView(owner, sheet, std::move(formTitle)), columns(std::move(formColumns)),
      titles(titlesOf(columns)), colWidth(widthsOf(columns)), axis(centresOf(columns, leftEdge)),
      m_blocks(blocksOf(columns, leftEdge))
{}

void TableForm::insertRows(const TableView& report)
{
    m_rows.clear();
    const int count = report.numberOfRows();
    m_rows.reserve(static_cast<std::size_t>(count));
    double top = 0;
    int number = 0;
    for (int place = 0; place < count; ++place) {
        if (!isShown(report, place))
            continue;
        Row row = rowOf(report, place, number);
        row.top = top;
        top += heightOf(row);
        m_rows.push_back(std::move(row));
    }
    growSheet();
}

TableForm::Row TableForm::rowOf(const TableView& report, int place, int& number) const
{
    const auto named = std::ranges::find_if_not(columns, &QString::isEmpty, &Column::identifier);
    Row row;
    row.isGathering = isGatheringFont(report.cellStyle(place, named->identifier).font);
    if (!row.isGathering)
        ++number;
    row.cells.reserve(columns.size());
    for (const Column& column : columns) {
        if (column.identifier.isEmpty()) {
            row.cells.push_back(row.isGathering ? QString() : QString::number(number));
            continue;
        }
        QString text = cellText(report, place, column);
        if (isText(column.kind))
            text = wrapped(onOneLine(std::move(text)), column.width - textInset);
        row.lines = std::max(row.lines, static_cast<int>(text.count(u'\n')) + 1);
        row.cells.push_back(std::move(text));
    }
    return row;
}

QString TableForm::cellText(const TableView& report, int row, const Column& column) const
{
    const QVariant value = report.value(row, column.identifier);
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    switch (column.kind) {
    case CellKind::Amount:
        return numberText(Decimal::fromDouble(value.toDouble(), moneyHandler));
    case CellKind::Percent:
        return percentText(value.toDouble());
    case CellKind::Date:
        return dateText(value.toLongLong());
    case CellKind::CheckBox:
        return yesOrNo(value.toBool());
    default:
        return value.toString();
    }
}

QString TableForm::wrapped(const QString& text, double width) const
{
    QStringList lines = splitRow(text, width);
    if (lines.size() > 1 && QStringView(lines.first()).trimmed().isEmpty()) {
        // The first word did not fit behind the blanks that set it in: they go with it all the same.
        const QString blanks = lines.takeFirst();
        lines.first().prepend(blanks);
    }
    for (QString& line : lines) {
        while (line.endsWith(u' '))
            line.chop(1);
    }
    return lines.join(u'\n');
}

double TableForm::rowsHeight() const
{
    return m_rows.empty() ? 0 : m_rows.back().top + heightOf(m_rows.back());
}

double TableForm::calculateTableHeight() const
{
    return rowsHeight() + headingHeight;
}

void TableForm::growSheet()
{
    setFrame({frame().width(), calculateTableHeight() + titleHeight + delta});
}

void TableForm::setData()
{
    PrintView::setData();
    growSheet(); // a logo needs its room on the sheet
}

QString TableForm::heading() const
{
    return localized("Period From: ") + dateText(start) + localized(" To:") + dateText(finish);
}

void TableForm::drawRect(Canvas& canvas)
{
    const double width = frame().width();
    const double top = frame().height() - delta;
    canvas.fill(QRectF({0, 0}, frame()), whiteColor);
    printLogo(canvas);
    const FittedText formTitle = fitted(title, titleFont, width - 10 - leastMargin);
    canvas.text({width - formTitle.size.width() - 10, top - 30}, title, formTitle.font, titleColor);
    if (const QString line = heading(); !line.isEmpty()) {
        const FittedText text = fitted(line, dataFont, width - 12 - leastMargin);
        canvas.text({width - text.size.width() - 12, top - titleHeight}, line, text.font, blackColor);
    }
    if (const QString line = furtherHeading(); !line.isEmpty()) {
        const FittedText text = fitted(line, dataFont, m_blocks.back().second - m_blocks.front().first);
        canvas.text({m_blocks.front().first, tableTop() + lineHeight + 4}, line, text.font, blackColor);
    }
    drawTable(canvas);
}

double TableForm::tableTop() const
{
    return frame().height() - delta - bandBottomBelow;
}

void TableForm::drawTable(Canvas& canvas)
{
    const double top = tableTop();
    for (const auto& [left, right] : m_blocks)
        canvas.fill(QRectF(left, top, right - left, bandHeight()), titleColor);
    drawTitles(canvas, top + bandHeight());
    const auto isAbove = [&](const Row& row) {
        return top - row.top - heightOf(row) > canvas.slice().bottom();
    };
    const auto isBelow = [&](const Row& row) { return top - row.top >= canvas.slice().top(); };
    const auto first = std::partition_point(m_rows.begin(), m_rows.end(), isAbove);
    const auto end = std::partition_point(first, m_rows.end(), isBelow);
    for (auto row = first; row != end; ++row)
        drawRow(canvas, *row, top - row->top);
    drawLines(canvas, top, first, end);
}

void TableForm::drawLines(Canvas& canvas, double top, std::vector<Row>::const_iterator first,
                          std::vector<Row>::const_iterator end) const
{
    Canvas::Path path{.lineWidth = 0.2};
    for (auto row = first; row != end; ++row) {
        const double y = top - row->top - row->lines * lineHeight;
        for (const auto& [left, right] : m_blocks)
            path.add({left, y}, {right, y});
    }
    const double upper = std::min(top, canvas.slice().bottom());
    const double lower = std::max(top - rowsHeight() + 1, canvas.slice().top());
    if (upper > lower) {
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (column == 0 || columns[column].gap > 0)
                path.add({leftOf(column), upper}, {leftOf(column), lower});
            path.add({rightOf(column), upper}, {rightOf(column), lower});
        }
    }
    canvas.stroke(path, tableBorderColor);
}

void TableForm::drawTitles(Canvas& canvas, double bandTop) const
{
    for (std::size_t column = 0; column < columns.size(); ++column)
        drawTitle(canvas, columns[column].title, axis[column], colWidth[column], bandTop);
}

void TableForm::drawTitle(Canvas& canvas, const QString& text, double centre, double width, double top) const
{
    const FittedText shown = fitted(text, colTitleFont, width - 2 * leastMargin);
    canvas.text({centre - shown.size.width() / 2, top - 2 - shown.size.height()}, text, shown.font,
                whiteColor);
}

void TableForm::drawRow(Canvas& canvas, const Row& row, double top) const
{
    for (std::size_t column = 0; column < columns.size(); ++column) {
        if (row.cells[column].isEmpty())
            continue;
        if (isText(columns[column].kind))
            drawText(canvas, row, column, top);
        else
            drawFigure(canvas, row, column, top);
    }
}

// The lines after the first one stand as far in as it does, where there is room.
void TableForm::drawText(Canvas& canvas, const Row& row, std::size_t column, double top) const
{
    const QString& cell = row.cells[column];
    const QFont& font = fontOf(row);
    const double available = colWidth[column] - textInset - leastMargin;
    const qsizetype blanks = std::ranges::find_if(cell, [](QChar c) { return c != u' '; }) - cell.begin();
    const double indent = blanks > 0 ? textSize(QString(blanks, u' '), font).width() : 0;
    double y = top;
    for (const QStringView part : qTokenize(cell, u'\n')) {
        const bool isFirst = part.begin() == QStringView(cell).begin();
        const QString line = (isFirst ? part.mid(blanks) : part).toString();
        const FittedText shown = fitted(line, font, isFirst ? available - indent : available);
        const double in = std::min(indent, available - shown.size.width());
        y -= lineHeight;
        canvas.text({leftOf(column) + textInset + std::max(in, 0.0), y + rise(shown.size)}, line, shown.font,
                    colorOf(row));
    }
}

// What is no wrapped text: one line, in the middle or at the right.
void TableForm::drawFigure(Canvas& canvas, const Row& row, std::size_t column, double top) const
{
    const QString& text = row.cells[column];
    const bool inTheMiddle = isCentred(columns[column].kind);
    const double margin = inTheMiddle ? 2 * leastMargin : numberInset + leastMargin;
    const FittedText shown = fitted(text, fontOf(row), colWidth[column] - margin);
    const double x = inTheMiddle ? axis[column] - shown.size.width() / 2
                                 : rightOf(column) - numberInset - shown.size.width();
    canvas.text({x, top - lineHeight + rise(shown.size)}, text, shown.font, colorOf(row));
}

} // namespace zelvor
