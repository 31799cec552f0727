#pragma once

#include "reports/products_on_stock_reader.h"
#include "store/connector.h"

#include <QtCore/QStringList>

#include <vector>

namespace zelvor {

// The products on warehouses report worked out the slow way, a question for each product and warehouse and a
// search for each parent, as its rules read. The tests hold the report's own road against it.
class LiteralStockReport {
public:
    LiteralStockReport(Connector& connector, ProductsOnStockQuery query);

    // Every shown row as one text.
    QStringList lines();

private:
    struct Cell {
        QString name;
        Decimal amount;
        Decimal sum;
    };
    struct Row {
        qint64 id = 0;
        QString type;
        bool folder = false;
        qint64 parentID = 0;
        int parent = -1;
        std::vector<int> children = {};
        QString name = {};
        QString unit = {};
        Decimal cost = {};
        int indent = 0;
        std::vector<Cell> stocks = {};

        Decimal amountTotal() const;
        Decimal sumTotal() const;
    };

    Decimal startAmount(qint64 stockID, qint64 productID);
    Decimal amountOf(qint64 stockID, qint64 productID);
    void readRows();
    int parentOf(const Row& row) const;
    bool append(int parent, int child);
    void addTo(int row, const std::vector<Cell>& figures);
    void buildTree();
    void open(const std::vector<int>& list);
    void removeEmptyStocks();

    Connector& m_connector;
    ProductsOnStockQuery m_query;
    std::vector<Row> m_rows; // title and grand total stand behind the read ones
    std::vector<int> m_top;
    std::vector<int> m_shown;
};

} // namespace zelvor
