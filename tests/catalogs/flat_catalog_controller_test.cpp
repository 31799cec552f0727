#include "catalogs/account_type_view_controller.h"
#include "catalogs/account_view_controller.h"
#include "catalogs/delete_basis_view_controller.h"
#include "catalogs/flat_catalog_fixture.h"
#include "catalogs/function_view_controller.h"
#include "catalogs/manager_view_controller.h"
#include "catalogs/stock_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

// What a user reaches in the popover of one catalog, so that the common behaviour is tested on each of them.
struct Stocks {
    using Record = Stock;
    using Controller = StockViewController;
    static void add(Controller& c) { c.addStock(); }
    static void edit(Controller& c) { c.editStock(); }
    static void cancel(Controller& c) { c.cancelStockPopover(); }
    static void prepare(Controller& c) { c.prepareStocks(); }
    static TextField& name(Controller& c) { return c.stockName; }
    static Label& warning(Controller& c) { return c.stockWarning; }
    static Label& title(Controller& c) { return c.stockPopoverTitle; }
    static Popover& popover(Controller& c) { return c.stockPopover; }
    static void complete(Controller&) {}
};
struct Accounts {
    using Record = Account;
    using Controller = AccountViewController;
    static void add(Controller& c) { c.addAccount(); }
    static void edit(Controller& c) { c.editAccount(); }
    static void cancel(Controller& c) { c.cancelAccountPopover(); }
    static void prepare(Controller& c) { c.prepareAccounts(); }
    static TextField& name(Controller& c) { return c.accountName; }
    static Label& warning(Controller& c) { return c.accountWarning; }
    static Label& title(Controller& c) { return c.accountPopoverTitle; }
    static Popover& popover(Controller& c) { return c.accountPopover; }
    static void complete(Controller& c) { c.accountCurrencySelect.selectTag(2); }
};
struct AccountTypes {
    using Record = AccountType;
    using Controller = AccountTypeViewController;
    static void add(Controller& c) { c.addAccountType(); }
    static void edit(Controller& c) { c.editAccountType(); }
    static void cancel(Controller& c) { c.cancelAccountTypePopover(); }
    static void prepare(Controller& c) { c.prepareAccountTypes(); }
    static TextField& name(Controller& c) { return c.accountTypeName; }
    static Label& warning(Controller& c) { return c.accountTypeWarning; }
    static Label& title(Controller& c) { return c.accountTypePopoverTitle; }
    static Popover& popover(Controller& c) { return c.accountTypePopover; }
    static void complete(Controller&) {}
};
struct Managers {
    using Record = Manager;
    using Controller = ManagerViewController;
    static void add(Controller& c) { c.addManager(); }
    static void edit(Controller& c) { c.editEmployee(); }
    static void cancel(Controller& c) { c.cancelManagerPopover(); }
    static void prepare(Controller& c) { c.prepareManagers(); }
    static TextField& name(Controller& c) { return c.managerName; }
    static Label& warning(Controller& c) { return c.managerWarning; }
    static Label& title(Controller& c) { return c.managerPopoverTitle; }
    static Popover& popover(Controller& c) { return c.managerPopover; }
    static void complete(Controller&) {}
};
struct Functions {
    using Record = Function;
    using Controller = FunctionViewController;
    static void add(Controller& c) { c.addFunction(); }
    static void edit(Controller& c) { c.editFunction(); }
    static void cancel(Controller& c) { c.cancelFunctionPopover(); }
    static void prepare(Controller& c) { c.prepareFunctions(); }
    static TextField& name(Controller& c) { return c.functionName; }
    static Label& warning(Controller& c) { return c.functionWarning; }
    static Label& title(Controller& c) { return c.functionPopoverTitle; }
    static Popover& popover(Controller& c) { return c.functionPopover; }
    static void complete(Controller&) {}
};
struct DeleteBasises {
    using Record = DeleteBasis;
    using Controller = DeleteBasisViewController;
    static void add(Controller& c) { c.addBasis(); }
    static void edit(Controller& c) { c.editBasis(); }
    static void cancel(Controller& c) { c.cancelBasisPopover(); }
    static void prepare(Controller& c) { c.prepareBasises(); }
    static TextField& name(Controller& c) { return c.basisName; }
    static Label& warning(Controller& c) { return c.basisWarning; }
    static Label& title(Controller& c) { return c.basisPopoverTitle; }
    static Popover& popover(Controller& c) { return c.basisPopover; }
    static void complete(Controller&) {}
};

