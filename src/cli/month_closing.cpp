#include "cli/month_closing.h"

#include "core/localized.h"
#include "period/period_closing.h"

namespace zelvor {

Answer closeLastMonth(AppDelegate& appDelegate)
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return Answer::refused(localized("The project has no settings."));
    PeriodClosing closing(appDelegate);
    if (closing.isPeriodSaved(params->lastPeriodSaved))
        return Answer::refused(localized("The last finished month is closed already."));
    const qint64 start = closing.getStartPeriodDateFromDate(appDelegate.now(), *params);
    return closing.closePeriod(start, *params) ? Answer::done()
                                               : Answer::refused(localized("Failed to close month"));
}

} // namespace zelvor
