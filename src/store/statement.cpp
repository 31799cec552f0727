#include "store/statement.h"

#include <QtCore/QStringEncoder>

#include <sqlite3.h>

#include <array>
#include <cmath>
#include <limits>

namespace zelvor {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

void bindBytes(sqlite3_stmt* handle, int mark, const char* bytes, qsizetype size)
{
    sqlite3_bind_text64(handle, mark, bytes, static_cast<sqlite3_uint64>(size), SQLITE_TRANSIENT,
                        SQLITE_UTF8);
}

} // namespace

void Statement::bindInteger(int mark, qint64 value)
{
    sqlite3_bind_int64(m_handle, mark, value);
}

void Statement::bindReal(int mark, double value)
{
    if (std::isnan(value))
        sqlite3_bind_null(m_handle, mark);
    else
        sqlite3_bind_double(m_handle, mark, value);
}

void Statement::bindText(int mark, const QString& value)
{
    // Nearly every text of the books fits the buffer, so binding asks for no memory of its own.
    std::array<char, 1024> buffer;
    QStringEncoder encoder(QStringEncoder::Utf8);
    if (encoder.requiredSpace(value.size()) <= static_cast<qsizetype>(buffer.size())) {
        const char* end = encoder.appendToBuffer(buffer.data(), value);
        bindBytes(m_handle, mark, buffer.data(), end - buffer.data());
    } else {
        const QByteArray bytes = value.toUtf8();
        bindBytes(m_handle, mark, bytes.constData(), bytes.size());
    }
}

void Statement::bind(int mark, const Parameter& value)
{
    if (const auto* whole = std::get_if<qint64>(&value.value()))
        bindInteger(mark, *whole);
    else if (const auto* real = std::get_if<double>(&value.value()))
        bindReal(mark, *real);
    else
        bindText(mark, std::get<QString>(value.value()));
}

qint64 Statement::integer(int column) const
{
    return sqlite3_column_type(m_handle, column) == SQLITE_INTEGER ? sqlite3_column_int64(m_handle, column)
                                                                   : 0;
}

double Statement::real(int column) const
{
    const int type = sqlite3_column_type(m_handle, column);
    // A whole number is a number too: COUNT and SUM over whole columns answer one.
    if (type == SQLITE_FLOAT || type == SQLITE_INTEGER)
        return sqlite3_column_double(m_handle, column);
    return std::numeric_limits<double>::quiet_NaN();
}

QString Statement::text(int column) const
{
    if (sqlite3_column_type(m_handle, column) != SQLITE_TEXT)
        return {};
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(m_handle, column));
    const auto size = static_cast<std::size_t>(sqlite3_column_bytes(m_handle, column));
    const std::string_view stored(bytes, bytes ? size : 0);
    // fromUtf8 swallows a leading byte order mark; a stored text comes back as it was typed.
    if (stored.starts_with(byteOrderMark))
        return QChar(QChar::ByteOrderMark) +
               QString::fromUtf8(bytes + byteOrderMark.size(),
                                 static_cast<qsizetype>(stored.size() - byteOrderMark.size()));
    return QString::fromUtf8(stored.data(), static_cast<qsizetype>(stored.size()));
}

bool Statement::isNull(int column) const
{
    return sqlite3_column_type(m_handle, column) == SQLITE_NULL;
}

} // namespace zelvor
