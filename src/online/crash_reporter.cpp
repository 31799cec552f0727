#include "online/crash_reporter.h"

#include "online/http_exchange.h"
#include "online/signature.h"

#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QFile>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr qint64 largestReport = 1 << 20;

std::optional<QString> readReport(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.read(largestReport + 1);
    if (file.error() != QFileDevice::NoError || content.size() > largestReport)
        return std::nullopt;
    return QString::fromUtf8(content);
}

// The head of the report and the stack of the thread that crashed; the other threads are not sent.
QString descriptionFrom(QString report)
{
    report.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', u"<br>"_s);
    const qsizetype otherThreads = report.indexOf(u"Thread 1"_s);
    return otherThreads < 0 ? report : report.first(otherThreads);
}

} // namespace

QStringList CrashReporter::crashReports() const
{
    const QDir folder(m_folder);
    QStringList paths;
    QDirIterator walk(m_folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString within = folder.relativeFilePath(walk.next());
        if (within.startsWith(m_programName))
            paths.append(m_folder + u'/' + within);
    }
    paths.sort();
    return paths;
}

void CrashReporter::sendReports(const QStringList& paths)
{
    const QString signature = requestSignature(m_appDelegate.settings.value(u"app_key"_s),
                                               m_appDelegate.now(), m_appDelegate.calendar);
    for (const QString& path : paths)
        send(path, signature);
}

void CrashReporter::send(const QString& path, const QString& signature)
{
    const std::optional<QString> report = readReport(path);
    if (!report)
        return;
    const QString body = u"app_key="_s + signature + u"&description="_s + descriptionFrom(*report);
    m_exchange.post(QUrl(m_appDelegate.settings.value(u"server"_s) + u"/write_bug_report/"_s), body.toUtf8(),
                    [path](const HttpExchange::Reply& reply) {
                        if (reply.status == 200)
                            QFile::remove(path);
                    });
}

} // namespace zelvor
