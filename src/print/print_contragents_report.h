#pragma once

#include "print/table_form.h"

namespace zelvor {

// The report of all counterparties' debts on paper.
class PrintContragentsReport final : public TableForm {
public:
    PrintContragentsReport(AppDelegate& owner, QString formTitle);

protected:
    QString furtherHeading() const override;
};

} // namespace zelvor
