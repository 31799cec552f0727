#include "documents/document_journal_view_controller.h"

#include "core/formats.h"
#include "core/localized.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/property_document.h"
#include "store/params.h"
#include "store/user_write.h"

#include <algorithm>
#include <string>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

using enum DocType;

namespace {

bool contains(const std::vector<DocType>& types, DocType type)
{
    return std::ranges::find(types, type) != types.end();
}

// Earliest first; documents of one second stay by kind and in the order in which they were made.
bool isEarlier(const std::shared_ptr<DocumentModel>& a, const std::shared_ptr<DocumentModel>& b)
{
    return a->date < b->date;
}

} // namespace

DocumentJournalViewController::DocumentJournalViewController(AppDelegate& owner, QString kind)
    : ModelViewController(owner),
      documentTypes(std::move(kind)), productTypes{BuyProduct, SellProduct,   SellIntangibles, MoveProduct,
                                                   AddProduct, DeleteProduct, Return},
      moneyTypes{MoneyFromContragent, MoneyFromEmployee, MoneyToEmployee, MoneyToContragent,
                 MoneyToExpend,       MoneyAdd,          InnerTransaction},
      propertyTypes{BuyProperty, SellProperty, AddProperty, DeleteProperty}, mainView(*this)
{
    dateFromLabel.setText(localized("From"));
    dateToLabel.setText(localized("To"));
    deleteDocumentMenuItem.setEnabled(false);
    bindOutlets();
    for (const NotificationName name :
         {NotificationName::ProductDocChangedNotification, NotificationName::MoneyDocChangedNotification,
          NotificationName::PropertiesChangedNotification}) {
        m_observations.push_back(
            appDelegate.notifications.observe(name, [this](const Notification&) { updateDocs(); }));
    }
}

DocumentJournalViewController::~DocumentJournalViewController() = default;

void DocumentJournalViewController::bindOutlets()
{
    dateFrom.onUserChange = [this] { datesChanged(); };
    dateTo.onUserChange = [this] { datesChanged(); };
    docTypeSelect.onUserChange = [this] { updateJournal(); };
    deleteDocumentMenuItem.onUserChange = [this] { deleteDocument(); };
}

void DocumentJournalViewController::datesChanged()
{
    checkDates();
    updateJournal();
}

void DocumentJournalViewController::prepareData()
{
    initDocTypeSelect();
    setCurrentDate();
    prepareJournal();
}

void DocumentJournalViewController::initDocTypeSelect()
{
    std::vector<PopUpButton::Item> items{{.title = localized("All"), .tag = 0}};
    const auto separate = [&items] { items.push_back({.separator = true}); };
    const auto add = [&items](const std::vector<DocType>& types, const QString& prefix) {
        for (const DocType type : types)
            items.push_back({.title = prefix + docTypeName(type), .tag = rawValue(type)});
    };
    separate();
    if (documentTypes == u"Product") {
        add(productTypes, {});
    } else if (documentTypes == u"Money") {
        add(moneyTypes, {});
    } else {
        add(moneyTypes, localized("(Money) "));
        separate();
        add(productTypes, localized("(Product) "));
        separate();
        add(propertyTypes, localized("(Fixed Asset) "));
    }
    docTypeSelect.setItems(std::move(items));
    docTypeSelect.selectTag(0);
}

void DocumentJournalViewController::setCurrentDate()
{
    dateFrom.setMoment(appDelegate.calendar.normalizedDate(appDelegate.now(), true));
    dateTo.setMoment(appDelegate.calendar.normalizedDate(appDelegate.now(), false));
    checkDates();
}

void DocumentJournalViewController::setCurrentPeriod()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    dateFrom.setMoment(getStartPeriodDateFromDate(appDelegate.now(), *params));
    dateTo.setMoment(appDelegate.calendar.normalizedDate(appDelegate.now(), false));
    datesChanged();
}

// The lower bound is outside, the upper one inside.
template <class Record>
void DocumentJournalViewController::readKind(const std::vector<DocType>& types)
{
    std::string sql = "WHERE date>? AND date<=? AND(";
    std::vector<Parameter> params{dateFrom.moment(), dateTo.moment()};
    for (const DocType type : types) {
        sql += params.size() == 2 ? " doc_type_id=?" : " OR doc_type_id=?";
        params.emplace_back(type);
    }
    sql += ')';
    const auto read = appDelegate.connector.freeSQL<Record>(sql, params, Fill::Heads);
    mainView.documents.insert(mainView.documents.end(), read.begin(), read.end());
}

