#include "reports/products_on_stock_report_view.h"

#include "core/localized.h"
#include "store/app_delegate.h"

#include <unordered_map>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

ProductsOnStockReportView::ProductsOnStockReportView()
    : ReportView(localized("Products On Warehouses Report"))
{}

void ProductsOnStockReportView::setRows(Rows rows)
{
    m_rows = std::move(rows);
    m_collapsedRows.clear();
    m_reportRows.clear();
    placeRows();
    openRows(m_collapsedRows);
    checkEmptyStocks();
    selectRow(-1);
    reloadData();
}

void ProductsOnStockReportView::placeRows()
{
    const auto total = std::make_shared<ReportStockRow>();
    total->type = u"total"_s;
    total->name = localized("TOTAL:");
    if (!m_rows.empty()) {
        const auto title = std::make_shared<ReportStockRow>();
        title->type = u"title"_s;
        title->stocks = m_rows.front()->emptyStocks();
        total->stocks = title->stocks;
        m_collapsedRows.push_back(title);
    }
    // Of rows with the same id the first one is the parent; the groups come before the products.
    std::unordered_map<qint64, ReportStockRow*> parents;
    for (const auto& row : m_rows)
        parents.emplace(row->id, row.get());
    for (const auto& row : m_rows) {
        const auto above = row->parentID != 0 ? parents.find(row->parentID) : parents.end();
        // What would hang below itself stands at the top, so that nothing that the total counts is missing.
        if (above == parents.end() || !above->second->setChild(row))
            m_collapsedRows.push_back(row);
        if (!row->folder)
            total->appendData(*row);
    }
    m_collapsedRows.push_back(total);
}

void ProductsOnStockReportView::openRows(const Rows& rows)
{
    for (const auto& row : rows) {
        if (row->isTitle() || !row->sumTotal().isZero())
            m_reportRows.push_back(row);
        openRows(row->children);
    }
}

// What the last row, the grand total, has nothing of leaves the table.
void ProductsOnStockReportView::checkEmptyStocks()
{
    if (m_reportRows.empty())
        return;
    std::vector<bool> isEmpty;
    for (const StockData& stock : m_reportRows.back()->stocks)
        isEmpty.push_back(!stock.amount.isPositive());
    for (const auto& row : m_reportRows) {
        std::size_t place = 0;
        std::erase_if(row->stocks, [&](const StockData&) { return isEmpty[place++]; });
    }
}

const std::vector<StockData>& ProductsOnStockReportView::stocks() const
{
    static const std::vector<StockData> none;
    return m_reportRows.empty() ? none : m_reportRows.front()->stocks;
}

QStringList ProductsOnStockReportView::stockNames() const
{
    QStringList names;
    for (const StockData& stock : stocks())
        names << stock.name;
    return names;
}

bool ProductsOnStockReportView::canPrint(AppDelegate& appDelegate) const
{
    if (!m_reportRows.empty() && stocks().size() <= maxPrintedStocks)
        return true;
    // Kept: an empty report is refused with the same words.
    appDelegate.dialogs.showAlert({localized("Print Operation Warning"),
                                   localized("Can't print more than 2 Warehouses at one time!"),
                                   {localized("Close")},
                                   0});
    return false;
}

int ProductsOnStockReportView::columnWidth(const QString& identifier)
{
    if (identifier == u"name")
        return 170;
    if (identifier == u"units")
        return 70;
    if (identifier == u"cost")
        return 100;
    if (identifier.startsWith(u"stock_"))
        return 300;
    return identifier == u"total" ? 200 : 0;
}

std::vector<ViewColumn> ProductsOnStockReportView::columns() const
{
    using enum CellKind;
    using enum CellAlignment;
    std::vector<ViewColumn> columns{{u"name"_s, {}}, {u"units"_s, {}}, {u"cost"_s, {}, Amount, Right}};
    for (std::size_t place = 0; place < stocks().size(); ++place)
        columns.push_back({u"stock_"_s + QString::number(place), {}, Text, Right});
    columns.push_back({u"total"_s, {}, Text, Right});
    return columns;
}

const ReportStockRow* ProductsOnStockReportView::rowAt(int row) const
{
    return row >= 0 && row < numberOfRows() ? m_reportRows[static_cast<std::size_t>(row)].get() : nullptr;
}

QVariant ProductsOnStockReportView::value(int row, const QString& identifier) const
{
    const ReportStockRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle ProductsOnStockReportView::cellStyle(int row, const QString& identifier) const
{
    const ReportStockRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    const bool isText = identifier == u"name" || identifier == u"units";
    style.alignment = isText ? CellAlignment::Left : CellAlignment::Right;
    if (line->isTitle())
        style.alignment = CellAlignment::Center;
    else if (line->isTotal())
        style.alignment = CellAlignment::Right;
    if (line->folder || line->isTotal()) {
        style.font = CellFont::GatheringBold12;
        style.color = inOrderColor;
    } else if (line->isProduct()) {
        style.font = CellFont::Small;
    }
    return style;
}

} // namespace zelvor
