#include "core/formats.h"
#include "documents/document_journal_view_controller.h"
#include "support/document_forms.h"

#include <set>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

using enum DocType;
using enum NotificationName;

class RecordedWorkspace : public Workspace {
public:
    void openDocWithID(qint64 id, const QString& type) override
    {
        opened.append(type + u' ' + QString::number(id));
    }
    QStringList opened;
};

class Journal : public testing::Test {
protected:
    template <class Document>
    std::shared_ptr<Document> document(DocType type, qint64 date, bool confirmed = true, double sum = 0,
                                       const Contragent* contragent = nullptr)
    {
        Document document;
        document.insertDocType(type);
        document.date = date;
        document.confirmed = confirmed;
        document.docNumber = confirmed ? ++number : 0;
        document.setDocSum(sum);
        document.contragentID = contragent ? contragent->id : 0;
        return books.store(document);
    }
    std::unique_ptr<DocumentJournalViewController> journal(const QString& kind)
    {
        auto controller = std::make_unique<DocumentJournalViewController>(books.appDelegate, kind);
        controller->prepareData();
        return controller;
    }
    static QStringList types(DocumentJournalViewController& controller)
    {
        QStringList shown;
        for (int row = 0; row < controller.mainView.numberOfRows(); ++row)
            shown.append(docTypeCase(controller.mainView.documentAt(row)->docType()));
        return shown;
    }
    static void ask(DocumentJournalViewController& controller, qint64 from, qint64 to)
    {
        controller.dateFrom.setMoment(from);
        controller.dateTo.setMoment(to);
        controller.prepareJournal();
    }

    // Tuesday, 14 November 2023, 22:13:20.
    Books books;
    const qint64 now = books.clock.now();
    const qint64 midnight = 1'699'920'000;
    qint64 number = 0;
};

TEST_F(Journal, showsTodayAtFirst)
{
    document<MoneyDocument>(MoneyAdd, midnight); // the lower bound is outside
    document<MoneyDocument>(MoneyToExpend, midnight + 1);
    document<MoneyDocument>(MoneyToEmployee, midnight + 86400); // the upper one inside
    document<MoneyDocument>(MoneyFromEmployee, midnight + 86401);
    const auto money = journal(u"Money"_s);
    EXPECT_EQ(money->dateFrom.moment(), midnight);
    EXPECT_EQ(money->dateTo.moment(), midnight + 86400);
    EXPECT_EQ(types(*money), (QStringList{u"MoneyToExpend"_s, u"MoneyToEmployee"_s}));
}

TEST_F(Journal, showsItsKindInTheOrderOfTime)
{
    document<ProductDocument>(SellProduct, now - 10);
    document<PropertyDocument>(AddProperty, now - 20);
    document<MoneyDocument>(MoneyAdd, now - 15);
    document<ProductDocument>(BuyProduct, now - 30);
    EXPECT_EQ(types(*journal(u"Product"_s)), (QStringList{u"BuyProduct"_s, u"SellProduct"_s}));
    EXPECT_EQ(types(*journal(u"Money"_s)), QStringList{u"MoneyAdd"_s});
    EXPECT_EQ(types(*journal(u"All"_s)),
              (QStringList{u"BuyProduct"_s, u"AddProperty"_s, u"MoneyAdd"_s, u"SellProduct"_s}));
}

TEST_F(Journal, offersTheTypesOfItsKind)
{
    const auto titles = [](const DocumentJournalViewController& controller) {
        QStringList list;
        for (const PopUpButton::Item& item : controller.docTypeSelect.items())
            list.append(item.separator ? u"-"_s : item.title);
        return list;
    };
    const auto money = journal(u"Money"_s);
    EXPECT_EQ(money->docTypeSelect.items().size(), 9u);
    EXPECT_EQ(titles(*money).first(3), (QStringList{u"All"_s, u"-"_s, docTypeName(MoneyFromContragent)}));
    EXPECT_EQ(money->docTypeSelect.items()[2].tag, rawValue(MoneyFromContragent));
    EXPECT_EQ(journal(u"Product"_s)->docTypeSelect.items().size(), 9u);
    const auto all = journal(u"All"_s);
    const QStringList allTitles = titles(*all);
    ASSERT_EQ(allTitles.size(), 22);
    EXPECT_EQ(allTitles[2], u"(Money) "_s + docTypeName(MoneyFromContragent));
    EXPECT_EQ(allTitles[9], u"-"_s);
    EXPECT_EQ(allTitles[10], u"(Product) "_s + docTypeName(BuyProduct));
    EXPECT_EQ(allTitles[17], u"-"_s);
    EXPECT_EQ(allTitles[18], u"(Fixed Asset) "_s + docTypeName(BuyProperty));
    EXPECT_EQ(all->docTypeSelect.selectedTag(), 0);
}