void DocumentJournalViewController::prepareJournal()
{
    progress.start();
    m_prepared = true;
    m_stale = false;
    docToDelete.reset();
    deleteDocumentMenuItem.setEnabled(false);
    const int row = mainView.selectedRow();
    const auto before = std::exchange(mainView.documents, {});
    mainView.setPeriod(dateFrom.moment(), dateTo.moment());
    readSelected();
    std::ranges::stable_sort(mainView.documents, isEarlier);
    const bool hadSelection = row >= 0 && static_cast<std::size_t>(row) < before.size();
    mainView.selectDocument(hadSelection ? before[static_cast<std::size_t>(row)].get() : nullptr);
    mainView.setName(getNameForTabView());
    mainView.reloadData();
    progress.stop();
}

void DocumentJournalViewController::readSelected()
{
    const auto selected = typeFromInt(docTypeSelect.selectedTag());
    if (selected && *selected != NilType) {
        if (contains(moneyTypes, *selected))
            readKind<MoneyDocument>({*selected});
        else if (contains(productTypes, *selected))
            readKind<ProductDocument>({*selected});
        else
            readKind<PropertyDocument>({*selected});
        return;
    }
    if (documentTypes != u"Product")
        readKind<MoneyDocument>(moneyTypes);
    if (documentTypes != u"Money")
        readKind<ProductDocument>(productTypes);
    if (documentTypes != u"Product" && documentTypes != u"Money")
        readKind<PropertyDocument>(propertyTypes);
}

void DocumentJournalViewController::updateDocs()
{
    if (!m_prepared)
        return;
    m_stale = true;
    if (mainView.isVisible())
        prepareJournal();
}

void DocumentJournalViewController::readIfStale()
{
    if (m_stale)
        prepareJournal();
}

QString DocumentJournalViewController::getNameForTabView() const
{
    const QString opener = documentTypes == u"Product" ? localized("Product Documents From: ")
                           : documentTypes == u"Money" ? localized("Money Documents From: ")
                                                       : localized("All Documents From: ");
    const auto day = [this](qint64 moment) {
        return shortDateText(appDelegate.calendar.dateTime(moment), QLocale());
    };
    return opener + day(dateFrom.moment()) + localized(" To: ") + day(dateTo.moment());
}

void DocumentJournalViewController::checkDates()
{
    const Color color = dateFrom.moment() <= dateTo.moment() ? inOrderColor : redColor;
    dateFromLabel.setColor(color);
    dateToLabel.setColor(color);
}

void DocumentJournalViewController::menuWillOpen(int clickedRow)
{
    const std::shared_ptr<DocumentModel> clicked = mainView.documentAt(clickedRow);
    docToDelete = clicked && !clicked->confirmed ? clicked : nullptr;
    deleteDocumentMenuItem.setEnabled(docToDelete != nullptr);
}

bool DocumentJournalViewController::deleteDocument()
{
    const std::shared_ptr<DocumentModel> document = std::exchange(docToDelete, nullptr);
    deleteDocumentMenuItem.setEnabled(false);
    if (!document)
        return false;
    const bool isProduct = dynamic_cast<ProductDocument*>(document.get()) != nullptr;
    const bool isMoney = dynamic_cast<MoneyDocument*>(document.get()) != nullptr;
    if (!isProduct && !isMoney)
        return false;
    UserWrite write(appDelegate.connector);
    if (!(isProduct ? removeProductDocument(document->id) : removeMoneyDocument(document->id)))
        write.fail();
    if (!write.finish())
        return false;
    appDelegate.notifications.post(isProduct ? NotificationName::ProductDocChangedNotification
                                             : NotificationName::MoneyDocChangedNotification,
                                   this);
    return true;
}

// Read anew: the journal shows heads without rows, and a form may have confirmed the document since.
bool DocumentJournalViewController::removeProductDocument(qint64 id)
{
    Connector& connector = appDelegate.connector;
    const auto document = connector.select<ProductDocument>(id, Fill::Nothing);
    if (!document || document->confirmed)
        return false;
    const auto rows =
        connector.freeSQL<ProductDocumentRow>("WHERE doc_id=? ORDER BY id", {id}, Fill::Nothing);
    return std::ranges::all_of(rows, [&](const auto& row) { return connector.remove(*row) == 1; }) &&
           connector.remove(*document) == 1;
}

bool DocumentJournalViewController::removeMoneyDocument(qint64 id)
{
    Connector& connector = appDelegate.connector;
    const auto document = connector.select<MoneyDocument>(id, Fill::Nothing);
    return document && !document->confirmed && connector.remove(*document) == 1;
}

void DocumentJournalViewController::openDocument(int row)
{
    const std::shared_ptr<DocumentModel> document = mainView.documentAt(row);
    if (!document)
        return;
    const DocType type = document->docType();
    const QString kind = contains(moneyTypes, type)     ? u"Money"_s
                         : contains(productTypes, type) ? u"Product"_s
                                                        : u"Property"_s;
    appDelegate.workspace().openDocWithID(document->id, kind);
}

} // namespace zelvor
