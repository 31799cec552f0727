#include "catalogs/stock_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"
#include "catalogs/manager_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class WarehouseCatalog : public FlatCatalogFixture {
protected:
    WarehouseCatalog() { controller.managerController = &employees; }

    qint64 addStored(const QString& name, bool isDefault = false, bool isHidden = false)
    {
        Stock stock;
        stock.name = name;
        stock.isDefault = isDefault;
        stock.isHidden = isHidden;
        return store(stock);
    }
    // "default/hidden" of every warehouse by id, as it is stored.
    QStringList storedBoxes()
    {
        QStringList boxes;
        for (const auto& stock : connector().freeSQL<Stock>("ORDER BY id"))
            boxes.append(QString::number(stock->isDefault) + u'/' + QString::number(stock->isHidden));
        return boxes;
    }
    QStringList shownBoxes() const
    {
        QStringList boxes;
        for (int row = 0; row < controller.view.numberOfRows(); ++row)
            boxes.append(QString::number(controller.view.value(row, u"default"_s).toBool()) + u'/' +
                         QString::number(controller.view.value(row, u"hidden"_s).toBool()));
        return boxes;
    }

    ManagerViewController employees{program.appDelegate};
    StockViewController controller{program.appDelegate};
};

TEST_F(WarehouseCatalog, listHasItsTitleColourAndColumns)
{
    EXPECT_EQ(controller.view.name(), u"Warehouses List"_s);
    EXPECT_EQ(controller.view.titleColor(), (Color{0.196, 0.396, 0.282, 1.0}));
    EXPECT_EQ(identifiers(controller.view),
              (QStringList{u"name"_s, u"address"_s, u"manager"_s, u"default"_s, u"hidden"_s}));
}

TEST_F(WarehouseCatalog, popoverTitlesTellAddingFromEditing)
{
    controller.addStock();
    EXPECT_EQ(controller.stockPopoverTitle.text(), u"Add New Warehouse"_s);
    controller.cancelStockPopover();
    addStored(u"Main"_s);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.stockPopoverTitle.text(), u"Edit Warehouse"_s);
}

TEST_F(WarehouseCatalog, popoverWritesNameAddressAndManager)
{
    const qint64 ann = storeNamed<Manager>(u"Ann"_s);
    controller.addStock();
    type(controller.stockName, u"Main"_s);
    type(controller.stockAddress, u"Dock 4"_s);
    ASSERT_TRUE(controller.stockManagerSelect.selectTag(ann));
    controller.okButton.userChanged();

    const auto stock = stored<Stock>(1);
    ASSERT_TRUE(stock);
    EXPECT_EQ(stock->address, u"Dock 4"_s);
    EXPECT_EQ(stock->managerID, ann);
    EXPECT_EQ(controller.view.value(0, u"manager"_s).toString(), u"Ann"_s);
    EXPECT_EQ(controller.stockManagerSelect.selectedTag(), 0) << "cleared";

    controller.view.doubleAction(0);
    EXPECT_EQ(controller.stockName.text(), u"Main"_s);
    EXPECT_EQ(controller.stockAddress.text(), u"Dock 4"_s);
    EXPECT_EQ(controller.stockManagerSelect.selectedTag(), ann);
}

TEST_F(WarehouseCatalog, okTellsOthersBeforeTheCommit)
{
    bool inTransaction = false;
    const auto observation = program.appDelegate.notifications.observe(
        NotificationName::StockChangedNotification,
        [&](const Notification& n) { inTransaction = connector().inTransaction() && n.object == nullptr; });
    controller.addStock();
    type(controller.stockName, u"Main"_s);
    controller.okButton.userChanged();
    EXPECT_TRUE(inTransaction);
    EXPECT_EQ(program.posted.names, std::vector{NotificationName::StockChangedNotification});
}

TEST_F(WarehouseCatalog, aCheckBoxTellsNobody)
{
    addStored(u"Main"_s);
    EXPECT_TRUE(controller.view.setValue(0, u"hidden"_s, true));
    EXPECT_TRUE(controller.view.setValue(0, u"default"_s, true));
    EXPECT_TRUE(controller.updateStock(controller.view.record(0)));
    EXPECT_TRUE(program.posted.names.empty());
}

