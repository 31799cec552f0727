#include "desktop/period_sell_page.h"

#include "core/localized.h"
#include "reports/period_sell_report_view_controller.h"

namespace zelvor {

PeriodSellPage::PeriodSellPage(PeriodSellReportViewController& controller, QWidget* parent)
    : TablePage(controller.mainView, controller.appDelegate.calendar, localized("No sales in this period."),
                parent),
      m_controller(controller)
{}

} // namespace zelvor
