#include "store/project_file.h"

#include "core/localized.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

QString systemText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

QByteArray folderOf(const QString& path)
{
    return fileName(QFileInfo(path).absolutePath());
}

bool bringToDisk(const QByteArray& name, int flags)
{
    const int file = ::open(name.constData(), flags | O_CLOEXEC);
    if (file < 0)
        return false;
    const bool done = ::fsync(file) == 0;
    ::close(file);
    return done;
}

// 0, or the error number. A name that is taken stays as it is.
int renameWithoutOverwriting(const QByteArray& from, const QByteArray& to)
{
    if (::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE) == 0)
        return 0;
    if (errno != EINVAL && errno != ENOSYS)
        return errno;
    // A file system that cannot rename so can still refuse to link over a name.
    if (::link(from.constData(), to.constData()) != 0)
        return errno;
    ::unlink(from.constData());
    return 0;
}

} // namespace

QByteArray fileName(const QString& path)
{
    return QFile::encodeName(path);
}

FileFacts inspectFile(const QString& path)
{
    FileFacts facts;
    facts.path = QFileInfo(path).canonicalFilePath();
    struct stat status {};
    if (path.isEmpty() || path.contains(QChar::Null) || facts.path.isEmpty() ||
        ::stat(fileName(facts.path).constData(), &status) != 0)
        facts.problem = localized("there is no such file");
    else if (S_ISDIR(status.st_mode))
        facts.problem = localized("it is a folder");
    else if (!S_ISREG(status.st_mode))
        facts.problem = localized("it is not a regular file");
    else if (::access(fileName(facts.path).constData(), R_OK) != 0)
        facts.problem = localized("you may not read it");
    if (!facts.problem.isEmpty())
        return facts;
    facts.hasOtherNames = status.st_nlink > 1;
    facts.isWritable = ::access(fileName(facts.path).constData(), W_OK) == 0 &&
                       ::access(folderOf(facts.path).constData(), W_OK) == 0;
    return facts;
}

bool nameIsTaken(const QString& path)
{
    struct stat status {};
    return ::lstat(fileName(path).constData(), &status) == 0;
}

QString makeTemporaryBeside(const QString& path, unsigned mode)
{
    const QFileInfo info(path);
    for (int attempt = 0; attempt < 10; ++attempt) {
        const QString number = QString::number(QRandomGenerator::system()->generate64(), 36);
        const QString name = u"%1/.%2.%3.new"_s.arg(info.absolutePath(), info.fileName(), number);
        const int file =
            ::open(fileName(name).constData(), O_CREAT | O_EXCL | O_WRONLY | O_NOFOLLOW | O_CLOEXEC, mode);
        if (file >= 0) {
            ::close(file);
            return name;
        }
        if (errno != EEXIST)
            break;
    }
    return {};
}

QString moveIntoPlace(const QString& temporary, const QString& path)
{
    if (!bringToDisk(fileName(temporary), O_RDWR))
        return localized("it could not be brought to the disk");
    const int error = renameWithoutOverwriting(fileName(temporary), fileName(path));
    if (error == EEXIST)
        return localized("there is already a file of that name");
    if (error != 0)
        return systemText(error);
    bringToDisk(folderOf(path), O_RDONLY | O_DIRECTORY);
    return {};
}

unsigned modeOf(const QString& path)
{
    struct stat status {};
    return ::stat(fileName(path).constData(), &status) == 0 ? status.st_mode & 0777U : 0600U;
}

} // namespace zelvor
