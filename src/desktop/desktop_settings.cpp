#include "desktop/desktop_settings.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

DesktopSettings::DesktopSettings(const QString& filePath) : m_settings(filePath, QSettings::IniFormat) {}

Appearance DesktopSettings::appearance() const
{
    const QString name = m_settings.value(u"appearance"_s).toString();
    if (name == u"light")
        return Appearance::Light;
    return name == u"dark" ? Appearance::Dark : Appearance::System;
}

void DesktopSettings::setAppearance(Appearance appearance)
{
    switch (appearance) {
    case Appearance::Light:
        m_settings.setValue(u"appearance"_s, u"light"_s);
        break;
    case Appearance::Dark:
        m_settings.setValue(u"appearance"_s, u"dark"_s);
        break;
    case Appearance::System:
        m_settings.remove(u"appearance"_s);
        break;
    }
}

QString DesktopSettings::language() const
{
    return m_settings.value(u"language"_s).toString();
}

void DesktopSettings::setLanguage(const QString& language)
{
    m_settings.setValue(u"language"_s, language);
}

QByteArray DesktopSettings::bytes(const QString& key) const
{
    return m_settings.value(u"windows/"_s + key).toByteArray();
}

void DesktopSettings::setBytes(const QString& key, const QByteArray& bytes)
{
    m_settings.setValue(u"windows/"_s + key, bytes);
}

} // namespace zelvor
