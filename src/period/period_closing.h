#pragma once

#include "store/app_delegate.h"

#include <optional>

namespace zelvor {

// Closes the books month by month: a snapshot of the stock, one step of depreciation, the month's number in
// the settings. No document dated in a closed month can be confirmed. There is no way back.
//
// Period numbers are year and month written one after the other, moments whole seconds since 1970 UTC; today
// is the application's now. An open question to the user refers to this object, so it lives as long as the
// project's window.
class PeriodClosing {
public:
    explicit PeriodClosing(AppDelegate& owner) : appDelegate(owner) {}
    PeriodClosing(const PeriodClosing&) = delete;
    PeriodClosing& operator=(const PeriodClosing&) = delete;

    // Once for each opened project: offers to close the last month, and has the day's rates fetched when they
    // are of another day.
    void checkPeriod();
    // Closes the month before today's in a transaction of its own; the snapshot is stamped with `date`. True
    // when it is on the disk; `params` then holds the new lastPeriodSaved, otherwise it stays as it was.
    bool closePeriod(qint64 date, Params& params);
    // The same steps inside a transaction that the caller holds. After false the caller rolls back.
    bool closePeriodInside(qint64 date, Params& params);

    // The first moment of the date's month.
    qint64 getStartPeriodDateFromDate(qint64 date, const Params& params) const;
    // The first moment of the date's local day, as real seconds.
    double clearDate(qint64 date) const;
    // The period number of the month before today's.
    qint64 getPeriodToSave() const;
    // The last day of the month before today's.
    DayComponents getLastComponents() const;
    // The last second of the period: documents before it are too late. 0 for a number below 1.
    qint64 timeIntervalFromInt(qint64 period) const;
    // Whether `saved` covers the month before today's. `months`, when it holds a value and `saved` is not 0,
    // becomes the distance in months as counted within one year.
    bool isPeriodSaved(qint64 saved, std::optional<int>* months = nullptr) const;

    AppDelegate& appDelegate;

private:
    void askToClose(qint64 date);
    void closeAsAnswered(qint64 date);
    bool saveStock(qint64 date);
    bool depreciate(int months);
    bool savePeriod(Params& params);
    bool closeSteps(qint64 date, Params& params);
    void announce();
};

} // namespace zelvor
