#include "screens/photographer.h"

#include "desktop/day_field.h"
#include "desktop/page.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QDir>
#include <QtCore/QElapsedTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QTreeView>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

struct NamedType {
    DocType type;
    const char* name;
};

constexpr NamedType catalogs[] = {{DocType::ContragentCatalog, "counterparties"},
                                  {DocType::StockCatalog, "warehouses"},
                                  {DocType::MeasurementCatalog, "units"},
                                  {DocType::ProductCatalog, "products"}};

constexpr NamedType documents[] = {{DocType::BuyProduct, "purchase"},
                                   {DocType::SellProduct, "sale"},
                                   {DocType::SellIntangibles, "service-sale"},
                                   {DocType::MoveProduct, "transfer"},
                                   {DocType::AddProduct, "stock-in"},
                                   {DocType::DeleteProduct, "write-off"},
                                   {DocType::Return, "return"}};

constexpr NamedType journals[] = {{DocType::ProductJournal, "product-journal"},
                                  {DocType::MoneyJournal, "money-journal"},
                                  {DocType::AllDocumentsJournal, "all-documents"}};

constexpr const char* groupings[] = {"products", "customers", "managers"};

// Timers of the widgets run out, layouts and repaints are done.
void settle()
{
    constexpr int longestWait = 100; // milliseconds
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < longestWait)
        QApplication::processEvents(QEventLoop::AllEvents, longestWait);
}

void press(QWidget& widget, int key)
{
    QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &down);
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier);
    QApplication::sendEvent(&widget, &up);
}

// Below the groups at the top of a tree, the first row that has no rows of its own; the first of a flat list.
QModelIndex firstLeaf(const QAbstractItemModel& model)
{
    QModelIndex index = model.index(0, 0);
    while (model.rowCount(index) > 0)
        index = model.index(0, 0, index);
    return index;
}

QAbstractItemView* listOf(const Page& page)
{
    for (QAbstractItemView* const list : page.findChildren<QAbstractItemView*>()) {
        if (list->isVisible())
            return list;
    }
    return nullptr;
}

} // namespace

Photographer::Photographer(DesktopApplication& desktop, QString folder)
    : m_desktop(desktop), m_folder(std::move(folder))
{}

bool Photographer::photograph(const QString& project)
{
    m_desktop.start({});
    save(m_desktop.projectWindow, u"projects"_s);
    m_desktop.start(project);
    settle();
    if (!m_desktop.mainWindow.isVisible()) {
        fail(u"the project did not open"_s);
        return false;
    }
    // The screen of the offscreen platform is smaller than a shop's.
    m_desktop.mainWindow.resize(1440, 900);
    save(m_desktop.mainWindow, u"empty-workspace"_s);
    photographCatalogs();
    photographDocuments();
    photographJournals();
    photographReports();
    m_desktop.shell.showDefaults();
    save(m_desktop.preferencesWindow, u"preferences"_s);
    return m_complete;
}

void Photographer::photographCatalogs()
{
    for (const NamedType& catalog : catalogs) {
        Page* const page = open(catalog.type);
        if (!page)
            continue;
        const QString name = QLatin1StringView(catalog.name);
        if (auto* const tree = page->findChild<QTreeView*>())
            tree->expandToDepth(1);
        save(m_desktop.mainWindow, name);
        openForm(name);
    }
}

// The tabs of the catalogs stay open behind: that is how it looks in daily work.
void Photographer::photographDocuments()
{
    for (const NamedType& document : documents) {
        Page* const page = open(document.type);
        if (!page)
            continue;
        save(m_desktop.mainWindow, QLatin1StringView(document.name) + u"-new"_s);
        m_desktop.shell.mainWindowController.closeTab(page->view().index());
    }
    openStored(DocType::SellProduct, true, u"sale-confirmed"_s);
    storeDraft();
    openStored(DocType::SellProduct, false, u"sale-draft"_s);
    openStored(DocType::BuyProduct, true, u"purchase-confirmed"_s);
}

void Photographer::photographJournals()
{
    for (const NamedType& journal : journals) {
        if (Page* const page = open(journal.type)) {
            if (auto* const thisPeriod = page->findChild<QAbstractButton*>(u"currentPeriodButton"_s))
                thisPeriod->click();
            save(m_desktop.mainWindow, QLatin1StringView(journal.name));
        }
    }
}

