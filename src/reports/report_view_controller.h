#pragma once

#include "core/outlets.h"
#include "store/model_controller.h"

namespace zelvor {

// What the reports of a period share: the two dates with their labels, and the road to a computed report.
// A report is made of confirmed documents only and writes nothing.
class ReportViewController : public ModelViewController {
public:
    explicit ReportViewController(AppDelegate& owner);

    DatePicker dateFrom{QStringLiteral("dateFrom")};
    DatePicker dateTo{QStringLiteral("dateTo")};
    Label dateFromLabel{QStringLiteral("dateFromLabel")};
    Label dateToLabel{QStringLiteral("dateToLabel")};
    Progress progress{QStringLiteral("progress")};

    // The midnight that begins the moment's local day, or 86,400 seconds later.
    qint64 getNormalizedDate(qint64 moment, bool isStart) const
    {
        return appDelegate.calendar.normalizedDate(moment, isStart);
    }
    // From today's start to the next midnight.
    void setCurrentDate();
    // From the start of the report period that holds today.
    void setCurrentPeriod();
    // Paints both labels red while the dates stand the wrong way round.
    void checkDates();
    // Computes the report; with the dates the wrong way round the old one stays.
    void prepareReport();

    // The title of the tab, with the dates.
    virtual QString getNameForTabView() const = 0;
    virtual void updateReport() = 0;

protected:
    // " From: <date> To: <date>" in the user's short date style.
    QString periodText() const;

private:
    bool datesAreOrdered() const { return dateFrom.moment() <= dateTo.moment(); }
};

} // namespace zelvor
