#include "reports/period_sell_report_view.h"

#include "core/localized.h"

#include <algorithm>
#include <unordered_map>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

PeriodSellReportView::PeriodSellReportView()
    : ReportView(localized("Report by Selling For Period."))
{
    contragentsGroupCheck.setEnabled(false);
    managersGroupCheck.setEnabled(false);
    reportTypeSelect.onUserChange = [this] { reportTypeChanged(); };
    for (CheckBox* check : {&productsGroupCheck, &contragentsGroupCheck, &managersGroupCheck})
        check->onUserChange = [this] { groupClicked(); };
}

void PeriodSellReportView::reportTypeChanged()
{
    const qint64 tag = reportTypeSelect.selectedTag();
    for (CheckBox* check : {&productsGroupCheck, &contragentsGroupCheck, &managersGroupCheck})
        check->setOn(false);
    productsGroupCheck.setEnabled(tag == 0);
    contragentsGroupCheck.setEnabled(tag != 0);
    managersGroupCheck.setEnabled(tag != 0 && tag != 1);
}

void PeriodSellReportView::setRows(PeriodSellReportRows rows)
{
    m_rows = std::move(rows);
    m_grandTotal = TotalRowForPeriodSell();
    m_grandTotalSubject.name = localized("TOTAL");
    m_grandTotal.subject = &m_grandTotalSubject;
    m_grandTotal.type = SellRowType::Total;
    m_collapsedRows.clear();
    m_reportRows.clear();
    selectRow(-1);
    placeRows();
    m_collapsedRows.push_back(&m_grandTotal);
    showRows(true);
}

// A row hangs below the first row with its parent's id, whatever kind of row that is; without one it stands
// at the top.
void PeriodSellReportView::placeRows()
{
    std::unordered_map<qint64, PeriodSellReportRow*> parents; // few, however many rows there are
    qint64 lastID = 0;
    for (const PeriodSellReportRow* row : m_rows.inOrder()) {
        if (row->parentID != lastID)
            parents.try_emplace(row->parentID, nullptr);
        lastID = row->parentID;
    }
    parents.erase(0);
    for (PeriodSellReportRow* row : m_rows.inOrder()) {
        const auto wanted = parents.find(row->id);
        if (wanted != parents.end() && !wanted->second)
            wanted->second = row;
    }
    for (PeriodSellReportRow* row : m_rows.inOrder()) {
        const auto above = parents.find(row->parentID);
        if (above != parents.end() && above->second)
            above->second->setChild(*row);
        else
            m_collapsedRows.push_back(row);
        if (row->isProduct())
            addToGrandTotal(*row);
    }
}

// The packs stay 0 on purpose: a sum over all products would count crates and boxes together.
void PeriodSellReportView::addToGrandTotal(const PeriodSellReportRow& row)
{
    m_grandTotal.addSums(row);
}

void PeriodSellReportView::openRows(const std::vector<PeriodSellReportRow*>& rows, bool calculateTotals)
{
    for (PeriodSellReportRow* row : rows) {
        // Gathering rows are met before their products and have nothing to carry up yet.
        if (calculateTotals && row->isProduct())
            row->appendDataToParent(*row);
        m_reportRows.push_back(row);
        openRows(row->children(), calculateTotals);
    }
}

bool PeriodSellReportView::isCleared(const PeriodSellReportRow& row) const
{
    if (row.innerAmount.isZero())
        return true;
    const bool collapsed = productsGroupCheck.isOn() || contragentsGroupCheck.isOn();
    return collapsed && row.isProduct() && row.parent;
}

void PeriodSellReportView::clearRows()
{
    std::erase_if(m_reportRows, [this](const PeriodSellReportRow* row) { return isCleared(*row); });
}

void PeriodSellReportView::showRows(bool calculateTotals)
{
    const PeriodSellReportRow* const selected = rowAt(selectedRow());
    m_reportRows.clear();
    openRows(m_collapsedRows, calculateTotals);
    clearRows();
    const auto place = std::ranges::find(m_reportRows, selected);
    selectRow(place == m_reportRows.end() ? -1 : static_cast<int>(place - m_reportRows.begin()));
    reloadData();
}

void PeriodSellReportView::groupClicked()
{
    showRows(false);
}

void PeriodSellReportView::sort(const QString& key, bool ascending)
{
    if (m_collapsedRows.empty())
        return;
    m_collapsedRows.pop_back(); // the grand total keeps the last place
    sortRows(m_collapsedRows, key, ascending);
    for (PeriodSellReportRow* row : m_collapsedRows)
        row->sortByField(key, ascending);
    m_collapsedRows.push_back(&m_grandTotal);
    showRows(false);
}

QString PeriodSellReportView::reportBy() const
{
    switch (reportTypeSelect.selectedTag()) {
    case 0:
        return localized("Products");
    case 1:
        return localized("Customers");
    case 2:
        return localized("Managers");
    default:
        return localized("None");
    }
}

QString PeriodSellReportView::groupedBy() const
{
    QStringList words;
    if (productsGroupCheck.isOn())
        words << localized("Products");
    if (contragentsGroupCheck.isOn())
        words << localized("Customers");
    if (managersGroupCheck.isOn())
        words << localized("Managers");
    return words.isEmpty() ? localized("None") : words.join(u';');
}

std::vector<ViewColumn> PeriodSellReportView::columns() const
{
    const auto number = [](const QString& identifier, const QString& title, const QString& sortKey,
                           CellKind kind = CellKind::Amount) {
        return ViewColumn{identifier, title, kind, CellAlignment::Right, false, sortKey};
    };
    return {{u"name"_s, localized("Name"), CellKind::Text, CellAlignment::Left, false, u"name"_s},
            {u"unit"_s, localized("Unit")},
            number(u"amount"_s, localized("Amount"), u"amount"_s),
            number(u"packs"_s, localized("Packs"), {}),
            number(u"baseSum"_s, localized("Base Sum"), u"base"_s),
            number(u"priceSum"_s, localized("Price Sum"), u"price"_s),
            number(u"profit"_s, localized("Profit"), u"profit"_s),
            number(u"percent"_s, localized("Percent"), u"percent"_s, CellKind::Percent)};
}

const PeriodSellReportRow* PeriodSellReportView::rowAt(int row) const
{
    return row >= 0 && row < numberOfRows() ? m_reportRows[static_cast<std::size_t>(row)] : nullptr;
}

QVariant PeriodSellReportView::value(int row, const QString& identifier) const
{
    const PeriodSellReportRow* line = rowAt(row);
    return line ? line->valueForIdentifier(identifier) : QVariant(QString());
}

CellStyle PeriodSellReportView::cellStyle(int row, const QString& identifier) const
{
    const PeriodSellReportRow* line = rowAt(row);
    if (!line)
        return {};
    CellStyle style;
    style.font = line->isProduct() ? CellFont::Small : CellFont::GatheringBold12;
    style.color = line->isProduct() ? blackColor : inOrderColor;
    if ((identifier == u"profit" && line->profit() < 0) || (identifier == u"percent" && line->percent() < 0))
        style.color = redColor;
    const bool leftAligned =
        identifier == u"unit" || (identifier == u"name" && line->type != SellRowType::Total);
    style.alignment = leftAligned ? CellAlignment::Left : CellAlignment::Right;
    return style;
}

} // namespace zelvor
