#include "shell/main_menu_resource.h"

#include "shell/plist_resource.h"

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

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
        while (xml.readNextStartElement()) {
            const QMap<QString, QString> entry = readPlistDictionary(xml);
            seeds.push_back({entry.value(u"name"_s), entry.value(u"parentID"_s).toLongLong()});
        }
    }
    if (xml.hasError() || seeds.empty())
        qFatal("The program's menu list cannot be read.");
    return seeds;
}

} // namespace zelvor
