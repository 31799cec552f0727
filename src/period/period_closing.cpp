#include "period/period_closing.h"

#include "catalogs/property.h"
#include "catalogs/stock_history.h"
#include "catalogs/stock_row.h"
#include "core/localized.h"
#include "store/user_write.h"

#include <algorithm>

namespace zelvor {

void PeriodClosing::checkPeriod()
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    const qint64 today = appDelegate.now();
    if (!isPeriodSaved(params->lastPeriodSaved))
        askToClose(getStartPeriodDateFromDate(today, *params));
    // The rates do not wait for the answer.
    if (clearDate(params->lastCurrencyUpdate) != clearDate(today))
        appDelegate.workspace().updateCurrencies(*params);
    else
        appDelegate.workspace().setStateString(localized("All currencies are up to date"));
}

void PeriodClosing::askToClose(qint64 date)
{
    const Alert question{
        localized("Need to close last month."),
        localized("Last month doesn't closed. Would you like to close it now?\nIMPORTANT! After this "
                  "procedure you can not confirm any document with date from last month!"),
        {localized("Proceed"), localized("Cancel")},
        1};
    appDelegate.dialogs.ask(question, [this, date, asked = appDelegate.connector.path()](int answer) {
        // The books of another project may be open when the answer comes.
        if (answer == firstButton && appDelegate.connector.path() == asked)
            closeAsAnswered(date);
    });
}

void PeriodClosing::closeAsAnswered(qint64 date)
{
    // Read anew: the rates may have been stored in the settings while the question stood.
    const std::shared_ptr<Params> params = appDelegate.params();
    if (params && closePeriod(date, *params))
        return;
    appDelegate.dialogs.showAlert({localized("Failed to close month"),
                                   localized("For unknown reasons we can not close month. Please try later."),
                                   {localized("Close")},
                                   0});
}

bool PeriodClosing::closePeriod(qint64 date, Params& params)
{
    const qint64 savedBefore = params.lastPeriodSaved;
    UserWrite write(appDelegate.connector);
    if (!closeSteps(date, params))
        write.fail();
    const bool closed = write.finish([this] { announce(); });
    if (!closed)
        params.lastPeriodSaved = savedBefore;
    return closed;
}

bool PeriodClosing::closePeriodInside(qint64 date, Params& params)
{
    const bool closed = closeSteps(date, params);
    if (closed)
        announce();
    return closed;
}

bool PeriodClosing::closeSteps(qint64 date, Params& params)
{
    if (!saveStock(date))
        return false;
    std::optional<int> months = 0;
    isPeriodSaved(params.lastPeriodSaved, &months);
    return depreciate(std::max(*months, 1)) && savePeriod(params);
}

bool PeriodClosing::saveStock(qint64 date)
{
    const auto stockRows = appDelegate.connector.freeSQL<StockRow>();
    return std::ranges::all_of(stockRows, [&](const std::shared_ptr<StockRow>& stockRow) {
        StockHistory history;
        history.date = date;
        history.stockID = stockRow->stockID;
        history.productID = stockRow->productID;
        history.innerAmount = stockRow->innerAmount;
        history.innerAmountReserved = stockRow->innerAmountReserved;
        return appDelegate.connector.insert(history) == 1;
    });
}

bool PeriodClosing::depreciate(int months)
{
    for (int month = 0; month < months; ++month) {
        const auto properties =
            appDelegate.connector.freeSQL<Property>("WHERE sold_date=? AND current_cost>?", {0, 0});
        for (const auto& property : properties) {
            property->proceedAmortization();
            if (appDelegate.connector.update(*property) != 1)
                return false;
        }
    }
    return true;
}

bool PeriodClosing::savePeriod(Params& params)
{
    const qint64 savedBefore = params.lastPeriodSaved;
    params.lastPeriodSaved = getPeriodToSave();
    if (appDelegate.connector.update(params) == 1)
        return true;
    params.lastPeriodSaved = savedBefore;
    return false;
}

void PeriodClosing::announce()
{
    appDelegate.notifications.post(NotificationName::PropertiesChangedNotification, this);
    appDelegate.notifications.post(NotificationName::BalanceChangedNotification, this);
}

qint64 PeriodClosing::getStartPeriodDateFromDate(qint64 date, const Params&) const
{
    // Always a month: the books close monthly, however long the period of the reports is.
    return appDelegate.calendar.startOfMonth(date);
}

double PeriodClosing::clearDate(qint64 date) const
{
    return static_cast<double>(appDelegate.calendar.clearDate(date));
}

DayComponents PeriodClosing::getLastComponents() const
{
    return appDelegate.calendar.components(appDelegate.calendar.startOfMonth(appDelegate.now()) -
                                           secondsPerDay);
}

qint64 PeriodClosing::getPeriodToSave() const
{
    const DayComponents last = getLastComponents();
    return periodNumber(last.year, last.month);
}

qint64 PeriodClosing::timeIntervalFromInt(qint64 period) const
{
    if (period < 1)
        return 0;
    const auto [year, month] = splitPeriodNumber(period);
    // Kept as the books have always been judged: behind December comes January of the same year, so after a
    // closed December the limit lies a year back.
    const int nextMonth = month < 12 ? month + 1 : 1;
    return appDelegate.calendar.startOfDay({year, nextMonth, 1}) - 1;
}

bool PeriodClosing::isPeriodSaved(qint64 saved, std::optional<int>* months) const
{
    if (saved == 0)
        return false;
    const auto [savedYear, savedMonth] = splitPeriodNumber(saved);
    const DayComponents last = getLastComponents();
    // Kept: a December counts as month 0, so that any closed month of its year covers it; January's check
    // then sees a new year.
    const int month = last.month == 12 ? 0 : last.month;
    if (months && months->has_value())
        *months = month - savedMonth;
    return last.year <= savedYear && month <= savedMonth;
}

} // namespace zelvor
