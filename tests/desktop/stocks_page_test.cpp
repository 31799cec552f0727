#include "catalogs/manager.h"
#include "catalogs/stock.h"
#include "desktop/catalog_page_fixture.h"

#include <QtWidgets/QComboBox>

namespace zelvor {
namespace {

class StocksPage : public CatalogPageTest {
protected:
    qint64 storeStock(const QString& name, const QString& address = {})
    {
        Stock record;
        record.name = name;
        record.address = address;
        return store(std::move(record));
    }
    // Back Main Shop
    void openSampleList()
    {
        storeStock(u"Main"_s, u"C street"_s);
        storeStock(u"Shop"_s, u"Abbey quay"_s);
        storeStock(u"Back"_s, u"B street"_s);
        openPage(DocType::StockCatalog);
    }
    std::shared_ptr<Stock> stock(const QString& name)
    {
        for (const auto& record : connector().freeSQL<Stock>()) {
            if (record->name == name)
                return record;
        }
        return nullptr;
    }
};

TEST_F(StocksPage, aWarehouseIsAddedByKeysAlone)
{
    openPage(DocType::StockCatalog);
    EXPECT_NE(program.find<QLabel>(u"emptyText"_s), nullptr);
    press(Qt::Key_Insert);
    ASSERT_TRUE(isOpen(u"stockPopover"_s));
    EXPECT_EQ(program.find<QLabel>(u"stockPopoverTitle"_s)->text(), u"Add New Warehouse"_s);
    EXPECT_EQ(focusName(), u"stockName"_s);
    write(u"Main"_s);
    press(Qt::Key_Tab);
    write(u"Street 1"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(isOpen(u"stockPopover"_s));
    ASSERT_NE(stock(u"Main"_s), nullptr);
    EXPECT_EQ(stock(u"Main"_s)->address, u"Street 1"_s);
    EXPECT_EQ(currentName(), u"Main"_s);
    EXPECT_TRUE(listHasFocus());
    press(Qt::Key_Insert);
    write(u"Back"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Back Main"_s);
    EXPECT_EQ(currentName(), u"Back"_s);
}

TEST_F(StocksPage, theAddButtonOpensTheForm)
{
    openSampleList();
    program.click(u"addStockButton"_s);
    ASSERT_TRUE(isOpen(u"stockPopover"_s));
    press(Qt::Key_Escape);
    EXPECT_FALSE(isOpen(u"stockPopover"_s));
    EXPECT_EQ(countOf<Stock>(), 3);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(StocksPage, aWarehouseIsEditedAndStaysSelected)
{
    openSampleList();
    program.doubleClickCell(list(), cell(u"Main"_s));
    ASSERT_TRUE(isOpen(u"stockPopover"_s));
    EXPECT_EQ(program.find<QLabel>(u"stockPopoverTitle"_s)->text(), u"Edit Warehouse"_s);
    write(u"A first"_s);
    clickIn(u"stockPopover"_s, u"okButton"_s);
    EXPECT_EQ(names(), u"A first Back Shop"_s);
    EXPECT_EQ(stored<Stock>(1)->name, u"A first"_s);
    EXPECT_EQ(currentName(), u"A first"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(StocksPage, aNameIsRequired)
{
    openSampleList();
    program.doubleClickCell(list(), cell(u"Main"_s));
    press(Qt::Key_Backspace);
    EXPECT_EQ(program.find<QLabel>(u"stockWarning"_s)->text(), u"Field 'Name' is required!"_s);
    EXPECT_FALSE(in(u"stockPopover"_s, u"okButton"_s)->isEnabled());
    press(Qt::Key_Return);
    EXPECT_TRUE(isOpen(u"stockPopover"_s));
    write(u"M"_s);
    press(Qt::Key_Return);
    EXPECT_NE(stock(u"M"_s), nullptr);
}

TEST_F(StocksPage, oneWarehouseIsTheDefault)
{
    openSampleList();
    tick(u"Main"_s, u"Default"_s);
    EXPECT_TRUE(stock(u"Main"_s)->isDefault);
    tick(u"Back"_s, u"Default"_s);
    EXPECT_TRUE(stock(u"Back"_s)->isDefault);
    EXPECT_FALSE(stock(u"Main"_s)->isDefault);
    EXPECT_EQ(state(u"Main"_s, u"Default"_s), Qt::Unchecked);
    EXPECT_EQ(state(u"Back"_s, u"Default"_s), Qt::Checked);
    tick(u"Back"_s, u"Hidden"_s);
    EXPECT_FALSE(stock(u"Back"_s)->isDefault);
    EXPECT_TRUE(stock(u"Back"_s)->isHidden);
    tick(u"Back"_s, u"Default"_s);
    EXPECT_FALSE(stock(u"Back"_s)->isHidden);
    EXPECT_EQ(state(u"Back"_s, u"Hidden"_s), Qt::Unchecked);
}

TEST_F(StocksPage, aTickThatCannotBeStoredGoesBack)
{
    openSampleList();
    program.program.connector->failCall(1, FaultInjectingConnector::Update);
    tick(u"Main"_s, u"Default"_s);
    EXPECT_TRUE(program.program.connector->hasFailed());
    EXPECT_EQ(state(u"Main"_s, u"Default"_s), Qt::Unchecked);
    EXPECT_FALSE(stock(u"Main"_s)->isDefault);
}

TEST_F(StocksPage, aWarehouseThatCannotBeStoredClosesTheForm)
{
    openSampleList();
    press(Qt::Key_Insert);
    write(u"Lost"_s);
    program.program.connector->failCall(1, FaultInjectingConnector::Insert);
    press(Qt::Key_Return);
    EXPECT_TRUE(program.program.connector->hasFailed());
    EXPECT_FALSE(isOpen(u"stockPopover"_s));
    EXPECT_EQ(names(), u"Back Main Shop"_s);
    EXPECT_TRUE(listHasFocus());
}

TEST_F(StocksPage, anEmployeeAddedFromTheFormIsChosen)
{
    openSampleList();
    program.doubleClickCell(list(), cell(u"Main"_s));
    program.click(u"addManagerFromStock"_s);
    ASSERT_TRUE(isOpen(u"managerPopover"_s));
    // It points at the chooser that it was opened from.
    QWidget* const panel = program.find(u"managerPopover"_s);
    QWidget* const chooser = program.find(u"stockManagerSelect"_s);
    const int foot = chooser->mapToGlobal(QPoint(0, chooser->height())).y();
    EXPECT_NEAR(panel->mapToGlobal(QPoint()).y(), foot, 4);
    write(u"Ann"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(program.find<QComboBox>(u"stockManagerSelect"_s)->currentText(), u"Ann"_s);
    EXPECT_EQ(focusName(), u"stockManagerSelect"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(stored<Stock>(1)->managerID, 1);
    EXPECT_EQ(text(u"Main"_s, u"Manager"_s), u"Ann"_s);
}

TEST_F(StocksPage, aClickOnTheHeadSorts)
{
    openSampleList();
    clickHeader(u"Address"_s);
    EXPECT_EQ(names(), u"Shop Back Main"_s);
    clickHeader(u"Address"_s);
    EXPECT_EQ(names(), u"Main Back Shop"_s);
    clickHeader(u"Manager"_s); // does not sort
    EXPECT_EQ(names(), u"Main Back Shop"_s);
    // A list that is read anew stands by name again, and its head says so.
    press(Qt::Key_Insert);
    write(u"Yard"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Back Main Shop Yard"_s);
    EXPECT_EQ(table()->horizontalHeader()->sortIndicatorSection(), columnTitled(list(), u"Name"_s));
    EXPECT_EQ(table()->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    clickHeader(u"Name"_s);
    EXPECT_EQ(names(), u"Yard Shop Main Back"_s);
}

TEST_F(StocksPage, theHighlightStaysOnItsRowWhenAClickOnTheHeadSorts)
{
    openSampleList();
    program.clickCell(list(), cell(u"Back"_s));
    ASSERT_EQ(currentName(), u"Back"_s);
    clickHeader(u"Name"_s);
    ASSERT_EQ(names(), u"Shop Main Back"_s);
    EXPECT_EQ(currentName(), u"Back"_s);
    EXPECT_TRUE(list()->selectionModel()->isSelected(cell(u"Back"_s)));
    press(Qt::Key_F2);
    ASSERT_TRUE(isOpen(u"stockPopover"_s));
    EXPECT_EQ(program.find<QLineEdit>(u"stockName"_s)->text(), u"Back"_s);
}

TEST_F(StocksPage, theSearchLooksIntoEveryColumn)
{
    openSampleList();
    program.find(u"searchLine"_s)->setFocus();
    write(u"quay"_s);
    EXPECT_EQ(names(), u"Shop"_s);
    press(Qt::Key_Down);
    press(Qt::Key_Insert);
    write(u"New"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(names(), u"Back Main New Shop"_s);
    EXPECT_EQ(currentName(), u"New"_s);
}

} // namespace
} // namespace zelvor
