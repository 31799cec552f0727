#pragma once

#include "catalogs/expend.h"
#include "documents/money_document.h"
#include "documents/product_document.h"
#include "store/params.h"
#include "support/test_project.h"

#include <QtCore/QDateTime>

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace zelvor {

// A project with the catalogs and documents that the reports of spendings and of dynamics read, filled record
// by record. One transaction stays open for the whole test: nothing here depends on the disk.
class MoneyBooks : public TestProgram {
public:
    // Now is noon of 15 March 2015.
    explicit MoneyBooks(const QTimeZone& zone = QTimeZone::utc())
        : TestProgram(momentIn(zone, {2015, 3, 15}, 12), zone), connection(appDelegate.connector)
    {
        EXPECT_TRUE((createProject<Params, ExpendType, Expend, Manager, Contragent, Account, Product,
                                   ProductDocument, ProductDocumentRow, MoneyDocument>()));
        connection.execute("BEGIN");
        Params params;
        store(params);
    }

    Connector& connection;

    // Local time.
    qint64 moment(int year, int month, int day, int hour = 0, int second = 0) const
    {
        return momentIn(appDelegate.calendar.zone(), {year, month, day}, hour) + second;
    }
    template <class Record>
    qint64 store(Record& record)
    {
        EXPECT_EQ(connection.insert(record), 1);
        return record.id;
    }
    qint64 addType(const QString& name, qint64 parentID = 0)
    {
        ExpendType type;
        type.name = name;
        type.parentID = parentID;
        return store(type);
    }
    qint64 addExpend(const QString& name, qint64 parentID = 0)
    {
        Expend expend;
        expend.name = name;
        expend.parentID = parentID;
        return store(expend);
    }
    // A confirmed document on the books' own day; `change` makes it another one.
    template <class Change>
    qint64 addMoney(DocType type, double sum, Change change)
    {
        MoneyDocument document;
        document.insertDocType(type);
        document.date = clock.now();
        document.setDocSum(sum);
        document.confirmed = true;
        document.docNumber = ++m_lastNumber;
        change(document);
        return store(document);
    }
    qint64 spend(qint64 expendID, double sum, bool variable = false)
    {
        return addMoney(DocType::MoneyToExpend, sum, [&](MoneyDocument& document) {
            document.expendID = expendID;
            document.variable = variable;
        });
    }
    qint64 addMoneyOn(DocType type, qint64 date, double sum)
    {
        return addMoney(type, sum, [date](MoneyDocument& document) { document.date = date; });
    }
    // Rows of a price sum and a base sum each.
    qint64 addProducts(DocType type, qint64 date, const std::vector<std::array<double, 2>>& sums,
                       bool confirmed = true)
    {
        ProductDocument document;
        document.insertDocType(type);
        document.date = date;
        document.confirmed = confirmed;
        for (const auto& [price, base] : sums) {
            auto row = std::make_shared<ProductDocumentRow>();
            row->setPriceCostSum(price);
            row->setBaseCostSum(base);
            document.documentRows.push_back(std::move(row));
        }
        return store(document);
    }

private:
    static qint64 momentIn(const QTimeZone& zone, const DayComponents& day, int hour)
    {
        return QDateTime(QDate(day.year, day.month, day.day), QTime(hour, 0), zone).toSecsSinceEpoch();
    }

    qint64 m_lastNumber = 0;
};

} // namespace zelvor
