#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace zelvor {

// What the file system says about a project's file, learnt without opening it: an open and close of ours
// beside the connection would drop the connection's locks.
struct FileFacts {
    QString path;    // absolute, with all links resolved
    QString problem; // why it is no file that can be opened; empty otherwise
    bool isWritable = false;
    bool hasOtherNames = false; // hard links
};

FileFacts inspectFile(const QString& path);
// True when something, be it a link to nothing, has that name.
bool nameIsTaken(const QString& path);
// Makes an empty file with a name of its own beside `path`; empty when that failed.
QString makeTemporaryBeside(const QString& path, unsigned mode);
// Brings a file that no connection holds to the disk and gives it its name, unless that is taken.
// Answers why not, or nothing.
QString moveIntoPlace(const QString& temporary, const QString& path);
// The permission bits of the file.
unsigned modeOf(const QString& path);
QByteArray fileName(const QString& path);

} // namespace zelvor
