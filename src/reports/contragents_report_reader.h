#pragma once

#include "reports/contragents_report_row.h"
#include "store/connector.h"

#include <deque>

namespace zelvor {

// What the counterparties report is asked for. An empty list of ids lets everything through; dateFrom is
// outside the period, dateTo inside.
struct ContragentsReportQuery {
    qint64 dateFrom = 0;
    qint64 dateTo = 0;
    std::vector<qint64> contragentIDs;
    std::vector<qint64> contragentTypeIDs;
};

// The rows of a counterparties report as a tree. They stay where they are for as long as this object, or the
// one it is moved to, lives.
struct ContragentsReportRows {
    std::deque<ContragentsReportRow> all;
    // The footer of the start, the top of the tree, the footer of the end; empty when the file could not be
    // read.
    std::vector<ContragentsReportRow*> topLevel;
};

// Reads the heads of the period's documents once, whatever the number of counterparties.
ContragentsReportRows readContragentsReport(Connector& connector, const ContragentsReportQuery& query);

} // namespace zelvor
