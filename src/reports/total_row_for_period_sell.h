#pragma once

#include "reports/period_sell_report_row.h"

namespace zelvor {

// A row that gathers the sums of the products below it. Packs of different sizes have no common measure, so
// their number is summed too instead of worked out.
class TotalRowForPeriodSell final : public PeriodSellReportRow {
public:
    qint64 parentContragentID = 0;
    Decimal packHandler; // packs of the products below

    Decimal innerPacks() const override { return packHandler; }
    void setPacks(double value) { packHandler = Decimal::fromDouble(value, decimalHandler); }
    void addSums(const PeriodSellReportRow& row)
    {
        innerAmount = innerAmount.plus(row.innerAmount, decimalHandler);
        innerBaseSum = innerBaseSum.plus(row.innerBaseSum, decimalHandler);
        innerPriceSum = innerPriceSum.plus(row.innerPriceSum, decimalHandler);
    }

private:
    bool addData(const PeriodSellReportRow& row, const Decimal& packs) override
    {
        addSums(row);
        if (!packs.isZero())
            packHandler = packHandler.plus(packs, decimalHandler);
        return true;
    }
};

} // namespace zelvor
