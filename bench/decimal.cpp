// The arithmetic under every sum: what one operation costs on amounts of two digits.

#include "core/decimal.h"
#include "support/bench_main.h"

#include <benchmark/benchmark.h>

#include <random>
#include <vector>

namespace zelvor {

namespace {

constexpr std::size_t amountCount = 1024;

std::vector<double> randomAmounts()
{
    std::mt19937 random(1);
    std::uniform_int_distribution<int> cents(1, 99'999'99);
    std::vector<double> amounts(amountCount);
    for (double& amount : amounts)
        amount = cents(random) / 100.0;
    return amounts;
}

const std::vector<double>& doubles()
{
    static const std::vector<double> amounts = randomAmounts();
    return amounts;
}

const std::vector<Decimal>& decimals()
{
    static const std::vector<Decimal> amounts = [] {
        std::vector<Decimal> made;
        for (const double amount : doubles())
            made.push_back(Decimal::fromDouble(amount, moneyHandler));
        return made;
    }();
    return amounts;
}

// One operation on each neighbouring pair; a round is one operation.
template <class Operation>
void measurePairs(const char* name, Operation operation)
{
    benchmark::RegisterBenchmark(name, [operation](benchmark::State& state) {
        const std::vector<Decimal>& amounts = decimals();
        std::size_t index = 0;
        for ([[maybe_unused]] auto round : state) {
            benchmark::DoNotOptimize(
                operation(amounts[index % amountCount], amounts[(index + 1) % amountCount]));
            ++index;
        }
    });
}

template <class Operation>
void measureDoubles(const char* name, Operation operation)
{
    benchmark::RegisterBenchmark(name, [operation](benchmark::State& state) {
        const std::vector<double>& amounts = doubles();
        std::size_t index = 0;
        for ([[maybe_unused]] auto round : state)
            benchmark::DoNotOptimize(operation(amounts[index++ % amountCount]));
    });
}

} // namespace

void registerBenchmarks()
{
    measurePairs("decimal/plus", [](const Decimal& a, const Decimal& b) { return a.plus(b, moneyHandler); });
    measurePairs("decimal/times",
                 [](const Decimal& a, const Decimal& b) { return a.times(b, moneyHandler); });
    measurePairs("decimal/dividedBy",
                 [](const Decimal& a, const Decimal& b) { return a.dividedBy(b, moneyHandler); });
    measurePairs("decimal/dividedBy9",
                 [](const Decimal& a, const Decimal& b) { return a.dividedBy(b, averageCostHandler); });
    measurePairs("decimal/compare", [](const Decimal& a, const Decimal& b) { return a < b; });
    measurePairs("decimal/toDouble", [](const Decimal& a, const Decimal&) { return a.toDouble(); });
    measurePairs("decimal/toFixedText", [](const Decimal& a, const Decimal&) { return a.toFixedText(2); });
    measureDoubles("decimal/fromDoubleRounded",
                   [](double value) { return Decimal::fromDouble(value, moneyHandler); });
    measureDoubles("decimal/fromDouble", [](double value) { return Decimal::fromDouble(value); });
}

} // namespace zelvor
