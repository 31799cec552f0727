#include "cli/csv_reader.h"

#include <QtCore/QStringDecoder>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

// Where the record ends: before the carriage return of a file with Windows lines.
static qsizetype endOf(const QByteArray& record)
{
    return record.endsWith('\r') ? record.size() - 1 : record.size();
}

bool CsvReader::readLine(QByteArray& text)
{
    switch (m_lines.next(text)) {
    case LineReader::Result::Line:
        return true;
    case LineReader::Result::TooLong:
        m_error = u"the line is longer than 16 MiB"_s;
        return false;
    case LineReader::Result::Failed:
        m_error = u"the file cannot be read any further"_s;
        return false;
    case LineReader::Result::End:
        break;
    }
    return false;
}

bool CsvReader::next(QStringList& fields)
{
    QByteArray record;
    do {
        if (!readLine(record))
            return false;
        m_recordLine = m_lines.number();
        if (m_recordLine == 1 && record.startsWith("\xEF\xBB\xBF"))
            record.remove(0, 3);
    } while (record.trimmed().isEmpty());
    return parse(record, fields);
}

// False when the record is no CSV.
bool CsvReader::parse(QByteArray& record, QStringList& fields)
{
    fields.clear();
    for (qsizetype place = 0;; ++place) { // over the comma
        QByteArray field;
        if (place < record.size() && record[place] == '"') {
            if (!takeQuoted(record, place, field))
                return false;
        } else {
            const qsizetype comma = record.indexOf(',', place);
            const qsizetype end = comma < 0 ? endOf(record) : comma;
            field = record.mid(place, end - place);
            place = end;
        }
        QStringDecoder decoder(QStringDecoder::Utf8);
        fields.append(decoder(field));
        if (decoder.hasError()) {
            m_error = u"the text is no UTF-8"_s;
            return false;
        }
        if (place >= endOf(record))
            return true;
    }
}

// From the opening quote to behind the closing one, over as many lines as it takes.
bool CsvReader::takeQuoted(QByteArray& record, qsizetype& place, QByteArray& field)
{
    for (++place;; ++place) {
        if (place >= record.size() && !appendLine(record))
            return false;
        if (record[place] != '"')
            field += record[place];
        else if (place + 1 < record.size() && record[place + 1] == '"')
            field += record[++place];
        else
            break;
    }
    if (++place >= endOf(record) || record[place] == ',')
        return true;
    m_error = u"a quoted field ends inside the text"_s;
    return false;
}

bool CsvReader::appendLine(QByteArray& record)
{
    QByteArray more;
    if (record.size() > LineReader::longestLine || !readLine(more)) {
        m_error = u"a quoted field does not end"_s;
        return false;
    }
    record.append('\n').append(more);
    return true;
}

} // namespace zelvor
