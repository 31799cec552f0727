#pragma once

#include <QtCore/QString>

#include <string_view>
#include <variant>

struct sqlite3_stmt;

namespace zelvor {

// A value bound to a `?` mark: a whole number (a boolean as 0 or 1, a moment as seconds, a DocType as its
// raw value), a real or a text.
class Parameter {
public:
    Parameter(bool value) : m_value(qint64{value}) {}
    Parameter(int value) : m_value(qint64{value}) {}
    Parameter(qint64 value) : m_value(value) {}
    Parameter(double value) : m_value(value) {}
    Parameter(const QString& value) : m_value(value) {}
    template <class Enum>
        requires std::is_enum_v<Enum>
    Parameter(Enum value) : m_value(static_cast<qint64>(value))
    {
    }

    const std::variant<qint64, double, QString>& value() const { return m_value; }

private:
    std::variant<qint64, double, QString> m_value;
};

// A prepared statement at work, handed out by the connector: marks are bound from 1, columns of the
// current row read from 0. The one rule for a NULL, or for a value of another kind than asked: whole
// numbers read 0, texts are empty, reals read NaN (so a real column that holds no number shows as NaN).
class Statement {
public:
    explicit Statement(sqlite3_stmt* handle) : m_handle(handle) {}

    void bindInteger(int mark, qint64 value);
    void bindReal(int mark, double value); // NaN is stored as NULL
    void bindText(int mark, const QString& value);
    void bind(int mark, const Parameter& value);

    qint64 integer(int column) const;
    double real(int column) const;
    QString text(int column) const;
    bool isNull(int column) const;

private:
    sqlite3_stmt* m_handle;
};

} // namespace zelvor