TEST_F(Journal, aTypeNarrowsItWhateverItsKind)
{
    document<ProductDocument>(SellProduct, now - 10);
    document<ProductDocument>(BuyProduct, now - 9);
    document<PropertyDocument>(AddProperty, now - 8);
    document<MoneyDocument>(MoneyAdd, now - 7);
    document<MoneyDocument>(MoneyToExpend, now - 6);
    const auto all = journal(u"All"_s);
    for (const DocType type : {SellProduct, AddProperty, MoneyAdd}) {
        choose(all->docTypeSelect, rawValue(type));
        EXPECT_EQ(types(*all), QStringList{docTypeCase(type)});
    }
    choose(all->docTypeSelect, 0);
    EXPECT_EQ(types(*all).size(), 5);
}

// What a connector was asked, table by table.
class WatchingConnector : public FaultInjectingConnector {
public:
    bool readRecords(const TableInfo& table, std::string_view sql, std::span<const Parameter> params,
                     Fill fill, bool absoluteFree,
                     const std::function<void(std::shared_ptr<TableModel>)>& take) override
    {
        asked.push_back(table.name);
        fills.insert(fill);
        return FaultInjectingConnector::readRecords(table, sql, params, fill, absoluteFree, take);
    }
    std::vector<std::string> asked;
    std::set<Fill> fills;
};

