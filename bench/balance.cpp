// The balance sheet: computed anew from the running balances at each change of the books.

#include "baseline/baseline.h"
#include "period/balance_view_controller.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <cmath>

namespace zelvor {

namespace {

void balanceZelvor(benchmark::State& state, long documents)
{
    BenchProgram program(generatedProject(documents));
    BalanceViewController controller(program.appDelegate);
    for ([[maybe_unused]] auto round : state)
        controller.prepareBalance();

    baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
    const baseline_balance_sheet sheet = baseline_balance(db);
    baseline_close(db);
    if (std::abs(controller.balance() - (sheet.debet - sheet.credit)) > 0.005)
        state.SkipWithError("not the balance that plain SQL gives");
}

void balanceC(benchmark::State& state, long documents)
{
    baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(baseline_balance(db));
    baseline_close(db);
}

} // namespace

void registerBenchmarks()
{
    registerSizes("balance/zelvor", balanceZelvor);
    registerSizes("balance/c", balanceC);
}

} // namespace zelvor
