#include "shell/plist_resource.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

// Outside any namespace, as the macro asks for it.
static void initializeResources()
{
    Q_INIT_RESOURCE(shell);
}

namespace zelvor {

void initializeShellResources()
{
    initializeResources();
}

QMap<QString, QString> readPlistDictionary(QXmlStreamReader& xml)
{
    QMap<QString, QString> values;
    QString key;
    while (xml.readNextStartElement()) {
        const bool isKey = xml.name() == u"key";
        const QString text = xml.readElementText();
        if (isKey)
            key = text;
        else
            values.insert(key, text);
    }
    return values;
}

QString settingsValue(const QString& key)
{
    initializeShellResources();
    QFile file(u":/Settings.plist"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The program's settings are missing.");
    QXmlStreamReader xml(&file);
    QMap<QString, QString> values;
    while (!xml.atEnd()) {
        if (xml.readNext() == QXmlStreamReader::StartElement && xml.name() == u"dict")
            values = readPlistDictionary(xml);
    }
    if (xml.hasError() || !values.contains(key))
        qFatal("The program's settings cannot be read.");
    return values.value(key);
}

} // namespace zelvor
