// The reports beside the sales: counterparties, spendings, goods on a past day, month by month, and
// statements, whose subjects have the same documents in a file of any size.

#include "baseline/baseline.h"
#include "reports/contragent_report_view_controller.h"
#include "reports/contragents_report_view_controller.h"
#include "reports/dynamics_report_view_controller.h"
#include "reports/employee_account_report_view_controller.h"
#include "reports/expend_report_view_controller.h"
#include "reports/products_on_stock_report_view_controller.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <functional>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Period {
    const char* name;
    qint64 from;
    qint64 to;
};
constexpr Period month{"month", BASELINE_MONTH, BASELINE_MONTH_END};
constexpr Period years{"years", BASELINE_START, BASELINE_END};
constexpr qint64 pastDay = BASELINE_MONTH_END + 20 * secondsPerDay;
constexpr qint64 quietContragent = BASELINE_CONTRAGENTS + 1;
constexpr qint64 quietAccount = 2;
constexpr qint64 quietEmployee = 1;

using Floor = std::function<double(baseline*)>;

// Plain C adds in binary: a cent in ten million is its own error.
bool isNear(double value, double expected)
{
    return std::abs(value - expected) <= 0.005 + std::abs(expected) * 1e-10;
}

void measureFloor(const std::string& name, const Floor& floor)
{
    registerSizes(name + "/c", [floor](benchmark::State& state, long documents) {
        baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
        for ([[maybe_unused]] auto round : state)
            benchmark::DoNotOptimize(floor(db));
        baseline_close(db);
    });
}

// A report is computed in each round; what it tells at last is held against plain C.
template <class Controller, class... Arguments>
void measureReport(const std::string& name, const std::function<void(Controller&)>& choose,
                   const std::function<double(const Controller&)>& told, const Floor& floor,
                   const Arguments&... arguments)
{
    registerSizes(name + "/zelvor", [=](benchmark::State& state, long documents) {
        BenchProgram program(generatedProject(documents));
        Controller controller(program.appDelegate, arguments...);
        controller.prepareData();
        choose(controller);
        for ([[maybe_unused]] auto round : state)
            controller.updateReport();
        baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
        if (!isNear(told(controller), floor(db)))
            state.SkipWithError("not what plain C gives");
        baseline_close(db);
    });
    measureFloor(name, floor);
}

template <class Controller>
std::function<void(Controller&)> within(Period period)
{
    return [period](Controller& controller) {
        controller.dateFrom.setMoment(period.from);
        controller.dateTo.setMoment(period.to);
    };
}

void registerContragents(Period period)
{
    using Controller = ContragentsReportViewController;
    measureReport<Controller>(
        std::string("contragents-") + period.name, within<Controller>(period),
        [](const Controller& controller) { return controller.mainView.rows().back()->finishSaldo(); },
        [period](baseline* db) {
            const baseline_saldo saldo = baseline_contragents(db, period.from, period.to);
            return saldo.start + saldo.credit - saldo.debit;
        });
}

void registerExpends(Period period)
{
    using Controller = ExpendReportViewController;
    measureReport<Controller>(
        std::string("expends-") + period.name, within<Controller>(period),
        [](const Controller& controller) { return controller.mainView.rows().back()->total(); },
        [period](baseline* db) { return baseline_expends(db, period.from, period.to); });
}

void registerGoods()
{
    using Controller = ProductsOnStockReportViewController;
    measureReport<Controller>(
        "products-on-stock", [](Controller& controller) { controller.date.setMoment(pastDay); },
        [](const Controller& controller) {
            return controller.mainView.reportRows().back()->sumTotal().toDouble();
        },
        [](baseline* db) { return baseline_products_on_stock(db, BASELINE_MONTH_END, pastDay).sum; });
}

double sellingByC(baseline* db)
{
    constexpr int months = 24;
    long long starts[months + 1];
    QDate day(2024, 10, 1);
    for (int i = 0; i <= months; ++i, day = day.addMonths(1))
        starts[i] = day.startOfDay(Qt::UTC).toSecsSinceEpoch();
    double sums[months][4] = {};
    baseline_dynamics(db, starts, months, sums);
    double selling = 0;
    for (const auto& sum : sums)
        selling += sum[2];
    return selling;
}

void registerDynamics()
{
    using Controller = DynamicsReportViewController;
    measureReport<Controller>(
        "dynamics-years", within<Controller>(years),
        [](const Controller& controller) {
            Decimal selling;
            for (const Decimal& value : controller.allRows()[2]->data)
                selling = selling.plus(value);
            return selling.toDouble();
        },
        sellingByC);
}

Floor statementFloor(const char* sql, qint64 id)
{
    return [=](baseline* db) { return baseline_statement(db, sql, years.from, years.to, id).debit; };
}

void registerStatements()
{
    using OfContragent = ContragentReportViewController;
    const auto sumOf = [](const StatementView& view) {
        return view.rows().back().debitSum() + view.rows().back().creditSum();
    };
    measureReport<OfContragent>(
        "contragent-statement",
        [](OfContragent& controller) {
            within<OfContragent>(years)(controller);
            controller.setContragentFromID(quietContragent);
        },
        [=](const OfContragent& controller) { return sumOf(controller.mainView); },
        statementFloor("SELECT date, doc_sum FROM money_doc WHERE date>? AND date<=? AND contragent_id=? AND"
                       " is_confirmed=1 ORDER BY date",
                       quietContragent));
    using OfMoney = EmployeeAccountReportViewController;
    const auto choose = [](qint64 id) {
        return [id](OfMoney& controller) {
            within<OfMoney>(years)(controller);
            controller.select.selectTag(id);
        };
    };
    const auto told = [=](const OfMoney& controller) { return sumOf(controller.mainView); };
    measureReport<OfMoney>("account-statement", choose(quietAccount), told,
                           statementFloor("SELECT date, doc_sum FROM money_doc WHERE date>=? AND date<=? AND"
                                          " account_to_id=? AND is_confirmed=1 ORDER BY date",
                                          quietAccount),
                           u"account"_s);
    measureReport<OfMoney>("employee-statement", choose(quietEmployee), told,
                           statementFloor("SELECT date, doc_sum FROM money_doc WHERE date>=? AND date<=? AND"
                                          " employee_id=? AND is_confirmed=1 ORDER BY date",
                                          quietEmployee),
                           u"employee"_s);
}

} // namespace

void registerBenchmarks()
{
    registerContragents(month);
    registerContragents(years);
    registerExpends(month);
    registerExpends(years);
    registerGoods();
    registerDynamics();
    registerStatements();
}

} // namespace zelvor