TEST_F(WarehouseCatalog, tickingDefaultOnAHiddenWarehouseShowsItAgainAndMakesItTheOnlyDefault)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s, false, true);
    addStored(u"C"_s, true);
    EXPECT_TRUE(controller.view.setValue(1, u"default"_s, true));
    const QStringList expected{u"0/0"_s, u"1/0"_s, u"0/0"_s};
    EXPECT_EQ(storedBoxes(), expected);
    EXPECT_EQ(shownBoxes(), expected);
}

TEST_F(WarehouseCatalog, tickingHiddenOnTheDefaultClearsItAndNoOtherTakesOver)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s);
    EXPECT_TRUE(controller.view.setValue(0, u"hidden"_s, true));
    const QStringList expected{u"0/1"_s, u"0/0"_s};
    EXPECT_EQ(storedBoxes(), expected);
    EXPECT_EQ(shownBoxes(), expected);
}

TEST_F(WarehouseCatalog, clearingTheOneDefaultLeavesNone)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s);
    EXPECT_TRUE(controller.view.setValue(0, u"default"_s, false));
    EXPECT_EQ(storedBoxes(), (QStringList{u"0/0"_s, u"0/0"_s}));
}

TEST_F(WarehouseCatalog, anotherBoxDoesNotTouchTheDefaultOfOthers)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s);
    EXPECT_TRUE(controller.view.setValue(1, u"hidden"_s, true));
    EXPECT_EQ(storedBoxes(), (QStringList{u"1/0"_s, u"0/1"_s}));
}

TEST_F(WarehouseCatalog, showingAHiddenDefaultAgainLeavesAnotherDefaultAlone)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s, true, true); // by another program: here no record is both
    EXPECT_TRUE(controller.view.setValue(1, u"hidden"_s, false));
    EXPECT_EQ(storedBoxes(), (QStringList{u"1/0"_s, u"1/0"_s}));
}

TEST_F(WarehouseCatalog, aFailedStoreLeavesBothTicksAsTheyWereWhicheverCallFails)
{
    addStored(u"A"_s, true);
    addStored(u"B"_s, false, true);
    addStored(u"C"_s, true);
    const QStringList before = storedBoxes();
    controller.prepareStocks();
    for (const auto& [row, box] : {std::pair{1, u"default"_s}, std::pair{0, u"hidden"_s}}) {
        int failures = 0;
        for (int call = 1;; ++call) {
            program.connector->failCall(call);
            const bool stored = controller.view.setValue(row, box, true);
            const bool failed = program.connector->hasFailed();
            program.connector->failCall(0);
            if (!failed) {
                EXPECT_TRUE(stored);
                controller.view.setValue(row, box, false);
                break;
            }
            ++failures;
            EXPECT_FALSE(stored) << "call " << call;
            EXPECT_EQ(storedBoxes(), before) << "call " << call;
            EXPECT_EQ(shownBoxes(), before) << "call " << call;
        }
        EXPECT_GE(failures, 3) << "begin, at least one write, commit";
        // Back to the start for the next box.
        for (const auto& stock : connector().freeSQL<Stock>()) {
            stock->isDefault = stock->name != u"B"_s;
            stock->isHidden = stock->name == u"B"_s;
            connector().update(*stock);
        }
        controller.prepareStocks();
    }
}

TEST_F(WarehouseCatalog, aNewDefaultRecordIsStoredTogetherWithTheOthersLoss)
{
    addStored(u"A"_s, true);
    EXPECT_EQ(controller.view.numberOfRows(), 1);
    auto stock = std::make_shared<Stock>();
    stock->name = u"B"_s;
    stock->isDefault = true;
    stock->isHidden = true;
    EXPECT_TRUE(controller.writeDefaultAndHidden(stock, DefaultHiddenBox::Default));
    EXPECT_EQ(storedBoxes(), (QStringList{u"0/0"_s, u"1/0"_s}));
    EXPECT_EQ(shownBoxes(), (QStringList{u"0/0"_s, u"1/0"_s}));
}

