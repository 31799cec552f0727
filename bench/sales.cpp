// The period sell report of a month and of two years, by products, customers and managers. "c" keeps the
// sums in an array as a program of its own would; "sql" is the one GROUP BY statement.

#include "baseline/baseline.h"
#include "reports/period_sell_report_view_controller.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <QtCore/QByteArray>

#include <cmath>

namespace zelvor {

namespace {

enum ReportType { ByProducts, ByCustomers, ByManagers };

struct Period {
    qint64 from;
    qint64 to;
};
constexpr Period month{BASELINE_MONTH, BASELINE_MONTH_END};
constexpr Period years{BASELINE_START, BASELINE_END};

using Sum = baseline_sales (*)(baseline*, Period);

baseline_sales sumC(baseline* db, Period period)
{
    return baseline_sales_summed(db, period.from, period.to);
}

baseline_sales sumSQL(baseline* db, Period period)
{
    return baseline_sales_by_sql(db, period.from, period.to);
}

baseline_sales customersSQL(baseline* db, Period period)
{
    return baseline_sales_by_owner(db, period.from, period.to, 0);
}

baseline_sales managersSQL(baseline* db, Period period)
{
    return baseline_sales_by_owner(db, period.from, period.to, 1);
}

double totalOf(const PeriodSellReportViewController& controller)
{
    const auto& rows = controller.mainView.reportRows();
    return rows.empty() ? 0 : rows.back()->priceSum();
}

void measureReport(benchmark::State& state, long documents, ReportType type, Period period)
{
    BenchProgram program(generatedProject(documents));
    PeriodSellReportViewController controller(program.appDelegate);
    controller.prepareData();
    controller.mainView.reportTypeSelect.selectTag(type);
    controller.mainView.reportTypeChanged();
    controller.dateFrom.setMoment(period.from);
    controller.dateTo.setMoment(period.to);
    for ([[maybe_unused]] auto round : state)
        controller.updateReport();

    baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
    const double expected = sumSQL(db, period).price_sum;
    baseline_close(db);
    // Plain SQL adds in binary: a cent in ten million is its own error.
    if (std::abs(totalOf(controller) - expected) > 0.005 + expected * 1e-10)
        state.SkipWithError("not the sales that plain SQL gives");
}

void measureSum(benchmark::State& state, long documents, Sum sum, Period period)
{
    baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(sum(db, period));
    baseline_close(db);
}

void registerReport(const std::string& name, ReportType type, Period period)
{
    registerSizes(name + "/zelvor",
                  [=](benchmark::State& state, long size) { measureReport(state, size, type, period); });
}

void registerSum(const std::string& name, Sum sum, Period period)
{
    registerSizes(name, [=](benchmark::State& state, long size) { measureSum(state, size, sum, period); });
}

} // namespace

void registerBenchmarks()
{
    registerReport("sales-month", ByProducts, month);
    registerSum("sales-month/c", sumC, month);
    registerSum("sales-month/sql", sumSQL, month);
    registerReport("sales-years", ByProducts, years);
    registerSum("sales-years/c", sumC, years);
    registerSum("sales-years/sql", sumSQL, years);
    registerReport("sales-month-customers", ByCustomers, month);
    registerSum("sales-month-customers/sql", customersSQL, month);
    registerReport("sales-years-customers", ByCustomers, years);
    registerSum("sales-years-customers/sql", customersSQL, years);
    registerReport("sales-month-managers", ByManagers, month);
    registerSum("sales-month-managers/sql", managersSQL, month);
    registerReport("sales-years-managers", ByManagers, years);
    registerSum("sales-years-managers/sql", managersSQL, years);
}

} // namespace zelvor
