#include "cli/operation_reader.h"

#include <QtCore/QJsonValue>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr double largestExactInteger = 9007199254740992.0; // 2^53
constexpr Decimal largestNumber{10'000'000'000'000};

constexpr qint64 earliestMoment = -2'208'988'800; // 1900
constexpr qint64 latestMoment = 253'402'300'799;  // 9999

bool isAccepted(const Decimal& number)
{
    return !number.isNaN() && number.absolute() <= largestNumber;
}

} // namespace

Decimal acceptedNumber(QStringView text)
{
    const Decimal number = Decimal::fromText(text);
    return isAccepted(number) ? number : Decimal::nan();
}

bool isStorableText(const QString& text)
{
    return !text.contains(QChar(u'\0')) && text.isValidUtf16();
}

bool isAcceptedMoment(qint64 moment)
{
    return moment >= earliestMoment && moment <= latestMoment;
}

std::optional<qint64> momentFromText(const QString& text, const Calendar& calendar)
{
    const bool dayOnly = text.size() == 10;
    const QDate date = QDate::fromString(text.left(10), u"yyyy-MM-dd"_s);
    const QTime time = dayOnly ? QTime(0, 0) : QTime::fromString(text.mid(11), u"HH:mm:ss"_s);
    if (!date.isValid() || !time.isValid() || (!dayOnly && text[10] != u'T'))
        return std::nullopt;
    return calendar.moment(date, time);
}

QString OperationReader::text(const QString& key)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isString())
        wrongKind(key, "a text");
    else if (!isStorableText(found.toString()))
        wrongKind(key, "a text of whole characters, without NUL");
    return found.toString();
}

bool OperationReader::boolean(const QString& key, bool absent)
{
    if (!has(key))
        return absent;
    const QJsonValue found = value(key);
    if (!found.isBool())
        wrongKind(key, "true or false");
    return found.toBool();
}

qint64 OperationReader::integer(const QString& key, qint64 absent)
{
    if (!has(key))
        return absent;
    const QJsonValue found = value(key);
    const double number = found.toDouble(std::nan(""));
    if (!(std::abs(number) <= largestExactInteger) || number != std::trunc(number)) {
        wrongKind(key, "a whole number");
        return absent;
    }
    return found.toInteger();
}

Decimal OperationReader::number(const QString& key, const Decimal& absent)
{
    if (!has(key))
        return absent;
    const QJsonValue found = value(key);
    Decimal number = Decimal::nan();
    if (found.isDouble())
        number = Decimal::fromDouble(found.toDouble());
    else if (found.isString())
        number = Decimal::fromText(found.toString());
    if (isAccepted(number))
        return number;
    wrongKind(key, "a number like 12.50, at most 10000000000000");
    return absent;
}

qint64 OperationReader::moment(const QString& key, const Calendar& calendar, qint64 absent)
{
    if (!has(key))
        return absent;
    const QJsonValue found = value(key);
    const std::optional<qint64> moment =
        found.isDouble() ? integer(key, absent) : momentFromText(found.toString(), calendar);
    if (moment && isAcceptedMoment(*moment))
        return *moment;
    wrongKind(key, "a moment: seconds since 1970, \"2026-10-05\" or \"2026-10-05T09:30:00\"");
    return absent;
}

QJsonObject OperationReader::object(const QString& key)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isObject())
        wrongKind(key, "an object");
    return found.toObject();
}

QJsonArray OperationReader::array(const QString& key)
{
    const QJsonValue found = value(key);
    if (!found.isUndefined() && !found.isArray())
        wrongKind(key, "a list");
    return found.toArray();
}

QJsonValue OperationReader::value(const QString& key)
{
    m_taken.insert(key);
    return m_object.value(key);
}

void OperationReader::fail(const QString& sentence)
{
    if (m_error.isEmpty())
        m_error = m_where + u": "_s + sentence;
}

QString OperationReader::error()
{
    for (const QString& key : m_object.keys()) {
        if (!m_taken.contains(key))
            fail(u"unknown key '"_s + key + u'\'');
    }
    return m_error;
}

void OperationReader::wrongKind(const QString& key, const char* wanted)
{
    fail(u'\'' + key + u"' must be "_s + QLatin1StringView(wanted));
}

} // namespace zelvor
