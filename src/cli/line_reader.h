#pragma once

#include <QtCore/QByteArray>

namespace zelvor {

// Reads lines from an open file as they come: a line that stands in a pipe is handed out at once, whether or
// not another one follows.
class LineReader {
public:
    static constexpr qsizetype longestLine = 16 * 1024 * 1024; // bytes

    explicit LineReader(int file) : m_file(file) {}

    enum class Result { Line, TooLong, End, Failed };
    // The next line without its line feed. Of a line that is too long only the number is known.
    Result next(QByteArray& line);
    qint64 number() const { return m_number; } // of the line handed out last, from 1

private:
    bool fill();

    int m_file;
    qint64 m_number = 0;
    QByteArray m_buffer;
    qsizetype m_place = 0;
    bool m_failed = false;
};

} // namespace zelvor
