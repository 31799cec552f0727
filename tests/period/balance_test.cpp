#include "catalogs/account.h"
#include "catalogs/contragent.h"
#include "catalogs/currency.h"
#include "catalogs/manager.h"
#include "catalogs/product.h"
#include "catalogs/property.h"
#include "catalogs/stock.h"
#include "catalogs/stock_row.h"
#include "core/currency_struct.h"
#include "period/balance_view_controller.h"
#include "store/params.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <random>

namespace zelvor {

namespace {

using namespace Qt::Literals::StringLiterals;

class BalanceTest : public testing::Test {
protected:
    BalanceTest()
    {
        EXPECT_TRUE((program.createProject<Params, Currency, Manager, Stock, Account, Product, Contragent,
                                           StockRow, Property>()));
        connector.execute("BEGIN"); // spares the test a disk write for every record
        Params params;
        params.defaultCurrency = rawValue(CurrencyStruct::USD);
        store(params);
        for (const CurrencyStruct currency : allCurrencies) {
            Currency record;
            record.code = rawValue(currency);
            store(record);
        }
    }

    template <class Record>
    qint64 store(Record& record)
    {
        EXPECT_EQ(connector.insert(record), 1);
        return record.id;
    }
    template <class Record>
    qint64 addWithBalance(const QString& name, double balance, bool isHidden = false)
    {
        Record record;
        record.name = name;
        record.setBalance(balance);
        record.isHidden = isHidden;
        return store(record);
    }
    void addAccount(const QString& name, double balance, qint64 currencyID)
    {
        Account account;
        account.name = name;
        account.setBalance(balance);
        account.currencyID = currencyID;
        store(account);
    }
    void setRate(CurrencyStruct currency, double rate)
    {
        const auto record = connector.select<Currency>(rawValue(currency));
        record->setRate(rate);
        ASSERT_EQ(connector.update(*record), 1);
    }
    qint64 addStock(const QString& name, bool isHidden = false)
    {
        Stock stock;
        stock.name = name;
        stock.isHidden = isHidden;
        return store(stock);
    }
    qint64 addProduct(double baseCost)
    {
        Product product;
        product.setBaseCost(baseCost);
        return store(product);
    }
    void addStockRow(qint64 stockID, qint64 productID, double amount, double reserved = 0)
    {
        StockRow row;
        row.stockID = stockID;
        row.productID = productID;
        row.setAmount(amount);
        row.setAmountReserved(reserved);
        store(row);
    }
    // "name|debet|credit" of every shown line.
    QStringList shown()
    {
        QStringList lines;
        for (int row = 0; row < controller.view.numberOfRows(); ++row)
            lines.append(controller.view.value(row, u"name"_s).toString() + u'|' +
                         controller.view.value(row, u"debet"_s).toString() + u'|' +
                         controller.view.value(row, u"credit"_s).toString());
        return lines;
    }

