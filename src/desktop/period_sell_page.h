#pragma once

#include "desktop/list_page.h"

namespace zelvor {

class PeriodSellReportViewController;

// The report of what was sold in a period, with its filters.
class PeriodSellPage : public TablePage {
    Q_OBJECT

public:
    explicit PeriodSellPage(PeriodSellReportViewController& controller, QWidget* parent = nullptr);

private:
    PeriodSellReportViewController& m_controller;
};

} // namespace zelvor
