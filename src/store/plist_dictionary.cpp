#include "store/plist_dictionary.h"

#include <QtCore/QXmlStreamReader>

namespace zelvor {

QMap<QString, QString> readPlistDictionary(QXmlStreamReader& xml)
{
    QMap<QString, QString> values;
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == u"key") {
            key = xml.readElementText();
            continue;
        }
        if (xml.name() == u"string" || xml.name() == u"integer")
            values.insert(key, xml.readElementText());
        else
            xml.skipCurrentElement();
        key.clear();
    }
    return values;
}

} // namespace zelvor
