#pragma once

#include <QtCore/QString>

#include <memory>

struct sqlite3;

namespace zelvor {

struct DatabaseCloser {
    void operator()(sqlite3* database) const;
};
using DatabaseHandle = std::unique_ptr<sqlite3, DatabaseCloser>;

enum class OpenMode {
    Write,
    Look,      // nothing can be written
    Unfinished // a new file that has no name yet: nothing of it need survive a crash
};

// An open project, or the reason why there is none.
struct OpenedDatabase {
    DatabaseHandle handle;
    QString problem;
};

// How long a connection waits for a lock, in milliseconds.
inline constexpr int defaultPatience = 5000;

// Marks the files of this program in their header: "ZLVR". The file type that is told to the desktop
// environment (resources/integration) names the same number.
inline constexpr int projectApplicationID = 0x5A4C5652;

// Opens the file with the settings that keep the books safe, and looks at its schema. `path` is absolute
// and free of links.
OpenedDatabase openDatabase(const QString& path, OpenMode mode);
// Copies all pages of the database into the empty file at `path`; answers why not, or nothing.
QString copyDatabase(sqlite3* from, const QString& path);

} // namespace zelvor