void Photographer::photographReports()
{
    if (open(DocType::BalanceSheet))
        save(m_desktop.mainWindow, u"balance"_s);
    Page* const page = open(DocType::PeriodSellReport);
    if (!page)
        return;
    save(m_desktop.mainWindow, u"sales-empty"_s);
    choosePeriod(*page);
    for (int tag = 0; tag < 3; ++tag) {
        if (auto* const choice = page->findChild<QAbstractButton*>(u"reportType"_s + QString::number(tag)))
            choice->click();
        else
            fail(u"the sales have no choice "_s + QString::number(tag));
        page->perform(PageCommand::Refresh);
        save(m_desktop.mainWindow, u"sales-by-"_s + QLatin1StringView(groupings[tag]));
    }
}

// The last twelve months of the sample business.
void Photographer::choosePeriod(Page& page)
{
    auto* const from = page.findChild<DayField*>(u"dateFrom"_s);
    auto* const to = page.findChild<DayField*>(u"dateTo"_s);
    if (!from || !to)
        return fail(u"the sales have no period"_s);
    Q_EMIT from->dayChosen(QDate(2025, 11, 1));
    Q_EMIT to->dayChosen(QDate(2026, 11, 1));
}

// A sale as it stands on the screen when half of it is typed in.
void Photographer::storeDraft()
{
    auto draft = std::make_shared<ProductDocument>();
    draft->insertDocType(DocType::SellProduct);
    draft->date = m_desktop.appDelegate.clock.now() - 600;
    ProductDocumentViewController form(m_desktop.appDelegate, draft);
    form.prepareData();
    const auto customers = m_desktop.appDelegate.connector.freeSQL<ProductDocument>(
        "WHERE doc_type_id=? AND is_confirmed=1 AND contragent_id>0 ORDER BY date DESC LIMIT 1",
        {rawValue(DocType::SellProduct)});
    const auto products = m_desktop.appDelegate.connector.freeSQL<Product>(
        "WHERE is_hidden=0 AND is_intangible=0 ORDER BY id LIMIT 6", {});
    bool filled =
        !customers.empty() && !products.empty() && form.setContragentFromID(customers.front()->contragentID);
    for (const auto& product : products)
        filled = filled && form.addProductFromID(product->id) >= 0;
    if (!filled || !form.writeDoc())
        fail(u"no draft could be stored"_s);
}

// The form of the first record, beside its row, and away again.
void Photographer::openForm(const QString& name)
{
    Page* const page = m_desktop.mainWindow.activePage();
    QAbstractItemView* const list = listOf(*page);
    if (!list || !list->model() || list->model()->rowCount() == 0)
        return fail(name + u" has no rows"_s);
    list->setCurrentIndex(firstLeaf(*list->model()));
    press(*list, Qt::Key_F2);
    save(m_desktop.mainWindow, name + u"-form"_s);
    if (QWidget* const focused = QApplication::focusWidget())
        press(*focused, Qt::Key_Escape);
    settle();
}

void Photographer::openStored(DocType type, bool confirmed, const QString& name)
{
    const auto found = m_desktop.appDelegate.connector.freeSQL<ProductDocument>(
        "WHERE doc_type_id=? AND is_confirmed=? ORDER BY date DESC LIMIT 1",
        {rawValue(type), confirmed ? 1 : 0});
    if (found.empty())
        return fail(u"there is no document for "_s + name);
    m_desktop.shell.mainWindowController.openDocWithID(found.front()->id, u"Product"_s);
    settle();
    if (Page* const page = m_desktop.mainWindow.activePage(); page && !confirmed) {
        if (auto* const products = page->findChild<QTreeView*>())
            products->expandAll();
    }
    save(m_desktop.mainWindow, name);
}

Page* Photographer::open(DocType type)
{
    m_desktop.shell.mainWindowController.topMenuAction(type);
    settle();
    Page* const page = m_desktop.mainWindow.activePage();
    if (!page)
        fail(u"no page for "_s + docTypeCase(type));
    return page;
}

void Photographer::save(QWidget& window, const QString& name)
{
    settle();
    const QString path = QDir(m_folder).filePath(name + u".png"_s);
    if (!window.isVisible())
        fail(name + u" is not on the screen"_s);
    else if (!window.grab().save(path))
        fail(path + u" cannot be written"_s);
}

void Photographer::fail(const QString& what)
{
    m_complete = false;
    std::fprintf(stderr, "zelvor-screens: %s\n", qUtf8Printable(what));
}

} // namespace zelvor
