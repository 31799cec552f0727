#include "cli/delivery.h"

#include "cli/command.h"
#include "cli/output.h"

#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>

#include <cerrno>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// The finished file takes the place of the old one, so a device must not stand there.
int deliverFile(const QString& path, const std::function<bool(const Sink&)>& write)
{
    if (path.isEmpty())
        return badUsage(u"cannot write: the file has no name"_s);
    if (const QFileInfo old(path); old.exists() && !old.isFile() && !old.isDir())
        return badUsage(u"cannot write "_s + path + u": it is not a regular file"_s);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return badUsage(u"cannot write "_s + path + u": "_s + file.errorString());
    bool taken = true;
    const bool written = write([&](const QByteArray& piece) {
        taken = taken && file.write(piece) == piece.size();
        return taken;
    });
    if (taken && !written)
        return exitRefused;
    // What is still buffered is written by flush(), whose failure commit() would not see.
    if (taken && file.flush() && file.commit())
        return exitDone;
    writeError(u"cannot write "_s + path + u": "_s + file.errorString());
    return exitRefused;
}

int deliverOutput(const std::function<bool(const Sink&)>& write)
{
    int error = 0;
    const bool written = write([&](const QByteArray& piece) {
        const bool taken = writeOutput(piece);
        error = taken ? 0 : errno;
        return taken;
    });
    if (error != 0)
        writeError(u"cannot write to standard output: "_s + QString::fromLocal8Bit(std::strerror(error)));
    return written ? exitDone : exitRefused;
}

} // namespace

int deliver(const std::optional<QString>& path, const std::function<bool(const Sink&)>& write)
{
    return path ? deliverFile(*path, write) : deliverOutput(write);
}

} // namespace zelvor
