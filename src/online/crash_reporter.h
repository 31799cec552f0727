#pragma once

#include "store/app_delegate.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zelvor {

class HttpExchange;

// Finds the reports of crashes of this program and sends them to the maker's server. A report stays until
// the server has taken it.
class CrashReporter {
public:
    // Reports are the files of the folder whose path within it begins with the program's name.
    CrashReporter(AppDelegate& owner, HttpExchange& exchange, QString folder, QString programName)
        : m_appDelegate(owner), m_exchange(exchange), m_folder(std::move(folder)),
          m_programName(std::move(programName))
    {}
    // Full paths, in the order of their names.
    QStringList crashReports() const;
    // One request a report. What cannot be read, or is larger than any report, is left where it is.
    void sendReports(const QStringList& paths);

private:
    void send(const QString& path, const QString& signature);

    AppDelegate& m_appDelegate;
    HttpExchange& m_exchange;
    const QString m_folder;
    const QString m_programName;
};

} // namespace zelvor
