#pragma once

#include "core/calendar.h"
#include "core/outlets.h"

#include <QtWidgets/QWidget>

class QPushButton;

namespace zelvor {

class DayField;

// "From [date] To [date] [This period]": the period of a journal or a report. The pickers hold days: what
// the user chooses is the midnight that begins the day. Both ends are the controller's own moments, so the
// day of "To" is not in the period; the bar says so.
class PeriodBar : public QWidget {
    Q_OBJECT

public:
    struct Outlets {
        DatePicker& dateFrom;
        Label& dateFromLabel;
        DatePicker& dateTo;
        Label& dateToLabel;
    };

    PeriodBar(const Outlets& outlets, const Calendar& calendar, QWidget* parent = nullptr);

    // What is being typed counts from now on.
    void commit();
    QWidget* firstField() const;
    QWidget* lastField() const;

Q_SIGNALS:
    void currentPeriodChosen();
    // Return was pressed in a date.
    void submitted();

private:
    DayField* addDay(DatePicker& day, Label& label, const QString& accessibleName);
    void addNote(Label& label);

    const Calendar& m_calendar;
    DayField* m_from;
    DayField* m_to;
    QPushButton* m_current;
};

} // namespace zelvor
