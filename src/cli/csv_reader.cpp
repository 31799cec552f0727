#include "cli/csv_reader.h"

#include <QtCore/QStringDecoder>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

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

    bool quoteOpen = false;
    while (!parse(record, fields, quoteOpen)) {
        QByteArray more;
        if (!quoteOpen)
            return false;
        if (record.size() > LineReader::longestLine || !readLine(more)) {
            m_error = u"a quoted field does not end"_s;
            return false;
        }
        record += '\n' + more;
    }
    return true;
}

// False when the record is not whole (quoteOpen) or no CSV.
bool CsvReader::parse(const QByteArray& text, QStringList& fields, bool& quoteOpen)
{
    fields.clear();
    quoteOpen = false;
    QByteArray line = text;
    if (line.endsWith('\r'))
        line.chop(1);
    qsizetype place = 0;
    do {
        QByteArray field;
        if (place < line.size() && line[place] == '"') {
            for (++place;; ++place) {
                if (place >= line.size()) {
                    quoteOpen = true;
                    return false;
                }
                if (line[place] != '"')
                    field += line[place];
                else if (place + 1 < line.size() && line[place + 1] == '"')
                    field += line[++place];
                else
                    break;
            }
            if (++place < line.size() && line[place] != ',') {
                m_error = u"a quoted field ends inside the text"_s;
                return false;
            }
        } else {
            const qsizetype comma = line.indexOf(',', place);
            field = line.mid(place, comma < 0 ? -1 : comma - place);
            place += field.size();
        }
        QStringDecoder decoder(QStringDecoder::Utf8);
        fields.append(decoder(field));
        if (decoder.hasError()) {
            m_error = u"the text is no UTF-8"_s;
            return false;
        }
    } while (place < line.size() ? (++place, true) : false);
    return true;
}

} // namespace zelvor
