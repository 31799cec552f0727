#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace zelvor {

// What the program knows of its maker, from its resource Settings.plist: `app_key` (the program's key for the
// server), `server` (its base address), `domain_en` and `domain_ru` (the web pages). A Settings.plist in one
// of the folders overrides it key by key; the first one with a usable value wins. Addresses are http or https
// and end without a slash. An override that cannot be read, is no property list, is not small, or holds
// something else than a text or an address counts as not there.
class SettingsResource {
public:
    explicit SettingsResource(QStringList folders) : m_folders(std::move(folders)) {}
    // Looked up anew each time. Only the four keys are known; another is a fatal program error.
    QString value(const QString& key) const;

private:
    QStringList m_folders;
};

// The system's configuration folders of the program, the most important one first: "/etc/xdg/Zelvor".
QStringList systemSettingsFolders();

} // namespace zelvor
