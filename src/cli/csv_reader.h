#pragma once

#include "cli/line_reader.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zelvor {

// Reads the records of a CSV file as RFC 4180 has them: fields parted by commas, quoted where they hold a
// comma, a quote (doubled) or a line break. UTF-8.
class CsvReader {
public:
    explicit CsvReader(int file) : m_lines(file) {}

    // The fields of the next record. False at the end, and where the file is no CSV: then error() says why.
    bool next(QStringList& fields);
    qint64 lineNumber() const { return m_recordLine; } // where the record begins, from 1
    const QString& error() const { return m_error; }

private:
    bool readLine(QByteArray& text);
    bool parse(QByteArray& record, QStringList& fields);
    bool takeQuoted(QByteArray& record, qsizetype& place, QByteArray& field);
    bool appendLine(QByteArray& record);

    LineReader m_lines;
    qint64 m_recordLine = 0;
    QString m_error;
};

} // namespace zelvor