template <class Catalog>
class FlatCatalog : public FlatCatalogFixture {
protected:
    using Record = typename Catalog::Record;

    void addFromPopover(const QString& name)
    {
        Catalog::add(controller);
        this->type(Catalog::name(controller), name);
        Catalog::complete(controller);
        controller.okButton.userChanged();
    }
    QStringList names() { return this->column(controller.view, u"name"_s); }

    typename Catalog::Controller controller{this->program.appDelegate};
};

using Catalogs = ::testing::Types<Stocks, Accounts, AccountTypes, Managers, Functions, DeleteBasises>;
TYPED_TEST_SUITE(FlatCatalog, Catalogs);

TYPED_TEST(FlatCatalog, okStoresANewRecordClosesThePopoverAndShowsItInTheList)
{
    TypeParam::add(this->controller);
    EXPECT_TRUE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(this->controller.focusedObject->id, 0);
    TypeParam::cancel(this->controller);

    this->addFromPopover(u"Main"_s);

    ASSERT_EQ(this->template count<typename TypeParam::Record>(), 1U);
    EXPECT_EQ(this->template stored<typename TypeParam::Record>(1)->name, u"Main"_s);
    EXPECT_FALSE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(this->controller.focusedObject, nullptr);
    EXPECT_TRUE(TypeParam::title(this->controller).text().isEmpty());
    EXPECT_EQ(this->names(), QStringList{u"Main"_s});
}

TYPED_TEST(FlatCatalog, okRewritesTheRecordThatADoubleClickOpened)
{
    this->addFromPopover(u"Old"_s);
    this->controller.view.doubleAction(0);
    EXPECT_TRUE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(TypeParam::name(this->controller).text(), u"Old"_s);

    this->type(TypeParam::name(this->controller), u"New"_s);
    this->controller.okButton.userChanged();

    EXPECT_EQ(this->template count<typename TypeParam::Record>(), 1U);
    EXPECT_EQ(this->template stored<typename TypeParam::Record>(1)->name, u"New"_s);
    EXPECT_EQ(this->names(), QStringList{u"New"_s});
}

TYPED_TEST(FlatCatalog, editingWithoutASelectedRowOpensNothing)
{
    this->addFromPopover(u"Main"_s);
    this->controller.view.selectRow(-1);
    TypeParam::edit(this->controller);
    EXPECT_FALSE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(this->controller.focusedObject, nullptr);
}

TYPED_TEST(FlatCatalog, anEmptiedNameDisablesOkUntilANameIsTyped)
{
    TypeParam::add(this->controller);
    TypeParam::complete(this->controller);
    this->type(TypeParam::name(this->controller), QString());
    EXPECT_EQ(TypeParam::warning(this->controller).text(), u"Field 'Name' is required!"_s);
    EXPECT_FALSE(this->controller.okButton.userChanged());
    EXPECT_EQ(this->template count<typename TypeParam::Record>(), 0U);
    EXPECT_TRUE(TypeParam::popover(this->controller).isOpen());

    this->type(TypeParam::name(this->controller), u"Main"_s);
    EXPECT_TRUE(TypeParam::warning(this->controller).text().isEmpty());
    EXPECT_TRUE(this->controller.okButton.userChanged());
    EXPECT_EQ(this->template count<typename TypeParam::Record>(), 1U);
}

TYPED_TEST(FlatCatalog, okStaysAsTheLastPopoverLeftItUntilTheNameIsTouched)
{
    TypeParam::add(this->controller);
    EXPECT_TRUE(this->controller.okButton.enabled());
    this->type(TypeParam::name(this->controller), QString());
    TypeParam::cancel(this->controller);

    TypeParam::add(this->controller);
    EXPECT_TRUE(TypeParam::warning(this->controller).text().isEmpty());
    EXPECT_FALSE(this->controller.okButton.enabled());
}

