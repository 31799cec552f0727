#pragma once

#include "core/view.h"
#include "period/balance_row.h"

#include <memory>
#include <vector>

namespace zelvor {

class BalanceViewController;

// The balance sheet as a table: "name", "debet", "credit".
class BalanceView final : public TableView {
public:
    explicit BalanceView(BalanceViewController& owner);

    // The lines shown.
    const std::vector<std::shared_ptr<BalanceRow>>& rows() const;
    void setRows(std::vector<std::shared_ptr<BalanceRow>> rows);

    bool canExportToExcel() const override { return true; }
    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(rows().size()); }
    QVariant value(int row, const QString& identifier) const override;
    CellStyle cellStyle(int row, const QString& identifier) const override;

private:
    const BalanceRow* rowAt(int row) const;

    BalanceViewController& m_controller;
    std::vector<std::shared_ptr<BalanceRow>> m_rows;
};

} // namespace zelvor
