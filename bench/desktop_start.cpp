// What a person waits for at the desktop: from the start of the process to the drawn main window, and from a
// click in the menu to the drawn page, over the generated business and over a catalog of as many products.
// CPU time of the whole process, loading of the libraries included; each round is a process of its own. No
// second program stands beside it: the aims are absolute.

#include "baseline/baseline.h"
#include "catalogs/product.h"
#include "core/doc_type.h"
#include "desktop/desktop_application.h"
#include "desktop/icons.h"
#include "desktop/page.h"
#include "desktop/search_line.h"
#include "desktop/table_list.h"
#include "desktop/theme.h"
#include "desktop/tree_list.h"
#include "documents/document_journal_view_controller.h"
#include "support/bench_project.h"

#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimeZone>
#include <QtWidgets/QApplication>
#include <QtWidgets/QScrollBar>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Refuses what it is asked; nothing may be told.
class Refusals final : public Dialogs {
    void showAlert(const Alert& alert) override
    {
        std::fprintf(stderr, "alert: %s\n", alert.messageText.toUtf8().constData());
        std::exit(2);
    }
    void ask(const Alert& alert, std::function<void(int)> answer) override
    {
        answer(firstButton + static_cast<int>(alert.buttons.size()) - 1);
    }
    std::optional<QString> savePath(const SavePanel&) override { return {}; }
    std::optional<QString> openPath(const OpenPanel&) override { return {}; }
};

constexpr int scrolledPages = 50;

double cpuMilliseconds()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const auto milliseconds = [](const timeval& time) {
        return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_usec) / 1e3;
    };
    return milliseconds(usage.ru_utime) + milliseconds(usage.ru_stime);
}

void draw(QWidget& window)
{
    QCoreApplication::processEvents();
    window.grab();
    QCoreApplication::processEvents();
}

void openPages(DesktopApplication& desktop)
{
    for (const DocType type :
         {DocType::ProductCatalog, DocType::ContragentCatalog, DocType::StockCatalog,
          DocType::MeasurementCatalog, DocType::SellProduct, DocType::BuyProduct, DocType::ProductJournal,
          DocType::AllDocumentsJournal, DocType::BalanceSheet, DocType::PeriodSellReport}) {
        const double before = cpuMilliseconds();
        desktop.shell.mainWindowController.topMenuAction(type);
        draw(desktop.mainWindow);
        std::printf("%s %.2f\n", docTypeCase(type).toUtf8().constData(), cpuMilliseconds() - before);
        if (!desktop.mainWindow.activePage())
            std::exit(2);
    }
}

// Pages down through the list, each drawn.
void scroll(QAbstractItemView& list, const char* name)
{
    QScrollBar& bar = *list.verticalScrollBar();
    const double before = cpuMilliseconds();
    for (int page = 1; page <= scrolledPages; ++page) {
        bar.setValue(page * (bar.maximum() / scrolledPages));
        list.viewport()->grab();
    }
    std::printf("%s %.2f\n", name, (cpuMilliseconds() - before) / scrolledPages);
}

void search(DesktopApplication& desktop, const QString& text, const char* name)
{
    auto* const line = desktop.mainWindow.activePage()->findChild<SearchLine*>();
    const double before = cpuMilliseconds();
    line->setText(text);
    draw(desktop.mainWindow);
    std::printf("%s %.2f\n", name, cpuMilliseconds() - before);
    line->clear();
}

// Every document of two years in one list.
void readLongJournal(DesktopApplication& desktop)
{
    MainViewController& workspace = desktop.shell.mainWindowController;
    workspace.topMenuAction(DocType::ProductJournal);
    auto* const journal =
        dynamic_cast<DocumentJournalViewController*>(workspace.tabView.activePage()->controller.get());
    const double before = cpuMilliseconds();
    journal->dateFrom.setMoment(BASELINE_START - 1);
    journal->prepareJournal();
    draw(desktop.mainWindow);
    std::printf("ProductJournalWhole %.2f\n", cpuMilliseconds() - before);
    auto* const list = desktop.mainWindow.activePage()->findChild<TableList*>();
    scroll(*list, "itsPage");
    search(desktop, u"sale 77"_s, "itsSearch");
}