    TestProgram program;
    Connector& connector = program.appDelegate.connector;
    BalanceViewController controller{program.appDelegate};
};

} // namespace

TEST_F(BalanceTest, anEmptyProjectShowsTwoClosingLinesWithoutAmounts)
{
    controller.prepareData();
    EXPECT_EQ(shown(), (QStringList{u"TOTAL:||"_s, u"BALANCE:||"_s}));
    EXPECT_DOUBLE_EQ(controller.balance(), 0);
}

TEST_F(BalanceTest, anOverdrawnAccountLowersTheDebit)
{
    addAccount(u"Till"_s, -100, rawValue(CurrencyStruct::USD));
    EXPECT_EQ(shown(),
              (QStringList{u"Cash|-100|"_s, u"  Till|-100|"_s, u"TOTAL:|-100|"_s, u"BALANCE:||100"_s}));
    EXPECT_DOUBLE_EQ(controller.balance(), -100);
}

TEST_F(BalanceTest, anAccountInAnotherCurrencyShowsItsOwnAmountAndCountsConverted)
{
    setRate(CurrencyStruct::EUR, 0.8);
    addAccount(u"Bank"_s, 100, rawValue(CurrencyStruct::EUR));
    addAccount(u"Till"_s, 0.1, rawValue(CurrencyStruct::USD));
    EXPECT_EQ(shown(), (QStringList{u"Cash|125.1|"_s, u"  Bank (€ 100.0)|125|"_s, u"  Till|0.1|"_s,
                                    u"TOTAL:|125.1|"_s, u"BALANCE:|125.1|"_s}));
}

TEST_F(BalanceTest, everyAdditionIsRoundedWhereItLands)
{
    setRate(CurrencyStruct::EUR, 3);
    for (const char16_t* name : {u"A", u"B", u"C"})
        addAccount(QString::fromUtf16(name), 100, rawValue(CurrencyStruct::EUR));
    // 33.333... each: 33.33, 66.66, 99.99
    EXPECT_EQ(shown().front(), u"Cash|99.99|"_s);
}

TEST_F(BalanceTest, anAccountWithoutAKnownCurrencyCountsAsItStands)
{
    addAccount(u"Box"_s, 12, 0);
    EXPECT_EQ(shown().at(1), u"  Box ( 12.0)|12|"_s);
}

TEST_F(BalanceTest, withoutSettingsEveryAccountShowsItsOwnAmount)
{
    addAccount(u"Till"_s, 5, rawValue(CurrencyStruct::USD));
    const auto params = program.appDelegate.params();
    ASSERT_EQ(connector.remove(*params), 1);
    EXPECT_EQ(shown().at(1), u"  Till ($ 5.0)|5|"_s);
}

TEST_F(BalanceTest, goodsCountWithTheirReserveAtBaseCost)
{
    const qint64 product = addProduct(2);
    const qint64 main = addStock(u"Main"_s);
    addStock(u"Empty"_s);
    addStockRow(main, product, 10, 5);
    addStockRow(main, 999, 10); // of a product that is not there
    EXPECT_EQ(shown(), (QStringList{u"Products On Warehouses|30|"_s, u"  Main|30|"_s, u"TOTAL:|30|"_s,
                                    u"BALANCE:|30|"_s}));
}

TEST_F(BalanceTest, hiddenWarehousesDoNotCount)
{
    const qint64 product = addProduct(2);
    addStockRow(addStock(u"Old"_s, true), product, 10);
    EXPECT_EQ(shown(), (QStringList{u"TOTAL:||"_s, u"BALANCE:||"_s}));
}

TEST_F(BalanceTest, aWarehouseAloneGivesAHeadingWithoutAmount)
{
    addStock(u"Empty"_s);
    EXPECT_EQ(shown().front(), u"Products On Warehouses||"_s);
    EXPECT_EQ(shown().size(), 3);
}

TEST_F(BalanceTest, theHalfCentsOfGoodsRoundToEvenRowByRow)
{
    const qint64 main = addStock(u"Main"_s);
    const qint64 product = addProduct(0.05);
    addStockRow(main, product, 0.1);
    EXPECT_EQ(shown().front(), u"Products On Warehouses||"_s); // 0.005 is 0.00
    addStockRow(main, addProduct(0.15), 0.1);
    controller.prepareData();
    EXPECT_EQ(shown().front(), u"Products On Warehouses|0.02|"_s); // 0.015 is 0.02
}

TEST_F(BalanceTest, heldAssetsCountAtCurrentCost)
{
    const auto add = [this](const QString& name, double cost, qint64 soldDate) {
        Property property;
        property.name = name;
        property.setCurrentCost(cost);
        property.soldDate = soldDate;
        store(property);
    };
    add(u"Van"_s, 700, 0);
    add(u"Lathe"_s, 300, 0);
    add(u"Sold"_s, 900, 1);
    add(u"Written off"_s, 0, 0);
    EXPECT_EQ(shown(), (QStringList{u"Fixed Assets|1000|"_s, u"  Lathe|300|"_s, u"  Van|700|"_s,
                                    u"TOTAL:|1000|"_s, u"BALANCE:|1000|"_s}));
}

TEST_F(BalanceTest, whatWeOweStandsInTheCreditAndWhatWeAreOwedInTheDebit)
{
    addWithBalance<Contragent>(u"Settled"_s, 0);
    addWithBalance<Contragent>(u"Supplier"_s, 50);
    addWithBalance<Contragent>(u"Customer"_s, -80);
    addWithBalance<Contragent>(u"Gone"_s, -7, true);
    addWithBalance<Manager>(u"Ann"_s, 20);
    addWithBalance<Manager>(u"Bob"_s, -5);
    EXPECT_EQ(shown(), (QStringList{u"Customers / Suppliers|80|50"_s, u"  Customer|80|"_s,
                                    u"  Supplier||50"_s, u"Employees|5|20"_s, u"  Ann||20"_s, u"  Bob|5|"_s,
                                    u"TOTAL:|85|70"_s, u"BALANCE:|15|"_s}));
    EXPECT_DOUBLE_EQ(controller.balance(), 15);
}

TEST_F(BalanceTest, aBalanceOfZeroHasTwoEmptyCells)
{
    addWithBalance<Contragent>(u"Supplier"_s, 50);
    addWithBalance<Contragent>(u"Customer"_s, -50);
    EXPECT_EQ(shown().back(), u"BALANCE:||"_s);
    EXPECT_EQ(shown().at(3), u"TOTAL:|50|50"_s);
}

TEST_F(BalanceTest, theGroupsStandInTheirOrder)
{
    addAccount(u"Till"_s, 1, rawValue(CurrencyStruct::USD));
    addStock(u"Main"_s);
    Property property;
    property.setCurrentCost(1);
    store(property);
    addWithBalance<Contragent>(u"C"_s, 1);
    addWithBalance<Manager>(u"M"_s, 1);
    controller.groupCheckBox.setOn(true);
    QStringList names;
    for (const QString& line : shown())
        names.append(line.section(u'|', 0, 0));
    EXPECT_EQ(names, (QStringList{u"Cash"_s, u"Products On Warehouses"_s, u"Fixed Assets"_s,
                                  u"Customers / Suppliers"_s, u"Employees"_s, u"TOTAL:"_s, u"BALANCE:"_s}));
}

TEST_F(BalanceTest, theCheckBoxLeavesOnlyGroupsAndComputesNothing)
{
    addWithBalance<Manager>(u"Ann"_s, 20);
    controller.prepareData();
    const qint64 statements = connector.statementCount();
    controller.groupCheckBox.setOn(true);
    EXPECT_TRUE(controller.groupCheckBox.userChanged());
    EXPECT_EQ(shown(), (QStringList{u"Employees||20"_s, u"TOTAL:||20"_s, u"BALANCE:||20"_s}));
    controller.groupCheckBox.setOn(false);
    EXPECT_TRUE(controller.groupCheckBox.userChanged());
    EXPECT_EQ(shown().size(), 4);
    EXPECT_EQ(connector.statementCount(), statements);
    EXPECT_EQ(program.posted.count(NotificationName::BalanceCalculatedNotification), 1U);
}

TEST_F(BalanceTest, namesSortByCodePoint)
{
    addWithBalance<Manager>(u"b"_s, 1);
    addWithBalance<Manager>(u"B"_s, 1);
    addWithBalance<Manager>(u"a"_s, 1);
    EXPECT_EQ(shown().mid(1, 3), (QStringList{u"  B||1"_s, u"  a||1"_s, u"  b||1"_s}));
}

TEST_F(BalanceTest, aChangeThatNobodyLooksAtIsComputedWhenAsked)
{
    controller.prepareData();
    program.posted.clear();
    addWithBalance<Manager>(u"Ann"_s, 20);
    const qint64 statements = connector.statementCount();
    program.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(connector.statementCount(), statements);
    EXPECT_EQ(program.posted.count(NotificationName::BalanceCalculatedNotification), 0U);
    EXPECT_DOUBLE_EQ(controller.balance(), -20);
    EXPECT_EQ(program.posted.count(NotificationName::BalanceCalculatedNotification), 1U);
    EXPECT_EQ(shown().size(), 4);
    EXPECT_EQ(program.posted.count(NotificationName::BalanceCalculatedNotification), 1U);
}

TEST_F(BalanceTest, aChangeIsComputedAtOnceWhileSomebodyLooks)
{
    controller.prepareData();
    const auto calculated = [this] {
        return program.posted.count(NotificationName::BalanceCalculatedNotification);
    };
    controller.balanceShown = true;
    program.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(calculated(), 2U);
    controller.balanceShown = false;
    controller.view.setVisible(true);
    int reloads = 0;
    controller.view.onReload([&reloads] { ++reloads; });
    program.appDelegate.notifications.post(NotificationName::BalanceChangedNotification);
    EXPECT_EQ(calculated(), 3U);
    EXPECT_EQ(reloads, 1);
}

TEST_F(BalanceTest, theSheetTakesTheSameFewStatementsWhateverItsSize)
{
    controller.prepareData();
    const auto statementsOfASheet = [this] {
        const qint64 before = connector.statementCount();
        controller.prepareData();
        return connector.statementCount() - before;
    };
    const qint64 product = addProduct(1);
    const auto fill = [&](int from, int to) {
        for (int i = from; i < to; ++i) {
            addStockRow(addStock(QString::number(i)), product, 1);
            addAccount(QString::number(i), 1, rawValue(CurrencyStruct::USD));
            addWithBalance<Contragent>(QString::number(i), 1);
        }
    };
    fill(0, 1);
    const qint64 small = statementsOfASheet();
    fill(1, 50);
    EXPECT_EQ(statementsOfASheet(), small);
    EXPECT_LE(small, 9);
}

TEST_F(BalanceTest, theSheetEqualsTheSumRecordByRecord)
{
    std::mt19937 random(20150301);
    const auto number = [&random](int from, int to) {
        return std::uniform_int_distribution(from, to)(random);
    };
    for (int i = 0; i < 60; ++i)
        addProduct(number(0, 99999) / 100.0);
    for (int stock = 0; stock < 4; ++stock)
        addStock(QString::number(number(0, 999)), stock == 3);
    for (int i = 0; i < 300; ++i)
        addStockRow(number(1, 5), number(1, 62), number(-500, 9999) / 100.0, number(0, 999) / 100.0);

    Decimal total;
    for (const auto& stock : connector.freeSQL<Stock>("WHERE is_hidden=?", {0})) {
        BalanceRow row;
        for (const auto& stockRow :
             connector.freeSQL<StockRow>("WHERE stock_id=? ORDER BY id", {stock->id})) {
            const auto product = connector.select<Product>(stockRow->productID);
            if (!product)
                continue;
            const Decimal quantity = stockRow->innerAmount.plus(stockRow->innerAmountReserved);
            row.setDebet(quantity.times(product->innerBaseCost, RoundingHandler{4}));
        }
        total = total.plus(row.innerDebet);
    }
    EXPECT_EQ(controller.rows().front()->innerDebet, total);
    EXPECT_EQ(controller.balance(), total.toDouble());
}

TEST_F(BalanceTest, linesAreStyledByTheirKind)
{
    addWithBalance<Manager>(u"Ann"_s, 20);
    BalanceView& view = controller.view;
    EXPECT_EQ(view.cellStyle(0, u"name"_s).font, CellFont::GatheringBold14);
    EXPECT_EQ(view.cellStyle(0, u"name"_s).alignment, CellAlignment::Left);
    EXPECT_EQ(view.cellStyle(0, u"debet"_s).color, inOrderColor);
    EXPECT_EQ(view.cellStyle(0, u"credit"_s).color, redColor);
    EXPECT_EQ(view.cellStyle(1, u"name"_s).font, CellFont::Plain);
    EXPECT_EQ(view.cellStyle(1, u"credit"_s).color, blackColor);
    EXPECT_EQ(view.cellStyle(1, u"credit"_s).alignment, CellAlignment::Right);
    EXPECT_EQ(view.cellStyle(2, u"name"_s).alignment, CellAlignment::Right);
    EXPECT_EQ(view.name(), u"Balance"_s);
    EXPECT_EQ(view.titleColor(), reportTitleColor);
    EXPECT_EQ(view.groundColor(), reportGroundColor);
    EXPECT_TRUE(view.canExportToExcel());
    EXPECT_EQ(view.value(4, u"name"_s), QVariant(QString()));
    EXPECT_EQ(view.value(0, u"other"_s), QVariant(QString()));
}

TEST_F(BalanceTest, theAmountsOfALineAreRunningSums)
{
    BalanceRow row;
    row.setDebet(2.345);
    row.setDebet(1.0);
    row.setCredit(0.1);
    row.setCredit(0.2);
    EXPECT_EQ(row.innerDebet, Decimal::fromText(u"3.34"));
    EXPECT_EQ(row.innerCredit, Decimal::fromText(u"0.3"));
}

} // namespace zelvor