TYPED_TEST(FlatCatalog, refusesARecordWithoutANameForTheSameReason)
{
    typename TypeParam::Record record;
    record.name = QString();
    EXPECT_EQ(this->controller.refusal(record), u"Field 'Name' is required!"_s);
}

TYPED_TEST(FlatCatalog, cancelKeepsNothing)
{
    TypeParam::add(this->controller);
    this->type(TypeParam::name(this->controller), u"Never"_s);
    TypeParam::complete(this->controller);
    TypeParam::cancel(this->controller);
    EXPECT_FALSE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(this->controller.focusedObject, nullptr);
    EXPECT_EQ(this->template count<typename TypeParam::Record>(), 0U);
}

TYPED_TEST(FlatCatalog, afterAFailedInsertThePopoverIsClosedAndTheTypedDataLost)
{
    using Connector = FaultInjectingConnector;
    for (const unsigned kind : {Connector::Begin, Connector::Insert, Connector::Commit}) {
        this->program.posted.clear();
        this->program.connector->failCall(1, kind);
        this->addFromPopover(u"Lost"_s);
        EXPECT_TRUE(this->program.connector->hasFailed());
        this->program.connector->failCall(0);

        EXPECT_FALSE(TypeParam::popover(this->controller).isOpen());
        EXPECT_EQ(this->controller.focusedObject, nullptr);
        EXPECT_EQ(this->template count<typename TypeParam::Record>(), 0U);
        EXPECT_EQ(this->controller.view.numberOfRows(), 0);
        if (kind != Connector::Commit) { // a lost commit is everybody's news; the catalog itself says nothing
            EXPECT_TRUE(this->program.dialogs.alerts.empty());
            EXPECT_TRUE(this->program.posted.names.empty());
        }
    }
}

TYPED_TEST(FlatCatalog, aRecordWhoseInsertFailedCanBeWrittenAgain)
{
    auto record = std::make_shared<typename TypeParam::Record>();
    record->name = u"Main"_s;
    this->program.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(this->controller.writeRecord(record));
    EXPECT_EQ(record->id, 0);
    this->program.connector->failCall(0);
    EXPECT_TRUE(this->controller.writeRecord(record));
    EXPECT_EQ(this->template count<typename TypeParam::Record>(), 1U);
}

TYPED_TEST(FlatCatalog, afterAFailedUpdateTheListShowsWhatIsStored)
{
    this->addFromPopover(u"Kept"_s);
    EXPECT_EQ(this->names(), QStringList{u"Kept"_s});
    this->controller.view.doubleAction(0);
    this->type(TypeParam::name(this->controller), u"Lost"_s);
    this->program.connector->failCall(1, FaultInjectingConnector::Update);
    this->controller.okButton.userChanged();
    EXPECT_TRUE(this->program.connector->hasFailed());

    EXPECT_FALSE(TypeParam::popover(this->controller).isOpen());
    EXPECT_EQ(this->names(), QStringList{u"Kept"_s});
    EXPECT_EQ(this->template stored<typename TypeParam::Record>(1)->name, u"Kept"_s);
}

TYPED_TEST(FlatCatalog, theListStandsInCodePointOrderOfNamesUntilTheUserSortsIt)
{
    for (const QString& name : {u"b"_s, u"Z"_s, u"a"_s, u"Я"_s})
        this->addFromPopover(name);
    const QStringList ascending{u"Z"_s, u"a"_s, u"b"_s, u"Я"_s};
    EXPECT_EQ(this->names(), ascending);
    this->controller.view.sort(u"name"_s, false);
    EXPECT_EQ(this->names(), (QStringList{u"Я"_s, u"b"_s, u"a"_s, u"Z"_s}));
    this->controller.view.sort(u"nothing"_s, true);
    EXPECT_EQ(this->names(), (QStringList{u"Я"_s, u"b"_s, u"a"_s, u"Z"_s}));
    TypeParam::prepare(this->controller);
    EXPECT_EQ(this->names(), ascending);
}

