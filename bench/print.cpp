// A journal of 50,000 documents from the read rows to the finished PDF: form, wrapped lines, pages, file.

#include "baseline/baseline.h"
#include "documents/document_journal_view_controller.h"
#include "print/print_forms.h"
#include "print/print_job.h"
#include "support/bench_main.h"
#include "support/bench_project.h"

#include <benchmark/benchmark.h>

#include <QtCore/QBuffer>
#include <QtGui/QGuiApplication>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

void printJournal(benchmark::State& state, long rows)
{
    BenchProgram program(generatedProject(rows));
    DocumentJournalViewController journal(program.appDelegate, u"Product"_s);
    journal.initDocTypeSelect();
    journal.dateFrom.setMoment(BASELINE_START);
    journal.dateTo.setMoment(BASELINE_END);
    journal.prepareJournal();
    if (journal.mainView.numberOfRows() != rows)
        return state.SkipWithError("not every document is in the journal");
    QBuffer file;
    for ([[maybe_unused]] auto round : state) {
        file.setData({});
        file.open(QIODevice::WriteOnly);
        const std::unique_ptr<PrintView> form = makePrintForm(journal.mainView, program.appDelegate);
        if (!form || !writePdf(*form, file))
            return state.SkipWithError("not printed");
        file.close();
    }
    state.counters["MB"] = static_cast<double>(file.size()) / 1e6;
}

} // namespace

void registerBenchmarks()
{
    static int argumentCount = 1;
    static char name[] = "bench_print";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(argumentCount, arguments);
    const long rows = isSmokeRun() ? 1000 : 50'000;
    benchmark::RegisterBenchmark(("pdf/zelvor/" + std::to_string(rows)).c_str(),
                                 [rows](benchmark::State& state) { printJournal(state, rows); })
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1);
}

} // namespace zelvor
