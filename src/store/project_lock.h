#pragma once

#include <QtCore/QLockFile>
#include <QtCore/QString>

#include <optional>

namespace zelvor {

// The sign that one program writes to a project: a file beside it with the process, host and program. The
// lock of a dead process of this host is taken over without a word.
class ProjectLock {
public:
    enum class Result { Taken, HeldByOther, NoPermission, Failed };

    explicit ProjectLock(const QString& projectPath);
    Result take();
    // After HeldByOther: "in use by zelvor (process 4711 on HOST) since 2026-10-05 09:30".
    QString holderText() const;

private:
    const QString m_path;
    mutable QLockFile m_file;
};

} // namespace zelvor
