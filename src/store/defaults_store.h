#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

#include <memory>
#include <optional>

namespace zelvor {

// Whether reports of crashes may be sent: the user is asked each time, or has answered for good.
enum class CrashReportConsent { Ask, Always, Never };

// The per-user settings, in the user's configuration folder (XDG: $XDG_CONFIG_HOME/Zelvor/Zelvor.conf). Read
// on first use, written by synchronize(). Keys of `businesses` are project names with "_" for blanks.
class DefaultsStore {
public:
    DefaultsStore();                          // the user's own file
    explicit DefaultsStore(QString filePath); // another file: tests
    ~DefaultsStore();
    DefaultsStore(const DefaultsStore&) = delete;
    DefaultsStore& operator=(const DefaultsStore&) = delete;

    QMap<QString, QString> businesses() const; // project name to file path
    void setBusinesses(const QMap<QString, QString>& businesses);
    std::optional<QString> defaultBusiness() const;
    void setDefaultBusiness(const QString& key);
    void removeDefaultBusiness();
    bool showUpdateWindow() const; // true unless set otherwise
    void setShowUpdateWindow(bool show);
    CrashReportConsent crashReportConsent() const; // Ask unless set otherwise
    void setCrashReportConsent(CrashReportConsent consent);
    // Where the settings lie: "~/.config/Zelvor".
    QString folder() const;
    // Writes to the disk; false when that failed.
    bool synchronize();

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace zelvor
