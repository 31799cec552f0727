// The record layer: opening a project, reading and writing documents with what they hold.

#include "baseline/baseline.h"
#include "documents/product_document.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <QtCore/QByteArray>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int insertedDocuments = 200;

void openZelvor(benchmark::State& state, long documents)
{
    const QString path = generatedProject(documents);
    BenchProgram program(path, Access::ReadWrite);
    program.appDelegate.connector.close();
    for ([[maybe_unused]] auto round : state) {
        if (!program.appDelegate.connector.open(path) || !program.appDelegate.params())
            return state.SkipWithError("cannot open");
        program.appDelegate.connector.close();
    }
}

void openC(benchmark::State& state, long documents)
{
    const QByteArray path = generatedProject(documents).toUtf8();
    for ([[maybe_unused]] auto round : state)
        baseline_close(baseline_open(path.constData()));
}

// All heads of product documents with their counterparties, employees and warehouses.
void headsZelvor(benchmark::State& state, long documents)
{
    BenchProgram program(generatedProject(documents));
    for ([[maybe_unused]] auto round : state) {
        const auto heads = program.appDelegate.connector.freeSQL<ProductDocument>({}, {}, Fill::Heads);
        if (heads.size() != static_cast<std::size_t>(documents))
            return state.SkipWithError("not all documents were read");
    }
}

void headsC(benchmark::State& state, long documents)
{
    baseline* db = baseline_open(generatedProject(documents).toUtf8().constData());
    for ([[maybe_unused]] auto round : state)
        benchmark::DoNotOptimize(baseline_heads(db));
    baseline_close(db);
}

// One document with its rows, their products and units.
void selectZelvor(benchmark::State& state, long documents)
{
    BenchProgram program(generatedProject(documents));
    qint64 id = 0;
    for ([[maybe_unused]] auto round : state) {
        id = 1 + (id + 7919) % documents;
        const auto document = program.appDelegate.connector.select<ProductDocument>(id);
        if (!document || document->documentRows.size() != BASELINE_ROWS_PER_DOCUMENT)
            return state.SkipWithError("a document without its rows");
    }
}

ProductDocument documentToInsert(int seed)
{
    ProductDocument document;
    document.insertDocType(DocType::SellProduct);
    document.date = BASELINE_END;
    document.contragentID = 1;
    document.managerID = 1;
    document.stockFromID = 1;
    for (int i = 0; i < BASELINE_ROWS_PER_DOCUMENT; ++i) {
        auto row = std::make_shared<ProductDocumentRow>();
        row->productID = 1 + (seed * 31 + i * 7) % BASELINE_PRODUCTS;
        row->setPriceCost(1.25 * static_cast<double>(row->productID));
        row->setAmount(1 + i);
        document.documentRows.push_back(row);
    }
    return document;
}

// Heads with four rows each, in one transaction that is taken back.
void insertZelvor(benchmark::State& state, long documents)
{
    BenchProgram program(writableProject(u"insert"_s, documents), Access::ReadWrite);
    Connector& connector = program.appDelegate.connector;
    for ([[maybe_unused]] auto round : state) {
        connector.execute("BEGIN");
        for (int i = 0; i < insertedDocuments; ++i) {
            ProductDocument document = documentToInsert(i);
            if (connector.insert(document) != 1)
                return state.SkipWithError("an insert failed");
        }
        connector.execute("ROLLBACK");
    }
    state.SetItemsProcessed(state.iterations() * insertedDocuments);
}

void insertC(benchmark::State& state, long documents)
{
    baseline* db = baseline_open(writableProject(u"insert"_s, documents).toUtf8().constData());
    for ([[maybe_unused]] auto round : state) {
        baseline_begin(db);
        for (unsigned i = 0; i < insertedDocuments; ++i)
            baseline_insert(db, BASELINE_END, i);
        baseline_rollback(db);
    }
    baseline_close(db);
    state.SetItemsProcessed(state.iterations() * insertedDocuments);
}

} // namespace

void registerBenchmarks()
{
    registerSizes("open/zelvor", openZelvor);
    registerSizes("open/c", openC);
    registerSizes("heads/zelvor", headsZelvor);
    registerSizes("heads/c", headsC);
    registerSizes("select/zelvor", selectZelvor);
    registerSizes("insert200/zelvor", insertZelvor);
    registerSizes("insert200/c", insertC);
}

} // namespace zelvor
