#include "desktop/period_bar.h"

#include "core/localized.h"
#include "desktop/binding.h"
#include "desktop/day_field.h"
#include "desktop/measures.h"
#include "desktop/theme.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// A picker of days: the outlet's moment is the midnight that begins the day, in the calendar's zone.
void bindDay(DatePicker& outlet, DayField* field, const Calendar& calendar)
{
    field->setObjectName(outlet.name());
    const QPointer<DayField> shown(field);
    const auto show = [&outlet, shown, &calendar] {
        if (!shown)
            return;
        shown->setDay(calendar.dateTime(outlet.moment()).date());
        shown->setEnabled(outlet.enabled());
    };
    outlet.onChange(show);
    show();
    QObject::connect(field, &DayField::dayChosen, field, [&outlet, &calendar](const QDate& day) {
        outlet.setMoment(calendar.startOfDay({day.year(), day.month(), day.day()}));
        outlet.userChanged();
    });
}

} // namespace

PeriodBar::PeriodBar(const Outlets& outlets, const Calendar& calendar, QWidget* parent)
    : QWidget(parent), m_calendar(calendar)
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(measures::labelGap);
    m_from = addDay(outlets.dateFrom, outlets.dateFromLabel, localized("From"));
    row->addSpacing(measures::rowGap);
    m_to = addDay(outlets.dateTo, outlets.dateToLabel, localized("To, this day not included"));
    addNote(outlets.dateToLabel);
    row->addSpacing(measures::rowGap);
    m_current = new QPushButton(localized("This period"), this);
    m_current->setObjectName(u"currentPeriodButton"_s);
    m_current->setAutoDefault(false);
    m_current->setToolTip(localized("Start at the first day of the report period"));
    connect(m_current, &QPushButton::clicked, this, &PeriodBar::currentPeriodChosen);
    row->addWidget(m_current);
}

DayField* PeriodBar::addDay(DatePicker& day, Label& label, const QString& accessibleName)
{
    auto* const caption = new QLabel(this);
    bind(label, caption);
    auto* const field = new DayField(this);
    field->setAccessibleName(accessibleName);
    bindDay(day, field, m_calendar);
    caption->setBuddy(field);
    connect(field, &QLineEdit::returnPressed, this, [this, field] {
        if (field->commit()) // nothing is computed with another date than the one that was meant
            Q_EMIT submitted();
    });
    layout()->addWidget(caption);
    layout()->addWidget(field);
    return field;
}

// The red of dates that stand the wrong way round is not the only sign of it.
void PeriodBar::addNote(Label& label)
{
    auto* const note = new QLabel(this);
    note->setObjectName(u"periodNote"_s);
    note->setFont(noteFont(font()));
    note->setForegroundRole(QPalette::PlaceholderText);
    layout()->addWidget(note);
    const QPointer<QLabel> shown(note);
    const auto tell = [shown, &label] {
        if (shown)
            shown->setText(label.color() == redColor ? localized("(before the start)")
                                                     : localized("(not included)"));
    };
    label.onChange(tell);
    tell();
}

void PeriodBar::commit()
{
    m_from->commit();
    m_to->commit();
}

QWidget* PeriodBar::firstField() const
{
    return m_from;
}

QWidget* PeriodBar::lastField() const
{
    return m_current;
}

} // namespace zelvor
