#include "cli/json_writer.h"

#include <array>
#include <charconv>
#include <cmath>

namespace zelvor {

JsonWriter& JsonWriter::key(const QString& name)
{
    separate();
    writeText(name);
    m_text += ':';
    m_needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::value(bool value)
{
    separate();
    m_text += value ? "true" : "false";
    return *this;
}

JsonWriter& JsonWriter::value(qint64 value)
{
    separate();
    m_text += QByteArray::number(value);
    return *this;
}

JsonWriter& JsonWriter::value(double value)
{
    separate();
    if (!std::isfinite(value)) {
        m_text += "null";
        return *this;
    }
    std::array<char, 32> digits{};
    const double shown = value == 0 ? 0 : value; // no "-0"
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), shown);
    m_text.append(digits.data(), end - digits.data());
    return *this;
}

JsonWriter& JsonWriter::value(const QString& value)
{
    separate();
    writeText(value);
    return *this;
}

JsonWriter& JsonWriter::value(const QVariant& cell)
{
    switch (cell.typeId()) {
    case QMetaType::Bool:
        return value(cell.toBool());
    case QMetaType::Int:
    case QMetaType::LongLong:
        return value(cell.toLongLong());
    case QMetaType::Double:
        return value(cell.toDouble());
    default:
        return value(cell.toString());
    }
}

JsonWriter& JsonWriter::open(char bracket)
{
    separate();
    m_text += bracket;
    ++m_depth;
    m_needsComma = false;
    return *this;
}

JsonWriter& JsonWriter::close(char bracket)
{
    m_text += bracket;
    m_needsComma = --m_depth > 0;
    return *this;
}

void JsonWriter::separate()
{
    if (m_needsComma)
        m_text += ',';
    m_needsComma = true;
}

void JsonWriter::writeText(const QString& text)
{
    m_text += '"';
    for (const char c : text.toUtf8()) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (m_text += '\\') += c;
        else if (c == '\n')
            m_text += "\\n";
        else if (c == '\t')
            m_text += "\\t";
        else if (byte < 0x20)
            m_text += "\\u00" + QByteArray(1, c).toHex();
        else
            m_text += c;
    }
    m_text += '"';
}

} // namespace zelvor
