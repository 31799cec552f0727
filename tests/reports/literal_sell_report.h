#pragma once

#include "reports/period_sell_report_reader.h"
#include "store/connector.h"

#include <QtCore/QString>

#include <vector>

namespace zelvor {

// The period sell report worked out the slow way, query by query and search by search, as its rules read.
// The tests hold the report's own road against it.
class LiteralSellReport {
public:
    struct Options {
        qint64 tag = 0;
        bool productsGroup = false;
        bool contragentsGroup = false;
        bool managersGroup = false;
        QString sortKey; // empty: not sorted
        bool ascending = true;
    };
    LiteralSellReport(Connector& connector, PeriodSellReportQuery query, Options options);

    // Every shown row as one text: the eight cells, kind of row and indent.
    QStringList lines();

private:
    struct Row {
        qint64 id = 0;
        qint64 parentID = 0;
        QString type;
        QString name;
        QString unit;
        Decimal amount, packAmount, baseSum, priceSum, storedPacks;
        bool gathers = false;
        int indent = 0;
        int parent = -1;
        std::vector<int> children = {};

        Decimal packs() const;
        Decimal profit() const { return priceSum.minus(baseSum, moneyHandler); }
        double percent() const;
        double number(const QString& key) const;
    };

    int append(qint64 id, const QString& name, const QString& type, qint64 parentID);
    void runQuery(const QString& sql, std::vector<Parameter> inFront, qint64 parentID, bool ownParent);
    void readProducts();
    void readContragents();
    void readManagers();
    void readOfManager(qint64 managerID, qint64 rowID, bool offset);
    void buildTree();
    void open(const std::vector<int>& list, bool calculateTotals);
    void clear();
    void sortList(std::vector<int>& list);
    QString line(const Row& row) const;

    Connector& m_connector;
    PeriodSellReportQuery m_query;
    Options m_options;
    std::vector<Row> m_rows; // the grand total stands behind the read ones
    std::vector<int> m_top;
    std::vector<int> m_shown;
};

} // namespace zelvor
