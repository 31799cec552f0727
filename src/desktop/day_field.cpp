#include "desktop/day_field.h"

#include "core/localized.h"
#include "desktop/cell_text.h"
#include "desktop/icons.h"
#include "desktop/measures.h"
#include "desktop/theme.h"

#include <QtCore/QRegularExpression>
#include <QtGui/QAction>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QTextCharFormat>
#include <QtWidgets/QCalendarWidget>
#include <QtWidgets/QMenu>
#include <QtWidgets/QWidgetAction>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// "dmy" or "mdy" or "ymd", as the locale's short date has its parts.
QString orderOfParts(const QLocale& locale)
{
    QString order;
    for (const QChar letter : locale.dateFormat(QLocale::ShortFormat).toLower()) {
        if ((letter == u'd' || letter == u'm' || letter == u'y') && !order.contains(letter))
            order += letter;
    }
    return order.size() == 3 ? order : u"dmy"_s;
}

// Digits without separators: two for the day, two for the month, the rest for the year.
QStringList cutDigits(const QString& digits, const QString& order)
{
    if (digits.size() != 6 && digits.size() != 8)
        return {digits};
    QStringList parts;
    qsizetype from = 0;
    for (const QChar part : order) {
        const qsizetype size = part == u'y' ? digits.size() - 4 : 2;
        parts << digits.mid(from, size);
        from += size;
    }
    return parts;
}

int yearOf(const QString& part)
{
    const int year = part.toInt();
    return part.size() <= 2 ? 2000 + year : year;
}

} // namespace

QDate dayFromUserText(const QString& text, const QLocale& locale, const QDate& shown)
{
    static const QRegularExpression dateLike(u"^\\d+([^\\w]+\\d+){0,2}[^\\w]*$"_s);
    static const QRegularExpression separator(u"[^\\d]+"_s);
    if (!dateLike.match(text.trimmed()).hasMatch())
        return {};
    QString order = orderOfParts(locale);
    QStringList parts = text.split(separator, Qt::SkipEmptyParts);
    if (parts.size() == 1)
        parts = cutDigits(parts.first(), order);
    if (parts.size() == 3 && parts.first().size() == 4)
        order = u"ymd"_s;
    if (parts.size() == 2)
        order.remove(u'y');
    if (parts.size() == 1)
        order = u"d"_s;
    int year = shown.year();
    int month = shown.month();
    int day = shown.day();
    for (qsizetype i = 0; i < order.size(); ++i) {
        if (order[i] == u'y')
            year = yearOf(parts[i]);
        else
            (order[i] == u'm' ? month : day) = parts[i].toInt();
    }
    const QDate meant(year, month, day);
    return year >= 1900 && year <= 9999 ? meant : QDate();
}

DayField::DayField(QWidget* parent) : QLineEdit(parent)
{
    auto* const pick = addAction(lineIcon(u"calendar"_s), QLineEdit::TrailingPosition);
    pick->setText(localized("Pick from a calendar"));
    pick->setToolTip(localized("Pick from a calendar (Alt+Down)"));
    connect(pick, &QAction::triggered, this, &DayField::openCalendar);
    connect(this, &QLineEdit::textEdited, this,
            [this](const QString& text) { showWrong(!dayFromUserText(text, QLocale(), m_day).isValid()); });
    connect(this, &QLineEdit::editingFinished, this, &DayField::commit);
}

void DayField::setDay(const QDate& day)
{
    m_day = day;
    setText(QLocale().toString(day, shortDateFormat(QLocale())));
    showWrong(false);
}

bool DayField::commit()
{
    if (!isModified())
        return true;
    const QDate typed = dayFromUserText(text(), QLocale(), m_day);
    typed.isValid() ? choose(typed) : setDay(m_day);
    return typed.isValid();
}

void DayField::choose(const QDate& day)
{
    const bool changed = day != m_day;
    setDay(day);
    if (changed)
        Q_EMIT dayChosen(day);
}

void DayField::openCalendar()
{
    commit(); // it opens at what was typed
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    auto* const calendar = new QCalendarWidget(menu);
    calendar->setObjectName(u"calendar"_s);
    calendar->setAccessibleName(accessibleName());
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setSelectedDate(m_day);
    QTextCharFormat weekend; // the platform's red is too dim on dark ground
    weekend.setForeground(textColor(redColor, QGuiApplication::palette()));
    for (const auto day : {Qt::Saturday, Qt::Sunday})
        calendar->setWeekdayTextFormat(day, weekend);
    auto* const holder = new QWidgetAction(menu);
    holder->setDefaultWidget(calendar);
    menu->addAction(holder);
    const auto take = [this, menu](const QDate& day) {
        menu->close();
        choose(day);
        setFocus(Qt::PopupFocusReason);
    };
    connect(calendar, &QCalendarWidget::clicked, menu, take);
    connect(calendar, &QCalendarWidget::activated, menu, take);
    menu->popup(mapToGlobal(QPoint(0, height())));
    calendar->setFocus(Qt::PopupFocusReason);
}

void DayField::keyPressEvent(QKeyEvent* event)
{
    const bool down = event->key() == Qt::Key_Down;
    if (down && event->modifiers() == Qt::AltModifier) {
        openCalendar();
        return;
    }
    if (down || event->key() == Qt::Key_Up) {
        commit();
        choose(m_day.addDays(down ? -1 : 1));
        selectAll();
        return;
    }
    if (event->key() == Qt::Key_Escape && isModified()) {
        setDay(m_day);
        selectAll();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

// The date is there to be overwritten, also after a click.
void DayField::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() != Qt::MouseFocusReason)
        return; // Tab selects by itself
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (hasFocus())
                selectAll();
        },
        Qt::QueuedConnection);
}

QSize DayField::sizeHint() const
{
    const QSize usual = QLineEdit::sizeHint();
    int text = fontMetrics().horizontalAdvance(u"00.00.0000"_s);
    const QLocale locale;
    for (int month = 1; month <= 12; ++month) { // a region may write its name
        const QString day = locale.toString(QDate(2000, month, 28), shortDateFormat(locale));
        text = std::max(text, fontMetrics().horizontalAdvance(day));
    }
    return {text + measures::menuIcon + 5 * measures::labelGap, usual.height()};
}

void DayField::showWrong(bool wrong)
{
    QPalette ink; // what it does not set follows the desktop's
    if (wrong)
        ink.setColor(QPalette::Text, textColor(redColor, ink));
    setPalette(ink);
    setToolTip(wrong ? localized("This is not a date.") : QString());
}

} // namespace zelvor
