#pragma once

#include "reports/period_sell_report_rows.h"
#include "store/connector.h"

namespace zelvor {

// What the period sell report is asked for. An empty list of ids lets everything through; both dates are
// exclusive.
struct PeriodSellReportQuery {
    qint64 dateFrom = 0;
    qint64 dateTo = 0;
    std::vector<qint64> productTypeIDs;
    std::vector<qint64> productIDs;
    std::vector<qint64> contragentIDs;
    std::vector<qint64> contragentTypeIDs;
    std::vector<qint64> selectedManagers;
};

// Reads the rows of the report, not yet a tree: gathering rows, and the sums of the confirmed sales by
// product below each. The documents and their rows are read once, whatever the number of counterparties. Row
// ids: a group's own id, a counterparty's plus 10,000, an employee's plus 100,000.
PeriodSellReportRows readSalesByProductGroup(Connector& connector, const PeriodSellReportQuery& query);
PeriodSellReportRows readSalesByContragent(Connector& connector, const PeriodSellReportQuery& query);
// Without `withContragents` products stand directly below the employee.
PeriodSellReportRows readSalesByManager(Connector& connector, const PeriodSellReportQuery& query,
                                        bool withContragents);

} // namespace zelvor
