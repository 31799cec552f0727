#include "reports/report_view_controller.h"

#include "core/formats.h"
#include "core/localized.h"

namespace zelvor {

ReportViewController::ReportViewController(AppDelegate& owner) : ModelViewController(owner)
{
    dateFromLabel.setText(localized("From"));
    dateToLabel.setText(localized("To"));
    dateFrom.onUserChange = [this] { checkDates(); };
    dateTo.onUserChange = [this] { checkDates(); };
    setCurrentDate();
}

void ReportViewController::setCurrentDate()
{
    const qint64 now = appDelegate.now();
    dateFrom.setMoment(getNormalizedDate(now, true));
    dateTo.setMoment(getNormalizedDate(now, false));
    checkDates();
}

void ReportViewController::setCurrentPeriod()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    dateFrom.setMoment(getStartPeriodDateFromDate(appDelegate.now(), *params));
    checkDates();
}

void ReportViewController::checkDates()
{
    const Color& color = datesAreOrdered() ? inOrderColor : redColor;
    dateFromLabel.setColor(color);
    dateToLabel.setColor(color);
}

void ReportViewController::prepareReport()
{
    checkDates();
    if (datesAreOrdered())
        updateReport();
}

QString ReportViewController::periodText() const
{
    const QLocale locale;
    return localized(" From: ") + shortDateText(appDelegate.calendar.dateTime(dateFrom.moment()), locale) +
           localized(" To: ") + shortDateText(appDelegate.calendar.dateTime(dateTo.moment()), locale);
}

} // namespace zelvor
