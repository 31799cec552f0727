#pragma once

#include "catalogs/account.h"
#include "catalogs/contragent.h"
#include "catalogs/currency.h"
#include "catalogs/delete_basis.h"
#include "catalogs/expend.h"
#include "catalogs/function.h"
#include "catalogs/product.h"
#include "catalogs/property.h"
#include "catalogs/stock.h"
#include "catalogs/stock_history.h"
#include "core/currency_struct.h"
#include "documents/document_number.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "documents/property_document.h"
#include "store/menu.h"
#include "store/user_write.h"
#include "support/test_project.h"

#include <gtest/gtest.h>

#include <QtCore/QStringList>

namespace zelvor {

// A test program with an open project that has all tables and what a new project starts with: settings with
// euro as the default currency, the currencies at rate 1, a serial counter for each type, one reason for a
// write-off. It is 14 November 2023, 22:13:20 UTC, and October is closed.
class Books : public TestProgram {
public:
    explicit Books(qint64 moment = 1'700'000'000, const QTimeZone& zone = QTimeZone::utc())
        : TestProgram(moment, zone), db(appDelegate.connector)
    {
        const bool created =
            createProject<Params, Currency, Menu, Measurement, Function, AccountType, ExpendType, Expend,
                          Manager, Stock, Account, Product, ProductGroup, Contragent, ContragentGroup,
                          ProductDocument, MoneyDocument, ProductDocumentRow, DocumentNumber, StockRow,
                          DeleteBasis, PropertyDocument, Property, StockHistory>();
        EXPECT_TRUE(created) << qPrintable(db.openError());
        seed();
    }

    Connector& db;

    // Stores a record and hands it back.
    template <class Record>
    std::shared_ptr<Record> store(const Record& record)
    {
        auto stored = std::make_shared<Record>(record);
        EXPECT_EQ(stored->id == 0 ? db.insert(*stored) : db.update(*stored), 1);
        return stored;
    }
    // The record as the file has it.
    template <class Record>
    std::shared_ptr<Record> read(const Record& record)
    {
        return db.select<Record>(record.id);
    }

    std::shared_ptr<Stock> stock(const QString& name, bool isDefault = false)
    {
        Stock record;
        record.name = name;
        record.isDefault = isDefault;
        return store(record);
    }
    std::shared_ptr<Contragent> contragent(const QString& name, double balance = 0, double discount = 0,
                                           qint64 deferment = 0)
    {
        Contragent record;
        record.name = name;
        record.setBalance(balance);
        record.setDiscount(discount);
        record.deferment = deferment;
        return store(record);
    }
    std::shared_ptr<Product> product(const QString& name, double price, double baseCost = 0)
    {
        Product record;
        record.name = name;
        record.setPriceCost(price);
        record.setBaseCost(baseCost);
        return store(record);
    }
    std::shared_ptr<Product> service(const QString& name, double price)
    {
        Product record;
        record.name = name;
        record.setPriceCost(price);
        record.isIntangible = true;
        return store(record);
    }
    std::shared_ptr<StockRow> stockRow(const Stock& stock, const Product& product, double amount,
                                       double reserved = 0)
    {
        StockRow record;
        record.stockID = stock.id;
        record.productID = product.id;
        record.setAmount(amount);
        record.setAmountReserved(reserved);
        return store(record);
    }
    std::shared_ptr<Account> account(const QString& name, double balance = 0, bool isDefault = false,
                                     CurrencyStruct currency = CurrencyStruct::EUR)
    {
        Account record;
        record.name = name;
        record.setBalance(balance);
        record.isDefault = isDefault;
        record.currencyID = rawValue(currency);
        return store(record);
    }
    std::shared_ptr<Manager> employee(const QString& name, double balance = 0)
    {
        Manager record;
        record.name = name;
        record.setBalance(balance);
        return store(record);
    }
    std::shared_ptr<Expend> expend(const QString& name)
    {
        Expend record;
        record.name = name;
        return store(record);
    }
    std::shared_ptr<Property> property(const QString& name, double cost, qint64 amortizationPeriod = 0)
    {
        Property record;
        record.name = name;
        record.setBaseCost(cost);
        record.setCurrentCost(cost);
        record.isAmortized = amortizationPeriod != 0;
        record.amortizationPeriod = amortizationPeriod;
        record.date = clock.now() - 1000;
        return store(record);
    }
    void setRate(CurrencyStruct currency, double rate)
    {
        const auto record = db.select<Currency>(rawValue(currency));
        record->setRate(rate);
        EXPECT_EQ(db.update(*record), 1);
    }
    template <class Change>
    void changeParams(Change change)
    {
        const auto params = appDelegate.params();
        change(*params);
        EXPECT_EQ(db.update(*params), 1);
    }

    // What a warehouse has on hand; 0 without a row.
    double onHand(const Stock& stock, const Product& product)
    {
        const auto rows = db.freeSQL<StockRow>("WHERE stock_id=? AND product_id=?", {stock.id, product.id});
        return rows.empty() ? 0 : rows.front()->amount();
    }
    // The last number handed out for the type.
    qint64 lastNumber(DocType type)
    {
        return db.freeSQL<DocumentNumber>("WHERE doc_type_id=?", {type}).front()->docNumber;
    }

    // Every value of every row of every table, a text for each row: two equal dumps are two equal files.
    QStringList dump()
    {
        QStringList lines;
        for (const TableInfo* table : allTables()) {
            std::string columns = "id";
            for (const ColumnInfo& column : table->columns)
                columns += std::string("||','||quote(") + column.name + ")";
            const std::string sql = "SELECT " + columns + " FROM " + table->name + " ORDER BY id";
            const QString name = QString::fromLatin1(table->name);
            EXPECT_TRUE(db.scan(sql, {}, [&](const Statement& row) {
                lines.append(name + QLatin1Char(':') + row.text(0));
            })) << sql;
        }
        return lines;
    }

private:
    static std::vector<const TableInfo*> allTables()
    {
        return {&Params::table(),
                &Currency::table(),
                &Menu::table(),
                &Measurement::table(),
                &Function::table(),
                &AccountType::table(),
                &ExpendType::table(),
                &Expend::table(),
                &Manager::table(),
                &Stock::table(),
                &Account::table(),
                &Product::table(),
                &ProductGroup::table(),
                &Contragent::table(),
                &ContragentGroup::table(),
                &ProductDocument::table(),
                &MoneyDocument::table(),
                &ProductDocumentRow::table(),
                &DocumentNumber::table(),
                &StockRow::table(),
                &DeleteBasis::table(),
                &PropertyDocument::table(),
                &Property::table(),
                &StockHistory::table()};
    }

    void seed()
    {
        UserWrite write(db);
        Params params;
        params.defaultCurrency = rawValue(CurrencyStruct::EUR);
        params.lastPeriodSaved = 202310;
        store(params);
        for (const CurrencyStruct known : allCurrencies) {
            Currency currency;
            currency.code = rawValue(known);
            store(currency);
        }
        for (qint64 type = 1; type < docTypeCount; ++type) {
            DocumentNumber number;
            number.docTypeID = type;
            store(number);
        }
        DeleteBasis basis;
        basis.name = QStringLiteral("Broken");
        store(basis);
        EXPECT_TRUE(write.finish());
    }
};

} // namespace zelvor
