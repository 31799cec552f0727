#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

class QXmlStreamReader;

namespace zelvor {

// Reads one <dict> of a property list; the reader stands on its start. Texts and whole numbers are taken as
// texts, values of other kinds are left out.
QMap<QString, QString> readPlistDictionary(QXmlStreamReader& xml);

} // namespace zelvor
