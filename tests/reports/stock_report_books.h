#pragma once

#include "support/books.h"

namespace zelvor {

// Books with what the products on warehouses report reads. One transaction stays open for the whole test:
// nothing here depends on the disk. The report period is the month, November 2023.
class StockReportBooks : public Books {
public:
    struct Moved {
        qint64 productID;
        double amount;
    };

    StockReportBooks() { db.execute("BEGIN"); }

    qint64 periodStart() const { return appDelegate.calendar.startOfMonth(clock.now()); }
    std::shared_ptr<ProductGroup> group(const QString& name, qint64 parentID = 0)
    {
        ProductGroup record;
        record.name = name;
        record.parentID = parentID;
        return store(record);
    }
    std::shared_ptr<Product> goods(const QString& name, double baseCost, qint64 groupID = 0)
    {
        Product record;
        record.name = name;
        record.setBaseCost(baseCost);
        record.parentID = groupID;
        return store(record);
    }
    void snapshot(const Stock& stock, const Product& product, double amount, double reserved = 0)
    {
        snapshotOf(periodStart(), stock.id, product.id, amount, reserved);
    }
    void snapshotOf(qint64 date, qint64 stockID, qint64 productID, double amount, double reserved)
    {
        StockHistory record;
        record.date = date;
        record.stockID = stockID;
        record.productID = productID;
        record.setAmount(amount);
        record.setAmountReserved(reserved);
        store(record);
    }
    void move(DocType type, qint64 date, qint64 from, qint64 to, const std::vector<Moved>& rows,
              bool confirmed = true)
    {
        ProductDocument document;
        document.insertDocType(type);
        document.date = date;
        document.stockFromID = from;
        document.stockToID = to;
        document.confirmed = confirmed;
        for (const Moved& moved : rows) {
            auto row = std::make_shared<ProductDocumentRow>();
            row->productID = moved.productID;
            row->setAmount(moved.amount);
            document.documentRows.push_back(std::move(row));
        }
        store(document);
    }
};

} // namespace zelvor
