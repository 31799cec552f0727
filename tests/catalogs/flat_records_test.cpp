#include "catalogs/flat_catalog_fixture.h"
#include "catalogs/stock_history.h"
#include "catalogs/stock_row.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

QStringList columnNames(const TableInfo& table)
{
    QStringList names;
    for (const ColumnInfo& column : table.columns)
        names.append(QString::fromLatin1(column.name));
    return names;
}

TEST(FlatRecord, isStoredUnderTheDocumentedColumns)
{
    EXPECT_EQ(columnNames(Stock::table()),
              (QStringList{u"name"_s, u"address"_s, u"manager_id"_s, u"is_default"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(StockRow::table()),
              (QStringList{u"stock_id"_s, u"product_id"_s, u"amount"_s, u"amount_reserved"_s}));
    EXPECT_EQ(columnNames(StockHistory::table()),
              (QStringList{u"date"_s, u"stock_id"_s, u"product_id"_s, u"amount"_s, u"amount_reserved"_s}));
    EXPECT_EQ(columnNames(Account::table()), (QStringList{u"name"_s, u"account_type_id"_s, u"currency_id"_s,
                                                          u"balance"_s, u"is_default"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(AccountType::table()),
              (QStringList{u"name"_s, u"description_string"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(Currency::table()), (QStringList{u"code"_s, u"rate"_s}));
    EXPECT_EQ(columnNames(Manager::table()),
              (QStringList{u"name"_s, u"function_id"_s, u"balance"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(Function::table()), (QStringList{u"name"_s, u"salary"_s, u"is_hidden"_s}));
    EXPECT_EQ(columnNames(DeleteBasis::table()), QStringList{u"name"_s});
    EXPECT_EQ(columnNames(Property::table()),
              (QStringList{u"name"_s, u"date"_s, u"base_cost"_s, u"current_cost"_s, u"is_amortized"_s,
                           u"amortization_period"_s, u"description_string"_s, u"sold_date"_s}));
}

TEST(FlatRecord, answersTheIdentifiersOfItsList)
{
    Stock stock;
    stock.manager.edit().name = u"Ann"_s;
    stock.isDefault = true;
    EXPECT_EQ(stock.valueForIdentifier(u"manager").toString(), u"Ann"_s);
    EXPECT_TRUE(stock.valueForIdentifier(u"default").toBool());
    EXPECT_TRUE(stock.selected);
    Manager manager;
    EXPECT_TRUE(manager.valueForIdentifier(u"selected").toBool());
    EXPECT_EQ(manager.valueForIdentifier(u"function").toString(), u"New Function"_s);
    manager.setBalance(-0.005);
    EXPECT_EQ(manager.balance(), 0);
    manager.setBalance(-0.015);
    EXPECT_EQ(manager.balanceFontColor(), redColor);
    AccountType accountType;
    accountType.isHidden = true;
    EXPECT_TRUE(accountType.valueForIdentifier(u"isHidden").toBool());
    Account account;
    account.setBalance(2.345);
    EXPECT_EQ(account.valueForIdentifier(u"balance").toDouble(), 2.34);
    EXPECT_EQ(account.valueForIdentifier(u"typeName").toString(), u"New Account Type"_s);
    EXPECT_EQ(account.valueForIdentifier(u"currency"), QVariant(QString()));
}

using FlatRecords = FlatCatalogFixture;

TEST_F(FlatRecords, comeBackAsTheyWereStoredWithTheirLinks)
{
    Function driver;
    driver.name = u"Driver"_s;
    driver.setSalary(99.99);
    store(driver);
    Manager ann;
    ann.name = u"Ann"_s;
    ann.functionID = driver.id;
    ann.setBalance(-1.5);
    ann.isHidden = true;
    store(ann);
    Stock main;
    main.managerID = ann.id;
    main.isDefault = true;
    store(main);
    const auto stock = stored<Stock>(main.id);
    EXPECT_TRUE(stock->isDefault);
    EXPECT_EQ(stock->managerName(), u"Ann"_s);
    EXPECT_EQ(stock->manager->balance(), -1.5);
    EXPECT_TRUE(stock->manager->isHidden);
    EXPECT_EQ(stock->manager->functionName(), u"Driver"_s);
    EXPECT_EQ(stock->manager->function->salary(), 99.99);
}

} // namespace
} // namespace zelvor
