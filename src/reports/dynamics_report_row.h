#pragma once

#include "core/table_model.h"

#include <vector>

namespace zelvor {

// One figure of the dynamics report over the months: income, spendings, selling or margin.
class DynamicsReportRow : public TableModelWithNumbers {
public:
    QString name;
    std::vector<Decimal> data; // a sum for each month

    // "name"; "col_N", the sum of month N; "percent_N", its change against the month before as a fraction,
    // blank where the month before has nothing that it could be measured by.
    QVariant valueForIdentifier(QStringView identifier) const override;

private:
    QVariant change(std::size_t month) const;
};

} // namespace zelvor
