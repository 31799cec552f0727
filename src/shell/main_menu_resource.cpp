#include "shell/main_menu_resource.h"

#include "store/plist_dictionary.h"

#include <QtCore/QFile>
#include <QtCore/QResource>
#include <QtCore/QXmlStreamReader>

using namespace Qt::Literals::StringLiterals;

// Outside any namespace, as the macro asks for it. The linker drops the resources of a static library that
// nobody asks for.
static void initializeResources()
{
    Q_INIT_RESOURCE(shell);
}

namespace zelvor {

std::vector<MenuSeed> mainMenuSeed()
{
    initializeResources();
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
