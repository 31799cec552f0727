#pragma once

#include "desktop/theme.h"

#include <QtCore/QByteArray>
#include <QtCore/QSettings>
#include <QtCore/QString>

namespace zelvor {

// What the desktop remembers for its user between two starts: look, language, window places. A file of its
// own beside the user's other settings; a test hands in another path.
class DesktopSettings {
public:
    explicit DesktopSettings(const QString& filePath);

    Appearance appearance() const;
    void setAppearance(Appearance appearance);
    // "en", "ru", or empty for the desktop's language.
    QString language() const;
    void setLanguage(const QString& language);
    QByteArray bytes(const QString& key) const;
    void setBytes(const QString& key, const QByteArray& bytes);

private:
    QSettings m_settings;
};

} // namespace zelvor
