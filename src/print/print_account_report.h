#pragma once

#include "print/print_contragent_report.h"

namespace zelvor {

// A statement of money on paper: of one employee, or of one account.
class PrintAccountReport final : public PrintContragentReport {
public:
    PrintAccountReport(AppDelegate& owner, bool isOfEmployee);

protected:
    QString furtherHeading() const override;

private:
    const bool m_isOfEmployee;
};

} // namespace zelvor
