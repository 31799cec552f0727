#include "cli/report.h"
#include "reports/payment_calendar_view_controller.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

int run(AppDelegate& appDelegate, const Arguments&, const Report::Print& print)
{
    PaymentCalendarViewController controller(appDelegate);
    controller.prepareReport();
    const auto& rows = controller.mainView.rows();
    return print({controller.mainView, [&rows](int row) {
                      return rows[static_cast<std::size_t>(row)]->total ? u"total"_s : u"document"_s;
                  }});
}

} // namespace

const Report paymentCalendarReport{"payment-calendar", "", {}, run};

} // namespace zelvor
