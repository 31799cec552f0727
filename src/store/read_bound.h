#pragma once

#include <QtCore/QtGlobal>

struct sqlite3;

namespace zelvor {

// Ends a statement that no sound file asks for. Pages of a damaged or hostile file may lead to the same pages
// over and over, twenty levels deep: a walk through them would last for years and fill the memory. Over a
// sound file the steps of a statement, and its rows, are in proportion to the size of the file.
//
// A plain "SELECT count(*) FROM table" is one step, however long it lasts: count(id) is under the bound.
class ReadBound {
public:
    enum class Work { Opening, Reading };

    // Watches the connection as long as the bound lives; a statement beyond it fails.
    ReadBound(sqlite3* database, Work work) noexcept;
    ~ReadBound();
    ReadBound(const ReadBound&) = delete;
    ReadBound& operator=(const ReadBound&) = delete;

    // The next step is the first one of a statement.
    void restart() { m_steps = 0; }
    bool allowsRows(qint64 rows);

private:
    static int onProgress(void* bound);
    bool allowsSteps();
    qint64 fileSize() const;

    sqlite3* m_database;
    Work m_work;
    qint64 m_steps = 0;
    // Raised by the file's size when they are reached: asking for it at every row would double a long read.
    qint64 m_allowedSteps;
    qint64 m_allowedRows;
};

} // namespace zelvor
