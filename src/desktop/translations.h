#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QApplication;

namespace zelvor {

// The languages that the program speaks, "en" first.
QStringList knownLanguages();

// The one of them to speak: `chosen` when it is known, else the first known one of `wanted` ("de-AT",
// "ru-RU", ...), else English.
QString spokenLanguage(const QString& chosen, const QStringList& wanted);

// Lets the program and Qt's own dialogs speak `language`; empty or unknown: what the desktop asks for. Texts
// are fetched once, when controllers and windows are made: call it before. Numbers and dates are not touched;
// they follow the user's region whatever language the words are in.
void installTranslations(QApplication& application, const QString& language);

} // namespace zelvor
