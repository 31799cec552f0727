#pragma once

#include "reports/statement_view.h"

namespace zelvor {

using ContragentReportRow = StatementRow;

// The table of the counterparty report.
class ContragentReportView final : public StatementView {
public:
    using StatementView::StatementView;
};

} // namespace zelvor
