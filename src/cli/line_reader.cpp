#include "cli/line_reader.h"

#include <cerrno>
#include <unistd.h>

namespace zelvor {

// False at the end of the file, or when it cannot be read.
bool LineReader::fill()
{
    m_buffer.resize(64 * 1024);
    m_place = 0;
    ssize_t count = -1;
    do
        count = ::read(m_file, m_buffer.data(), static_cast<std::size_t>(m_buffer.size()));
    while (count < 0 && errno == EINTR);
    m_failed = count < 0;
    m_buffer.resize(count > 0 ? count : 0);
    return count > 0;
}

LineReader::Result LineReader::next(QByteArray& line)
{
    line.clear();
    bool tooLong = false;
    bool begun = false;
    for (;;) {
        if (m_place == m_buffer.size() && !fill()) {
            if (m_failed || !begun)
                return m_failed ? Result::Failed : Result::End;
            break; // a last line without a line feed
        }
        if (!begun)
            ++m_number;
        begun = true;
        const qsizetype feed = m_buffer.indexOf('\n', m_place);
        const qsizetype end = feed < 0 ? m_buffer.size() : feed;
        tooLong = tooLong || line.size() + end - m_place > longestLine;
        if (tooLong)
            line = QByteArray(); // gives its memory back
        else
            line.append(m_buffer.constData() + m_place, end - m_place);
        m_place = feed < 0 ? end : end + 1;
        if (feed >= 0)
            break;
    }
    return tooLong ? Result::TooLong : Result::Line;
}

} // namespace zelvor
