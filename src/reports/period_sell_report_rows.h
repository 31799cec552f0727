#pragma once

#include "reports/total_row_for_period_sell.h"

#include <deque>
#include <utility>
#include <vector>

namespace zelvor {

// The rows of a period sell report in reading order. They stay where they are for as long as this object, or
// the one it is moved to, lives. Kept in blocks: a report by customers has some hundred thousand of them.
class PeriodSellReportRows {
public:
    PeriodSellReportRows() = default;
    PeriodSellReportRows(PeriodSellReportRows&&) = default;
    PeriodSellReportRows& operator=(PeriodSellReportRows&&) = default;

    // What rows refer to: appended once, shared by as many rows as need it.
    const SellReportSubject& appendSubject(SellReportSubject subject)
    {
        return m_subjects.emplace_back(std::move(subject));
    }
    PeriodSellReportRow& appendProduct() { return append(m_products); }
    TotalRowForPeriodSell& appendGathering() { return append(m_gathering); }
    const std::vector<PeriodSellReportRow*>& inOrder() const { return m_order; }

private:
    static constexpr std::size_t rowsOfABlock = 256;
    template <class Row>
    using Blocks = std::vector<std::vector<Row>>;

    template <class Row>
    Row& append(Blocks<Row>& blocks)
    {
        if (blocks.empty() || blocks.back().size() == rowsOfABlock)
            blocks.emplace_back().reserve(rowsOfABlock);
        Row& row = blocks.back().emplace_back();
        m_order.push_back(&row);
        return row;
    }

    std::deque<SellReportSubject> m_subjects;
    Blocks<PeriodSellReportRow> m_products;
    Blocks<TotalRowForPeriodSell> m_gathering;
    std::vector<PeriodSellReportRow*> m_order;
};

} // namespace zelvor
