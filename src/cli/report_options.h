#pragma once

#include "cli/arguments.h"
#include "core/calendar.h"
#include "core/outlets.h"

#include <optional>
#include <vector>

namespace zelvor {

// Reads the options that reports share. The first one that makes no sense is kept; nothing may be computed
// when there is one.
class ReportOptions {
public:
    ReportOptions(const Arguments& arguments, const Calendar& calendar)
        : m_arguments(arguments), m_calendar(calendar)
    {}

    // --from and --to: a day means its first moment, and for the end the midnight that ends it; local time,
    // or "@SECONDS", is taken as it is. Absent ones leave the picker as it stands.
    void enterPeriod(DatePicker& dateFrom, DatePicker& dateTo);
    // --date: a day is picked as a person picks it; local time, or "@SECONDS", is taken as it is. When absent
    // the picker stays as it stands.
    void enterDate(DatePicker& date);
    std::vector<qint64> ids(const QString& option);
    // --id, which the report cannot do without; 0 when it makes no sense.
    qint64 id();
    // The place of the option's value among the words; the first one when it is absent.
    int choice(const QString& option, const QStringList& words);
    // Words parted by commas, each of them known.
    QStringList words(const QString& option, const QStringList& known);

    void fail(const QString& sentence);
    const QString& error() const { return m_error; }

private:
    // What an option says; a day is its first moment then.
    struct Given {
        qint64 moment = 0;
        bool isDay = false;
    };
    std::optional<Given> given(const QString& option);
    void enterMoment(const QString& option, bool isStart, DatePicker& picker);

    const Arguments& m_arguments;
    const Calendar& m_calendar;
    QString m_error;
};

} // namespace zelvor
