#pragma once

#include "print/table_form.h"

namespace zelvor {

// The period sell report on paper.
class PrintPeriodSell final : public TableForm {
public:
    explicit PrintPeriodSell(AppDelegate& owner);

    // The words of the report's type and of its ticked check boxes.
    QString reportBy;
    QString groupedBy;

protected:
    QString furtherHeading() const override { return reportBy + QStringLiteral(", ") + groupedBy; }
    QString cellText(const TableView& report, int row, const Column& column) const override;
};

} // namespace zelvor
