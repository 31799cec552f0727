#pragma once

#include <QtCore/QMap>
#include <QtCore/QString>

class QXmlStreamReader;

namespace zelvor {

// Makes the program's own resources readable. The linker drops those of a static library that nobody asks
// for.
void initializeShellResources();

// Reads one <dict> of keys and scalar values; the reader stands on its start.
QMap<QString, QString> readPlistDictionary(QXmlStreamReader& xml);

// The value of a key of the program's Settings.plist. The resource belongs to the program: a missing or
// unreadable one is a fatal program error.
QString settingsValue(const QString& key);

} // namespace zelvor