// A catalog as large as the documents are many: a hundred products in each group.
void openLargeTree(DesktopApplication& desktop)
{
    const double before = cpuMilliseconds();
    desktop.shell.mainWindowController.topMenuAction(DocType::ProductCatalog);
    draw(desktop.mainWindow);
    std::printf("ProductTree %.2f\n", cpuMilliseconds() - before);
    auto* const tree = desktop.mainWindow.activePage()->findChild<TreeList*>();
    const double expanding = cpuMilliseconds();
    tree->expandAll();
    draw(desktop.mainWindow);
    std::printf("itsRowsOpened %.2f\n", cpuMilliseconds() - expanding);
    scroll(*tree, "itsTreePage");
    search(desktop, u"product 77"_s, "itsTreeSearch");
}

QString projectWithProducts(long count)
{
    const QString path = writableProject(u"tree%1"_s.arg(count), 0);
    Connector connector;
    if (!connector.open(path) || !connector.beginBulk())
        std::exit(2);
    std::shared_ptr<ProductGroup> group;
    for (long i = 0; i < count; ++i) {
        if (i % 100 == 0) {
            group = std::make_shared<ProductGroup>();
            group->name = u"Group %1"_s.arg(i / 100);
            connector.insert(*group);
        }
        Product product;
        product.name = u"Product %1"_s.arg(i);
        product.parentID = group->id;
        connector.insert(product);
    }
    if (!connector.endBulk())
        std::exit(2);
    return path;
}

int measure(int argc, char** argv)
{
    QApplication application(argc, argv);
    loadDesktopResources();
    applyAppearance(application, Appearance::Light);
    const QTemporaryDir folder;
    DesktopSettings settings(folder.filePath(u"Desktop.conf"_s));
    DefaultsStore defaults(folder.filePath(u"Zelvor.conf"_s));
    Refusals refusals;
    FixedClock clock(BASELINE_END - 3600); // a day with documents
    AppDelegate appDelegate({clock, Calendar(QTimeZone::utc()), refusals, defaults});
    DesktopApplication desktop(appDelegate, settings);
    desktop.start(QString::fromLocal8Bit(argv[2]));
    if (!desktop.mainWindow.isVisible())
        return 2;
    draw(desktop.mainWindow);
    std::printf("start %.2f\n", cpuMilliseconds());
    if (QByteArray(argv[1]) == "tree") {
        openLargeTree(desktop);
    } else {
        openPages(desktop);
        readLongJournal(desktop);
    }
    appDelegate.connector.close();
    return 0;
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values[values.size() / 2];
}

// The medians of some runs of this program, each a process of its own.
bool runRounds(const QString& self, const QString& mode, const QString& project, long size, int rounds)
{
    std::vector<QString> order;
    std::map<QString, std::vector<double>> figures;
    for (int round = 0; round < rounds; ++round) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(self, {mode, project});
        process.waitForFinished(-1);
        if (process.exitCode() != 0)
            return false;
        for (const QString& line :
             QString::fromUtf8(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
            const QString name = line.section(u' ', 0, 0);
            if (!figures.contains(name))
                order.push_back(name);
            figures[name].push_back(line.section(u' ', 1).toDouble());
        }
    }
    for (const QString& name : order)
        std::printf("%-22s %8ld %8.1f ms\n", name.toUtf8().constData(), size, median(figures[name]));
    return !order.empty();
}

int compare(const QString& self, int rounds)
{
    for (const long size : benchSizes()) {
        if (!runRounds(self, u"measure"_s, generatedProject(size), size, rounds) ||
            !runRounds(self, u"tree"_s, projectWithProducts(size), size, rounds))
            return 1;
    }
    return 0;
}

} // namespace

} // namespace zelvor

int main(int argc, char** argv)
{
    if (argc == 3)
        return zelvor::measure(argc, argv);
    const QCoreApplication application(argc, argv);
    return zelvor::compare(QCoreApplication::applicationFilePath(), zelvor::isSmokeRun() ? 1 : 5);
}
