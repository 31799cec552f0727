#pragma once

#include "store/app_delegate.h"

namespace zelvor {

// The base of catalog controllers.
class ModelController {
public:
    explicit ModelController(AppDelegate& owner) : appDelegate(owner) {}
    virtual ~ModelController() = default;
    ModelController(const ModelController&) = delete;
    ModelController& operator=(const ModelController&) = delete;

    AppDelegate& appDelegate;
};

// The base of document and report controllers, which open as tabs.
class ModelViewController {
public:
    explicit ModelViewController(AppDelegate& owner) : appDelegate(owner) {}
    virtual ~ModelViewController() = default;
    ModelViewController(const ModelViewController&) = delete;
    ModelViewController& operator=(const ModelViewController&) = delete;

    // The first fill, when the tab opens.
    virtual void prepareData() = 0;
    // The tab was closed.
    virtual void clearSelf() {}
    // The first moment of the report period that holds the date, by the settings' reportPeriod.
    qint64 getStartPeriodDateFromDate(qint64 date, const Params& params) const
    {
        return appDelegate.calendar.startOfReportPeriod(date, params.reportPeriod);
    }

    AppDelegate& appDelegate;
};

} // namespace zelvor