TEST(JournalReading, withoutATypeAllAsksEachKindOnceForHeads)
{
    QTemporaryDir folder;
    FixedClock clock(1'700'000'000);
    ScriptedDialogs dialogs;
    DefaultsStore defaults(folder.filePath(u"Zelvor.conf"_s));
    auto owned = std::make_unique<WatchingConnector>();
    WatchingConnector& connector = *owned;
    AppDelegate appDelegate({clock, Calendar(QTimeZone::utc()), dialogs, defaults}, std::move(owned));
    ASSERT_TRUE(connector.create(folder.filePath(u"test.pdb"_s)));
    ASSERT_TRUE(connector.createTable<ProductDocument>() && connector.createTable<MoneyDocument>() &&
                connector.createTable<PropertyDocument>() && connector.publish());
    DocumentJournalViewController journal(appDelegate, u"All"_s);
    journal.prepareData();
    EXPECT_EQ(connector.asked, (std::vector<std::string>{"money_doc", "product_doc", "property_doc"}));
    EXPECT_EQ(connector.fills, std::set{Fill::Heads});
}

TEST_F(Journal, titlesItsTabWithKindAndDates)
{
    const auto product = journal(u"Product"_s);
    const auto day = [&](qint64 moment) {
        return shortDateText(books.appDelegate.calendar.dateTime(moment), QLocale());
    };
    const QString range = day(midnight) + u" To: "_s + day(midnight + 86400);
    EXPECT_EQ(product->getNameForTabView(), u"Product Documents From: "_s + range);
    EXPECT_EQ(product->mainView.name(), product->getNameForTabView());
    EXPECT_EQ(journal(u"Money"_s)->getNameForTabView(), u"Money Documents From: "_s + range);
    EXPECT_EQ(journal(u"All"_s)->getNameForTabView(), u"All Documents From: "_s + range);
}

TEST_F(Journal, theRunningPeriodBeginsByTheSettings)
{
    const auto all = journal(u"All"_s);
    const std::pair<qint64, QDate> starts[] = {{1, {2023, 11, 1}}, {2, {2023, 10, 1}}, {3, {2023, 1, 1}}};
    for (const auto& [period, start] : starts) {
        books.changeParams([&](Params& params) { params.reportPeriod = period; });
        all->setCurrentPeriod();
        EXPECT_EQ(all->dateFrom.moment(), books.appDelegate.calendar.moment(start, QTime(0, 0)));
        EXPECT_EQ(all->dateTo.moment(), midnight + 86400);
    }
}

TEST_F(Journal, datesInTheWrongOrderAreRedAndFindNothing)
{
    document<MoneyDocument>(MoneyAdd, now - 10);
    const auto money = journal(u"Money"_s);
    EXPECT_EQ(money->dateFromLabel.color(), inOrderColor);
    money->dateFrom.setMoment(now);
    money->dateTo.setMoment(now - 100);
    EXPECT_TRUE(money->dateTo.userChanged());
    EXPECT_EQ(money->dateFromLabel.color(), redColor);
    EXPECT_EQ(money->dateToLabel.color(), redColor);
    EXPECT_EQ(money->mainView.numberOfRows(), 0);
    money->dateTo.setMoment(now);
    EXPECT_TRUE(money->dateTo.userChanged());
    EXPECT_EQ(money->dateFromLabel.color(), inOrderColor) << "equal dates are in order";
}

TEST_F(Journal, boundsAreExactMoments)
{
    document<MoneyDocument>(MoneyAdd, now - 10);
    const auto money = journal(u"Money"_s);
    ask(*money, now - 10, now);
    EXPECT_EQ(money->mainView.numberOfRows(), 0);
    ask(*money, now - 11, now - 10);
    EXPECT_EQ(money->mainView.numberOfRows(), 1);
}

TEST_F(Journal, aCellShowsWhatTheDocumentAnswers)
{
    const auto cash = books.account(u"Cash"_s);
    const auto joe = books.employee(u"Joe"_s);
    const auto ann = books.contragent(u"Ann"_s);
    MoneyDocument payment;
    payment.insertDocType(MoneyToContragent);
    payment.date = now - 5;
    payment.docNumber = 7;
    payment.confirmed = true;
    payment.setDocSum(12.5);
    payment.contragentID = ann->id;
    payment.accountFromID = cash->id;
    payment.managerID = joe->id;
    payment.comment = u"rest"_s;
    books.store(payment);
    const auto money = journal(u"Money"_s);
    QStringList identifiers;
    for (const ViewColumn& column : money->mainView.columns())
        identifiers.append(column.identifier);
    EXPECT_EQ(identifiers, (QStringList{u"number"_s, u"journalName"_s, u"date"_s, u"confirmed"_s,
                                        u"correction"_s, u"sum"_s, u"contragent"_s, u"stockFrom"_s,
                                        u"stockTo"_s, u"manager"_s, u"comment"_s}));
    const auto cell = [&](const QString& identifier) { return money->mainView.value(0, identifier); };
    EXPECT_EQ(cell(u"number"_s), QVariant(qint64(7)));
    EXPECT_EQ(cell(u"journalName"_s).toString(),
              u"Money Document '"_s + docTypeName(MoneyToContragent) + u"' #7"_s);
    EXPECT_EQ(cell(u"date"_s), QVariant(now - 5));
    EXPECT_EQ(cell(u"confirmed"_s), QVariant(true));
    EXPECT_EQ(cell(u"correction"_s), QVariant(false));
    EXPECT_EQ(cell(u"sum"_s), QVariant(12.5));
    EXPECT_EQ(cell(u"contragent"_s), QVariant(u"Ann"_s));
    EXPECT_EQ(cell(u"stockFrom"_s), QVariant(u"Cash"_s));
    EXPECT_EQ(cell(u"stockTo"_s), QVariant(QString()));
    EXPECT_EQ(cell(u"manager"_s), QVariant(u"Joe"_s));
    EXPECT_EQ(cell(u"comment"_s), QVariant(u"rest"_s));
    EXPECT_EQ(cell(u"weather"_s), QVariant(QString()));
    EXPECT_EQ(money->mainView.value(1, u"number"_s), QVariant(QString())) << "outside the rows";
}

TEST_F(Journal, sortsByItsFourKeysEitherWay)
{
    const auto ann = books.contragent(u"Ann"_s);
    const auto bob = books.contragent(u"Bob"_s);
    document<MoneyDocument>(MoneyFromContragent, now - 10, true, 30, ann.get()); // number 1
    document<MoneyDocument>(MoneyFromContragent, now - 20, true, 10, bob.get()); // number 2
    document<MoneyDocument>(MoneyFromContragent, now - 30, true, 20, ann.get()); // number 3
    const auto money = journal(u"Money"_s);
    const auto numbers = [&](const QString& key, bool ascending) {
        money->mainView.sort(key, ascending);
        QList<qint64> list;
        for (int row = 0; row < money->mainView.numberOfRows(); ++row)
            list.append(money->mainView.documentAt(row)->docNumber);
        return list;
    };
    using Numbers = QList<qint64>;
    EXPECT_EQ(numbers(u"number"_s, true), (Numbers{1, 2, 3}));
    EXPECT_EQ(numbers(u"number"_s, false), (Numbers{3, 2, 1}));
    EXPECT_EQ(numbers(u"date"_s, true), (Numbers{3, 2, 1}));
    EXPECT_EQ(numbers(u"sum"_s, true), (Numbers{2, 3, 1}));
    EXPECT_EQ(numbers(u"sum"_s, false), (Numbers{1, 3, 2}));
    EXPECT_EQ(numbers(u"contragent"_s, true), (Numbers{1, 3, 2}));
    EXPECT_EQ(numbers(u"comment"_s, false), (Numbers{1, 3, 2})) << "no key of the list";
}

TEST_F(Journal, theSelectionStaysWithItsDocument)
{
    document<MoneyDocument>(MoneyAdd, now - 10, true, 30);
    const auto second = document<MoneyDocument>(MoneyAdd, now - 20, true, 10);
    const auto money = journal(u"Money"_s);
    money->mainView.selectRow(0);
    money->mainView.sort(u"sum"_s, false);
    EXPECT_EQ(money->mainView.selectedRow(), 1);
    document<MoneyDocument>(MoneyAdd, now - 30);
    money->updateJournal();
    EXPECT_EQ(money->mainView.selectedRow(), 1);
    ASSERT_EQ(books.db.remove(*second), 1);
    money->updateJournal();
    EXPECT_EQ(money->mainView.selectedRow(), -1);
}

TEST_F(Journal, readsAnewAtOnceWhileVisibleOtherwiseWhenAsked)
{
    const auto money = journal(u"Money"_s);
    int reloads = 0;
    money->mainView.onReload([&reloads] { ++reloads; });
    document<MoneyDocument>(MoneyAdd, now - 10);
    for (const NotificationName name :
         {MoneyDocChangedNotification, ProductDocChangedNotification, PropertiesChangedNotification})
        books.appDelegate.notifications.post(name);
    EXPECT_EQ(reloads, 0);
    EXPECT_TRUE(money->mainView.documents.empty());
    EXPECT_EQ(money->mainView.numberOfRows(), 1);
    EXPECT_EQ(reloads, 1);
    money->mainView.setVisible(true);
    document<MoneyDocument>(MoneyAdd, now - 9);
    books.appDelegate.notifications.post(MoneyDocChangedNotification);
    EXPECT_EQ(money->mainView.documents.size(), 2u);
}

TEST_F(Journal, offersToDeleteAnUnconfirmedRowAlone)
{
    document<MoneyDocument>(MoneyAdd, now - 20);
    document<MoneyDocument>(MoneyAdd, now - 10, false);
    const auto money = journal(u"Money"_s);
    EXPECT_FALSE(money->deleteDocumentMenuItem.enabled());
    money->menuWillOpen(1);
    EXPECT_TRUE(money->deleteDocumentMenuItem.enabled());
    ASSERT_TRUE(money->docToDelete);
    for (const int row : {0, -1, 2}) {
        money->menuWillOpen(row);
        EXPECT_FALSE(money->deleteDocumentMenuItem.enabled()) << row;
        EXPECT_FALSE(money->docToDelete) << row;
        EXPECT_FALSE(money->deleteDocument()) << row;
    }
}

TEST_F(Journal, aRowOfAFixedAssetIsNeverDeleted)
{
    const auto asset = document<PropertyDocument>(AddProperty, now - 10);
    const auto all = journal(u"All"_s);
    all->menuWillOpen(0);
    EXPECT_FALSE(all->deleteDocumentMenuItem.enabled());
    all->docToDelete = asset;
    EXPECT_FALSE(all->deleteDocument());
    EXPECT_TRUE(books.read(*asset));
}

TEST_F(Journal, deletesADraftWithItsRows)
{
    ProductDocument draft;
    draft.insertDocType(SellProduct);
    draft.date = now - 10;
    for (int i = 0; i < 3; ++i)
        draft.documentRows.push_back(std::make_shared<ProductDocumentRow>());
    books.store(draft);
    const auto kept = document<ProductDocument>(SellProduct, now - 20);
    const auto all = journal(u"All"_s);
    all->mainView.setVisible(true);
    all->menuWillOpen(1);
    PostingsInsideTransaction postings(books);
    books.posted.clear();
    EXPECT_TRUE(all->deleteDocumentMenuItem.userChanged());
    EXPECT_EQ(books.posted.names, std::vector{ProductDocChangedNotification});
    EXPECT_EQ(postings.inside, 0) << "a deletion is told after the commit";
    EXPECT_TRUE(books.db.freeSQL<ProductDocumentRow>().empty());
    EXPECT_EQ(books.db.freeSQL<ProductDocument>().size(), 1u);
    EXPECT_EQ(all->mainView.documents.size(), 1u);
    EXPECT_FALSE(all->docToDelete);
}

TEST_F(Journal, leavesADraftThatWasConfirmedSince)
{
    const auto draft = document<MoneyDocument>(MoneyAdd, now - 10, false);
    const auto money = journal(u"Money"_s);
    money->menuWillOpen(0);
    draft->confirmed = true;
    draft->docNumber = 1;
    books.store(*draft);
    const QStringList before = books.dump();
    EXPECT_FALSE(money->deleteDocument());
    EXPECT_EQ(books.dump(), before);
    EXPECT_TRUE(books.posted.names.empty());
}

TEST_F(Journal, opensADocumentByItsKind)
{
    RecordedWorkspace workspace;
    books.appDelegate.setWorkspace(&workspace);
    document<ProductDocument>(SellProduct, now - 30);
    document<MoneyDocument>(MoneyAdd, now - 20);
    document<PropertyDocument>(AddProperty, now - 10);
    const auto all = journal(u"All"_s);
    for (int row = -1; row < 4; ++row)
        all->mainView.doubleAction(row);
    EXPECT_EQ(workspace.opened, (QStringList{u"Product 1"_s, u"Money 1"_s, u"Property 1"_s}));
    books.appDelegate.setWorkspace(nullptr);
}

TEST_F(Journal, aFailedDeletionLeavesEverything)
{
    ProductDocument product;
    product.insertDocType(SellProduct);
    product.date = now - 10;
    product.documentRows = {std::make_shared<ProductDocumentRow>(), std::make_shared<ProductDocumentRow>()};
    books.store(product);
    document<MoneyDocument>(MoneyAdd, now - 20, false);
    const auto all = journal(u"All"_s);
    for (const int row : {1, 0}) {
        const QStringList before = books.dump();
        bool done = false;
        int call = 1;
        for (; call < 30; ++call) {
            all->menuWillOpen(row);
            ASSERT_TRUE(all->docToDelete);
            books.posted.clear();
            books.connector->failCall(call, FaultInjectingConnector::All & ~FaultInjectingConnector::Commit);
            done = all->deleteDocument();
            EXPECT_EQ(done, !books.connector->hasFailed()) << "call " << call;
            books.connector->failCall(0);
            if (done)
                break;
            EXPECT_EQ(books.dump(), before) << "call " << call;
            EXPECT_TRUE(books.posted.names.empty());
        }
        EXPECT_TRUE(done);
        EXPECT_GE(call, 4);
    }
    EXPECT_TRUE(books.dialogs.alerts.empty()) << "a failure is not told";
}

TEST_F(Journal, aDeletionThatTheDiskRefusesLeavesEverything)
{
    document<MoneyDocument>(MoneyAdd, now - 20, false);
    const auto money = journal(u"Money"_s);
    money->menuWillOpen(0);
    const QStringList before = books.dump();
    books.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(money->deleteDocument());
    EXPECT_EQ(books.dump(), before);
    EXPECT_EQ(money->mainView.numberOfRows(), 1);
}

} // namespace
} // namespace zelvor
