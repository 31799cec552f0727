#include "cli/program.h"

#include "cli/output.h"
#include "cli/watched_connector.h"
#include "shell/project_tables.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <filesystem>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void UnattendedDialogs::ask(const Alert& alert, std::function<void(int)> answer)
{
    answer(firstButton + static_cast<int>(alert.buttons.size()) - 1);
}

QString UnattendedDialogs::takeText()
{
    return std::exchange(m_text, QString());
}

Program::Program() : Program(std::make_unique<WatchedConnector>()) {}

Program::Program(std::unique_ptr<WatchedConnector> connector)
    : m_connector(*connector),
      appDelegate({m_clock, Calendar(QTimeZone::systemTimeZone()), dialogs, m_defaults}, std::move(connector))
{}

bool Program::open(const QString& path, Access access)
{
    Connector& connector = appDelegate.connector;
    QString problem;
    if (!connector.open(path, access))
        problem = connector.openError();
    else if (access == Access::ReadWrite && connector.isReadOnly())
        problem = u"cannot write to "_s + path + u": the file or its folder is read-only"_s;
    else if (access == Access::ReadWrite && !hasAllTables(connector))
        problem = u"cannot write to "_s + path + u": it lacks tables or columns of a project"_s;
    if (problem.isEmpty())
        return true;
    writeError(problem);
    return false;
}

bool Program::hasReadAll() const
{
    // A link into a table that cannot be read is left empty without a word.
    const bool hasAll = hasAllTables(appDelegate.connector) && !m_connector.hasFailedReads();
    if (!hasAll)
        writeError(m_connector.path() + u": not everything that was asked of it could be read"_s);
    return hasAll;
}

bool isSameFile(const QString& a, const QString& b)
{
    std::error_code error;
    const auto pathOf = [](const QString& name) {
        return std::filesystem::path(QFile::encodeName(name).toStdString());
    };
    return std::filesystem::equivalent(pathOf(a), pathOf(b), error);
}

bool belongsToProject(const QString& path, const QString& project)
{
    const QFileInfo asked(path);
    const QString file = QFileInfo(project).canonicalFilePath();
    const QString resolved = QFileInfo(asked.absolutePath()).canonicalFilePath() + u'/' + asked.fileName();
    return isSameFile(path, project) || resolved == file + u"-journal"_s || resolved == file + u".lock"_s;
}

} // namespace zelvor
