#include "store/project_lock.h"

#include "core/localized.h"

#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

ProjectLock::ProjectLock(const QString& projectPath) : m_path(projectPath + u".lock"_s), m_file(m_path)
{
    m_file.setStaleLockTime(0); // a long day's work is no reason to lose the lock
}

ProjectLock::Result ProjectLock::take()
{
    if (m_file.tryLock(0))
        return Result::Taken;
    switch (m_file.error()) {
    case QLockFile::LockFailedError:
        return Result::HeldByOther;
    case QLockFile::PermissionError:
        return Result::NoPermission;
    default:
        return Result::Failed;
    }
}

QString ProjectLock::holderText() const
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!m_file.getLockInfo(&process, &host, &program))
        return localized(
                   "in use: its lock %1 cannot be read; remove that file if nobody works with the project")
            .arg(m_path);
    const QDateTime since = QFileInfo(m_path).lastModified();
    return localized("in use by %1 (process %2 on %3) since %4")
        .arg(program, QString::number(process), host, since.toString(u"yyyy-MM-dd HH:mm"_s));
}

} // namespace zelvor
