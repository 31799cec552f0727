// One confirmed sale of four rows, filled in on the form and made durable, and a first load of many.

#include "baseline/baseline.h"
#include "documents/product_document_view_controller.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <QtCore/QByteArray>

#include <algorithm>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr long durableRounds = 300;
constexpr long loadedDocuments = 1000;

// What the user does: the counterparty, the warehouse, four products with their amounts, confirm.
bool sell(BenchProgram& program, unsigned seed)
{
    auto document = std::make_shared<ProductDocument>();
    document->insertDocType(DocType::SellProduct);
    program.clock.set(program.clock.now() + 1);
    document->date = program.clock.now() - 1;
    ProductDocumentViewController form(program.appDelegate, document);
    form.prepareData();
    // Every tenth counterparty is a supplier with credit; a sale is to one of the others.
    const int contragent = 1 + static_cast<int>(seed * 7 % (BASELINE_CONTRAGENTS / 10)) * 10;
    if (!form.setContragentFromID(contragent) || !form.mainView.setStockFromID(1 + seed % BASELINE_STOCKS))
        return false;
    for (unsigned i = 0; i < BASELINE_ROWS_PER_DOCUMENT; ++i) {
        const int row = form.addProductFromID(1 + (seed * 31 + i * 499) % BASELINE_PRODUCTS);
        if (row < 0 || !form.setRowValue(row, u"amount"_s, 1 + i))
            return false;
    }
    return form.confirmDoc();
}

void saleZelvor(benchmark::State& state, long documents)
{
    static unsigned seed = 0;
    BenchProgram program(writableProject(u"sale-zelvor"_s, documents), Access::ReadWrite);
    static std::map<long, qint64> moments; // the file remembers the sales of the run before
    program.clock.set(std::max(program.clock.now(), moments[documents]));
    const long before = durableSyncs();
    for ([[maybe_unused]] auto round : state)
        if (!sell(program, ++seed))
            return state.SkipWithError("a sale was refused");
    moments[documents] = program.clock.now();
    state.counters["syncs"] =
        benchmark::Counter(static_cast<double>(durableSyncs() - before), benchmark::Counter::kAvgIterations);
}

void saleC(benchmark::State& state, long documents)
{
    static unsigned seed = 0;
    baseline* db = baseline_open(writableProject(u"sale-c"_s, documents).toUtf8().constData());
    const long before = durableSyncs();
    for ([[maybe_unused]] auto round : state) {
        baseline_begin(db);
        ++seed;
        baseline_sale(db, BASELINE_END + seed, seed);
        baseline_commit(db);
    }
    state.counters["syncs"] =
        benchmark::Counter(static_cast<double>(durableSyncs() - before), benchmark::Counter::kAvgIterations);
    baseline_close(db);
}

// A first load: sales one after the other, made durable once at the end. A round is `loadedDocuments`.
void loadZelvor(benchmark::State& state, long documents)
{
    static unsigned seed = 0;
    BenchProgram program(writableProject(u"load-zelvor"_s, documents), Access::ReadWrite);
    static std::map<long, qint64> moments;
    program.clock.set(std::max(program.clock.now(), moments[documents]));
    for ([[maybe_unused]] auto round : state) {
        bool held = program.appDelegate.connector.beginBulk();
        for (long i = 0; held && i < loadedDocuments; ++i)
            held = sell(program, ++seed);
        if (!program.appDelegate.connector.endBulk() || !held)
            return state.SkipWithError("the load failed");
    }
    moments[documents] = program.clock.now();
    state.SetItemsProcessed(state.iterations() * loadedDocuments);
}

void loadC(benchmark::State& state, long documents)
{
    static unsigned seed = 0;
    baseline* db = baseline_open(writableProject(u"load-c"_s, documents).toUtf8().constData());
    for ([[maybe_unused]] auto round : state) {
        baseline_begin(db);
        for (long i = 0; i < loadedDocuments; ++i) {
            ++seed;
            baseline_sale(db, BASELINE_END + seed, seed);
        }
        baseline_commit(db);
    }
    baseline_close(db);
    state.SetItemsProcessed(state.iterations() * loadedDocuments);
}

} // namespace

void registerBenchmarks()
{
    registerSizes("sale/zelvor", saleZelvor, durableRounds);
    registerSizes("sale/c", saleC, durableRounds);
    registerSizes("load1000/zelvor", loadZelvor, 3);
    registerSizes("load1000/c", loadC, 3);
}

} // namespace zelvor
