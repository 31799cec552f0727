#include "desktop/balance_page.h"

#include "core/localized.h"
#include "period/balance_view_controller.h"

namespace zelvor {

BalancePage::BalancePage(BalanceViewController& controller, QWidget* parent)
    : TablePage(controller.view, controller.appDelegate.calendar, localized("Nothing to show yet."), parent),
      m_controller(controller)
{}

} // namespace zelvor
