#include "reports/dynamics_report_view_controller.h"

#include "core/localized.h"

#include <algorithm>

namespace zelvor {

namespace {

// In the order of the rows.
enum RowPlace { IncomeRow, SpendingsRow, SellingRow, MarginRow };

std::shared_ptr<DynamicsReportRow> namedRow(const QString& name)
{
    auto row = std::make_shared<DynamicsReportRow>();
    row->name = name;
    return row;
}

template <class Value>
void removeAt(std::vector<Value>& values, const std::vector<std::size_t>& indexies)
{
    for (auto index = indexies.rbegin(); index != indexies.rend(); ++index)
        values.erase(values.begin() + static_cast<std::ptrdiff_t>(*index));
}

} // namespace

DynamicsReportViewController::DynamicsReportViewController(AppDelegate& owner)
    : ReportViewController(owner), graphView(owner.calendar), view(owner.calendar, graphView)
{
    for (CheckBox* check : {&realizationCheck, &marginCheck, &expensesCheck, &incomeCheck}) {
        check->setOn(true);
        check->onUserChange = [this] { changeRows(); };
    }
}

QString DynamicsReportViewController::getNameForTabView() const
{
    return localized("Dynamics");
}

void DynamicsReportViewController::updateReport()
{
    progress.start();
    m_dates = monthsBetween(appDelegate.calendar, dateFrom.moment(), dateTo.moment());
    prepareReportData();
    clearEmptyPeriods();
    view.setPeriod(dateFrom.moment(), dateTo.moment());
    changeRows();
    progress.stop();
}

void DynamicsReportViewController::prepareReportData()
{
    m_allRows = {namedRow(localized("Income")), namedRow(localized("Spendings")),
                 namedRow(localized("Selling")), namedRow(localized("Margin"))};
    for (const MonthFigures& month : readMonthFigures(appDelegate.connector, m_dates)) {
        m_allRows[IncomeRow]->data.push_back(month.income);
        m_allRows[SpendingsRow]->data.push_back(month.spendings);
        m_allRows[SellingRow]->data.push_back(month.selling);
        m_allRows[MarginRow]->data.push_back(month.selling.minus(month.cost, moneyHandler));
    }
}

void DynamicsReportViewController::clearEmptyPeriods()
{
    std::vector<std::size_t> empty;
    for (std::size_t month = 0; month < m_dates.size(); ++month) {
        if (std::ranges::all_of(m_allRows, [month](const auto& row) { return row->data[month].isZero(); }))
            empty.push_back(month);
    }
    removeIndexies(empty);
}

void DynamicsReportViewController::removeIndexies(const std::vector<std::size_t>& indexies)
{
    removeAt(m_dates, indexies);
    for (const auto& row : m_allRows)
        removeAt(row->data, indexies);
}

void DynamicsReportViewController::checkRows()
{
    m_reportRows.clear();
    if (m_allRows.empty())
        return;
    const CheckBox* const checks[] = {&incomeCheck, &expensesCheck, &realizationCheck, &marginCheck};
    for (const RowPlace place : {IncomeRow, SpendingsRow, SellingRow, MarginRow}) {
        if (checks[place]->isOn())
            m_reportRows.push_back(m_allRows[place]);
    }
}

void DynamicsReportViewController::changeRows()
{
    checkRows();
    graphView.dates = m_dates;
    graphView.reportRows = m_reportRows;
    view.setRows(m_dates, m_reportRows);
    graphView.redraw();
}

} // namespace zelvor
