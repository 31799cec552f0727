#include "print/print_payment_calendar.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintPaymentCalendar::PrintPaymentCalendar(AppDelegate& owner)
    : TableForm(owner, portrait, localized("Payment Calendar"),
                {
                    {u"date"_s, localized("Doc Date"), 45, Date},
                    {u"name"_s, localized("Document"), 251},
                    {u"sum"_s, localized("Doc Sum"), 60, Amount},
                    {u"payToDate"_s, localized("Pay To"), 45, Date},
                    {u"leftToPayIn"_s, localized("We Wait"), 60, Amount},
                    {u"leftToPayOut"_s, localized("Wait For Us"), 60, Amount},
                })
{}

QString PrintPaymentCalendar::heading() const
{
    return localized("Payment Calendar on date: ") + dateText(date);
}

} // namespace zelvor
