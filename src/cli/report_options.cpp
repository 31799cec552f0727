#include "cli/report_options.h"

#include "cli/operation_reader.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void ReportOptions::fail(const QString& sentence)
{
    if (m_error.isEmpty())
        m_error = u"report: "_s + sentence;
}

void ReportOptions::enterPeriod(DatePicker& dateFrom, DatePicker& dateTo)
{
    enterMoment(u"--from"_s, true, dateFrom);
    enterMoment(u"--to"_s, false, dateTo);
}

std::optional<ReportOptions::Given> ReportOptions::given(const QString& option)
{
    const std::optional<QString> text = m_arguments.value(option);
    if (!text)
        return std::nullopt;
    if (text->startsWith(u'@')) {
        bool isNumber = false;
        const qint64 seconds = text->mid(1).toLongLong(&isNumber);
        if (isNumber && isAcceptedMoment(seconds))
            return Given{seconds, false};
    } else if (const std::optional<qint64> moment = momentFromText(*text, m_calendar)) {
        const bool isDay = text->size() == 10;
        return Given{*moment, isDay};
    }
    fail(option + u" must be a day like 2026-10-05, or @ and seconds since 1970"_s);
    return std::nullopt;
}

void ReportOptions::enterMoment(const QString& option, bool isStart, DatePicker& picker)
{
    const std::optional<Given> moment = given(option);
    if (!moment)
        return;
    picker.setMoment(moment->isDay ? m_calendar.normalizedDate(moment->moment, isStart) : moment->moment);
    picker.userChanged();
}

void ReportOptions::enterDate(DatePicker& date)
{
    const std::optional<Given> moment = given(u"--date"_s);
    if (!moment)
        return;
    date.setMoment(moment->moment);
    if (moment->isDay)
        date.userChanged();
}

std::vector<qint64> ReportOptions::ids(const QString& option)
{
    std::vector<qint64> ids;
    const std::optional<QString> text = m_arguments.value(option);
    if (!text)
        return ids;
    for (const QString& word : text->split(u',')) {
        bool isNumber = false;
        const qint64 id = word.toLongLong(&isNumber);
        if (!isNumber || id <= 0)
            fail(option + u" must be a list of ids like 1,2,3"_s);
        ids.push_back(id);
    }
    return ids;
}

qint64 ReportOptions::id()
{
    const std::optional<QString> text = m_arguments.value(u"--id"_s);
    bool isNumber = false;
    const qint64 id = text.value_or(QString()).toLongLong(&isNumber);
    if (!text)
        fail(u"--id is missing: whose report is it to be?"_s);
    else if (!isNumber || id <= 0)
        fail(u"--id must be an id like 1"_s);
    return m_error.isEmpty() ? id : 0;
}

int ReportOptions::choice(const QString& option, const QStringList& words)
{
    const QString word = m_arguments.value(option).value_or(words.first());
    const auto place = static_cast<int>(words.indexOf(word));
    if (place < 0)
        fail(option + u" must be one of "_s + words.join(u", "_s));
    return place;
}

QStringList ReportOptions::words(const QString& option, const QStringList& known)
{
    const std::optional<QString> text = m_arguments.value(option);
    const QStringList words = text ? text->split(u',') : QStringList();
    for (const QString& word : words) {
        if (!known.contains(word))
            fail(option + u" takes "_s + known.join(u", "_s));
    }
    return words;
}

} // namespace zelvor