TEST_F(WarehouseCatalog, aNewDefaultRecordThatCouldNotBeStoredKeepsIdZeroAndItsBoxes)
{
    addStored(u"A"_s, true);
    auto stock = std::make_shared<Stock>();
    stock->isDefault = true;
    stock->isHidden = true;
    program.connector->failCall(1, FaultInjectingConnector::Update);
    EXPECT_FALSE(controller.writeDefaultAndHidden(stock, DefaultHiddenBox::Default));
    EXPECT_EQ(stock->id, 0);
    EXPECT_TRUE(stock->isDefault);
    EXPECT_TRUE(stock->isHidden);
    EXPECT_EQ(storedBoxes(), QStringList{u"1/0"_s});
}

TEST_F(WarehouseCatalog, sortsByNameAndAddress)
{
    for (const auto& [name, address] :
         {std::pair{u"A"_s, u"2"_s}, std::pair{u"B"_s, u"3"_s}, std::pair{u"C"_s, u"1"_s}}) {
        Stock stock;
        stock.name = name;
        stock.address = address;
        store(stock);
    }
    controller.view.sort(u"address"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
    controller.view.sort(u"address"_s, false);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    controller.view.sort(u"manager"_s, true);
    EXPECT_EQ(column(controller.view, u"name"_s), (QStringList{u"B"_s, u"A"_s, u"C"_s})) << "no sort key";
}

TEST_F(WarehouseCatalog, anEmployeeAddedFromThePopoverIsChosen)
{
    storeNamed<Manager>(u"Ann"_s);
    controller.addStock();
    controller.addManager();
    EXPECT_TRUE(controller.addNewManager);
    EXPECT_TRUE(employees.managerPopover.isOpen());
    type(employees.managerName, u"Bob"_s);
    employees.okButton.userChanged();

    EXPECT_FALSE(controller.addNewManager);
    EXPECT_EQ(controller.stockManagerSelect.selectedTitle(), u"Bob"_s);
    EXPECT_EQ(controller.stockManagerSelect.items().size(), 3U);
    EXPECT_EQ(controller.stockManagerSelect.items().front().tag, 0);
}

TEST_F(WarehouseCatalog, aCancelledEmployeeLeavesTheChooserAlone)
{
    const qint64 ann = storeNamed<Manager>(u"Ann"_s);
    controller.addStock();
    controller.stockManagerSelect.selectTag(ann);
    controller.addManager();
    employees.cancelManagerPopover();
    EXPECT_FALSE(controller.addNewManager);
    employees.addManager();
    type(employees.managerName, u"Bob"_s);
    employees.okButton.userChanged();
    EXPECT_EQ(controller.stockManagerSelect.selectedTag(), ann) << "Bob was not added from here";
    EXPECT_EQ(controller.stockManagerSelect.items().size(), 3U);
}

TEST_F(WarehouseCatalog, aRenamedEmployeeIsRenamedInTheListWithoutReadingTheWarehousesAgain)
{
    const qint64 ann = storeNamed<Manager>(u"Ann"_s);
    Stock stock;
    stock.name = u"Main"_s;
    stock.managerID = ann;
    store(stock);
    EXPECT_EQ(controller.view.value(0, u"manager"_s).toString(), u"Ann"_s);
    const auto row = controller.view.record(0);

    employees.view.doubleAction(0);
    type(employees.managerName, u"Anna"_s);
    employees.okButton.userChanged();
    EXPECT_EQ(controller.view.value(0, u"manager"_s).toString(), u"Anna"_s);
    EXPECT_EQ(controller.view.record(0), row);
    EXPECT_EQ(controller.getNameOfManagerWithID(ann), u"Anna"_s);
    EXPECT_TRUE(controller.getNameOfManagerWithID(99).isEmpty());
}

} // namespace
} // namespace zelvor
