#include "store/settings_resource.h"

#include "store/plist_dictionary.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QResource>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

// Outside any namespace, as the macro asks for it. The linker drops the resources of a static library that
// nobody asks for.
static void initializeResources()
{
    Q_INIT_RESOURCE(store);
}

namespace zelvor {

namespace {

constexpr qint64 largestFile = 64 * 1024;

QMap<QString, QString> readSettings(const QString& path)
{
    QFile file(path);
    // A pipe or a device would be waited for.
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    const QByteArray content = file.read(largestFile + 1);
    if (content.size() > largestFile)
        return {};
    QXmlStreamReader xml(content);
    QMap<QString, QString> values;
    if (xml.readNextStartElement() && xml.name() == u"plist" && xml.readNextStartElement() &&
        xml.name() == u"dict")
        values = readPlistDictionary(xml);
    while (!xml.atEnd())
        xml.readNext();
    return xml.hasError() ? QMap<QString, QString>() : values;
}

// An address as requests are built on it; the empty text when the value is none.
QString addressFrom(QString value)
{
    while (value.endsWith(u'/'))
        value.chop(1);
    const QUrl url(value, QUrl::StrictMode);
    const bool isWebAddress = (url.scheme() == u"https" || url.scheme() == u"http") &&
                              !url.host().isEmpty() && !url.hasQuery() && !url.hasFragment();
    return isWebAddress ? value : QString();
}

// The value that a file has for a key; the empty text when it has none of use.
QString usableValue(const QMap<QString, QString>& settings, const QString& key)
{
    const QString value = settings.value(key).trimmed();
    return key == u"app_key" ? value : addressFrom(value);
}

} // namespace

QString SettingsResource::value(const QString& key) const
{
    for (const QString& folder : m_folders) {
        const QString overriding = usableValue(readSettings(folder + u"/Settings.plist"_s), key);
        if (!overriding.isEmpty())
            return overriding;
    }
    initializeResources();
    const QString builtIn = usableValue(readSettings(u":/Settings.plist"_s), key);
    if (builtIn.isEmpty())
        qFatal("The program's settings cannot be read.");
    return builtIn;
}

QStringList systemSettingsFolders()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation);
    folders.removeAll(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    for (QString& folder : folders)
        folder += u"/Zelvor"_s;
    return folders;
}

} // namespace zelvor
