#include "print/print_account_report.h"

#include "core/localized.h"

namespace zelvor {

PrintAccountReport::PrintAccountReport(AppDelegate& owner, bool isOfEmployee)
    : PrintContragentReport(owner,
                            isOfEmployee ? localized("Report by Employee") : localized("Report by Account")),
      m_isOfEmployee(isOfEmployee)
{}

QString PrintAccountReport::furtherHeading() const
{
    return (m_isOfEmployee ? localized("Employee: ") : localized("Account: ")) + u'\'' + target + u'\'';
}

} // namespace zelvor
