#pragma once

#include "reports/statement_view.h"

namespace zelvor {

using EmployeeAccountReportRow = StatementRow;

// The table of the employee and account report.
class EmployeeAccountReportView final : public StatementView {
public:
    EmployeeAccountReportView(AppDelegate& owner, QString type)
        : StatementView(owner), reportType(std::move(type))
    {}

    // "employee" or "account"; for the print.
    const QString reportType;
};

} // namespace zelvor
