#include "shell/main_menu_resource.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

// Outside any namespace: a static library's resources are dropped by the linker unless something asks.
static void initializeShellResources()
{
    Q_INIT_RESOURCE(shell);
}

namespace zelvor {

namespace {

// Reads one <dict> of keys and scalar values; the reader stands on its start.
MenuSeed readEntry(QXmlStreamReader& xml)
{
    MenuSeed seed;
    QString key;
    while (xml.readNextStartElement()) {
        const bool isKey = xml.name() == u"key";
        const QString text = xml.readElementText();
        if (isKey)
            key = text;
        else if (key == u"name")
            seed.name = text;
        else if (key == u"parentID")
            seed.parentID = text.toLongLong();
    }
    return seed;
}

} // namespace

std::vector<MenuSeed> mainMenuSeed()
{
    initializeShellResources();
    QFile file(u":/MainMenu.plist"_s);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("The program's menu list is missing.");
    std::vector<MenuSeed> seeds;
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"array")
            continue;
        while (xml.readNextStartElement())
            seeds.push_back(readEntry(xml));
    }
    if (xml.hasError() || seeds.empty())
        qFatal("The program's menu list cannot be read.");
    return seeds;
}

} // namespace zelvor
