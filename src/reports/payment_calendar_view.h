#pragma once

#include "core/view.h"
#include "reports/payment_calendar_row.h"

#include <memory>
#include <vector>

namespace zelvor {

class PaymentCalendarViewController;

// The table of the payment calendar: the open documents by date, then what they sum up to.
class PaymentCalendarView final : public TableView {
public:
    using Rows = std::vector<std::shared_ptr<PaymentCalendarRow>>;

    explicit PaymentCalendarView(PaymentCalendarViewController& owner);

    const Rows& rows() const;
    // The selection stays on its document.
    void setRows(Rows rows);

    bool canExportToExcel() const override { return true; }
    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(rows().size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;
    void doubleAction(int row) override;
    // None outside the rows.
    const PaymentCalendarRow* rowAt(int row) const;

private:
    PaymentCalendarViewController& m_controller;
    Rows m_rows;
};

} // namespace zelvor