TYPED_TEST(FlatCatalog, theSelectionStaysOnItsRecordWhenTheListIsReadAgain)
{
    this->addFromPopover(u"m"_s);
    EXPECT_EQ(this->controller.view.numberOfRows(), 1);
    this->controller.view.selectRow(0);
    this->addFromPopover(u"a"_s);
    EXPECT_EQ(this->names(), (QStringList{u"a"_s, u"m"_s}));
    EXPECT_EQ(this->controller.view.selectedRow(), 1);
}

TYPED_TEST(FlatCatalog, theSelectionStaysOnItsRecordWhenTheListIsSorted)
{
    for (const QString& name : {u"c"_s, u"a"_s, u"b"_s})
        this->addFromPopover(name);
    ASSERT_EQ(this->names(), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    this->controller.view.selectRow(0);
    this->controller.view.sort(u"name"_s, false);
    EXPECT_EQ(this->controller.view.selectedRow(), 2);
    TypeParam::edit(this->controller);
    EXPECT_EQ(TypeParam::name(this->controller).text(), u"a"_s);
    this->controller.view.selectRow(-1);
    this->controller.view.sort(u"name"_s, true);
    EXPECT_EQ(this->controller.view.selectedRow(), -1);
}

TYPED_TEST(FlatCatalog, aRowOutsideTheListGivesTheEmptyText)
{
    EXPECT_EQ(this->controller.view.value(0, u"name"_s), QVariant(QString()));
    EXPECT_EQ(this->controller.view.value(-1, u"name"_s), QVariant(QString()));
    this->addFromPopover(u"Main"_s);
    EXPECT_EQ(this->controller.view.value(1, u"name"_s), QVariant(QString()));
    EXPECT_EQ(this->controller.view.value(0, u"unknown"_s), QVariant(QString()));
    EXPECT_FALSE(this->controller.view.setValue(0, u"name"_s, u"typed"_s));
    EXPECT_FALSE(this->controller.view.setValue(7, u"hidden"_s, true));
}

TYPED_TEST(FlatCatalog, readsNoListBeforeItIsAskedFor)
{
    const qint64 before = this->connector().statementCount();
    typename TypeParam::Controller unasked(this->program.appDelegate);
    EXPECT_EQ(this->connector().statementCount(), before);

    auto record = std::make_shared<typename TypeParam::Record>();
    record->name = u"Main"_s;
    ASSERT_TRUE(unasked.writeRecord(record));
    EXPECT_TRUE(unasked.isStale());
    EXPECT_EQ(this->connector().statementCount(), before + 3) << "BEGIN, INSERT, COMMIT";
    EXPECT_EQ(unasked.view.numberOfRows(), 1);
    EXPECT_FALSE(unasked.isStale());
}

TYPED_TEST(FlatCatalog, aVisibleListIsReadAtOnceAndToldToItsViewer)
{
    int told = 0;
    this->controller.view.onReload([&] { ++told; });
    this->controller.view.setVisible(true);
    auto record = std::make_shared<typename TypeParam::Record>();
    record->name = u"Main"_s;
    ASSERT_TRUE(this->controller.writeRecord(record));
    EXPECT_FALSE(this->controller.isStale());
    EXPECT_EQ(told, 1);
    EXPECT_EQ(this->controller.view.loadedRecords().size(), 1U);
}

TYPED_TEST(FlatCatalog, aVisibleListDropsARecordWhoseCommitFailed)
{
    this->controller.view.setVisible(true);
    auto record = std::make_shared<typename TypeParam::Record>();
    record->name = u"Lost"_s;
    this->program.connector->failCall(1, FaultInjectingConnector::Commit);
    EXPECT_FALSE(this->controller.writeRecord(record));
    EXPECT_TRUE(this->controller.view.loadedRecords().empty());
}

} // namespace
} // namespace zelvor
