#pragma once

#include "catalogs/contragent.h"
#include "catalogs/manager.h"
#include "catalogs/measurement.h"
#include "catalogs/product.h"
#include "core/doc_type.h"
#include "documents/product_document.h"
#include "store/params.h"
#include "support/test_project.h"

#include <QtCore/QDateTime>

#include <gtest/gtest.h>

#include <initializer_list>

namespace zelvor {

// A project with the catalogs and documents that the sales reports read, filled record by record. One
// transaction stays open for the whole test: nothing here depends on the disk.
class SellReportBooks : public TestProgram {
public:
    struct Sold {
        qint64 productID;
        double amount;
        double baseSum;
        double priceSum;
    };

    // Now is noon of 15 March 2015.
    SellReportBooks() : TestProgram(moment(2015, 3, 15, 12))
    {
        EXPECT_TRUE((createProject<Params, Measurement, Manager, Product, ProductGroup, Contragent,
                                   ContragentGroup, ProductDocument, ProductDocumentRow>()));
        appDelegate.connector.execute("BEGIN");
        Params params;
        store(params);
    }

    static qint64 moment(int year, int month, int day, int hour = 0)
    {
        return QDateTime(QDate(year, month, day), QTime(hour, 0), QTimeZone::utc()).toSecsSinceEpoch();
    }
    template <class Record>
    qint64 store(Record& record)
    {
        EXPECT_EQ(appDelegate.connector.insert(record), 1);
        return record.id;
    }
    qint64 addUnit(const QString& shorthand)
    {
        Measurement unit;
        unit.shorthand = shorthand;
        return store(unit);
    }
    qint64 addProduct(const QString& name, qint64 groupID = 0, double packAmount = 0, qint64 unitID = 0)
    {
        Product product;
        product.name = name;
        product.parentID = groupID;
        product.setPackAmount(packAmount);
        product.measurementID = unitID;
        return store(product);
    }
    template <class Group>
    qint64 addGroup(const QString& name, qint64 parentID = 0)
    {
        Group group;
        group.name = name;
        group.parentID = parentID;
        return store(group);
    }
    qint64 addManager(const QString& name)
    {
        Manager manager;
        manager.name = name;
        return store(manager);
    }
    qint64 addContragent(const QString& name, qint64 managerID = 0, qint64 groupID = 0, qint64 holderID = 0)
    {
        Contragent contragent;
        contragent.name = name;
        contragent.managerID = managerID;
        contragent.parentID = groupID;
        contragent.parentContragentID = holderID;
        return store(contragent);
    }
    void addDocument(DocType type, qint64 date, qint64 contragentID, const std::vector<Sold>& rows,
                     bool confirmed = true)
    {
        ProductDocument document;
        document.insertDocType(type);
        document.date = date;
        document.contragentID = contragentID;
        document.confirmed = confirmed;
        for (const Sold& sold : rows) {
            auto row = std::make_shared<ProductDocumentRow>();
            row->productID = sold.productID;
            row->setAmount(sold.amount);
            row->setBaseCostSum(sold.baseSum);
            row->setPriceCostSum(sold.priceSum);
            document.documentRows.push_back(std::move(row));
        }
        store(document);
    }
    // On the books' own day.
    void sell(qint64 contragentID, const std::vector<Sold>& rows)
    {
        addDocument(DocType::SellProduct, clock.now(), contragentID, rows);
    }
};

} // namespace zelvor
