#pragma once

#include "core/calendar.h"
#include "core/decimal.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace zelvor {

// Takes the values of one JSON object by key, strictly: a value of the wrong kind and a key that nobody asked
// for are errors. The first error is kept; nothing may be written when there is one.
class OperationReader {
public:
    OperationReader(const QJsonObject& object, QString where) : m_object(object), m_where(std::move(where)) {}

    bool has(const QString& key) const { return m_object.contains(key); }
    // The value, or the given default when the key is absent.
    QString text(const QString& key);
    bool boolean(const QString& key, bool absent);
    qint64 integer(const QString& key, qint64 absent); // whole numbers that a double holds exactly
    // A JSON number or a decimal text; never NaN, never beyond ten million million either way.
    Decimal number(const QString& key, const Decimal& absent);
    // Whole seconds since 1970, or local time as "2026-10-05" or "2026-10-05T09:30:00"; of the years 1900 to
    // 9999.
    qint64 moment(const QString& key, const Calendar& calendar, qint64 absent);
    QJsonObject object(const QString& key);
    QJsonArray array(const QString& key);
    QJsonValue value(const QString& key);

    void fail(const QString& sentence); // keeps the first one
    // The first error, unknown keys included; empty when all is well. To be asked when every key was taken.
    QString error();

private:
    void wrongKind(const QString& key, const char* wanted);

    QJsonObject m_object;
    QString m_where; // "document", "rows[2]": in front of the error
    QSet<QString> m_taken;
    QString m_error;
};

// A number as the command line takes it: plain decimal text, finite and at most ten million million either
// way (beyond that a stored real loses cents); NaN otherwise.
Decimal acceptedNumber(QStringView text);
// Whether the text can be stored and read back as it is: no NUL, no half of a surrogate pair.
bool isStorableText(const QString& text);
bool isAcceptedMoment(qint64 moment); // of the years 1900 to 9999
// Local time as "2026-10-05" or "2026-10-05T09:30:00"; none for anything else.
std::optional<qint64> momentFromText(const QString& text, const Calendar& calendar);

} // namespace zelvor
