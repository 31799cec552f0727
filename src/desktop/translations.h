#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

class QApplication;

namespace zelvor {

// The languages that the program speaks, "en" first.
QStringList knownLanguages();

// Lets the program and Qt's own dialogs speak `language`, one of the above; empty or unknown: the first known
// one of those that the desktop asks for, else English. Texts are fetched once, when controllers and windows
// are made: call it before. Numbers and dates are not touched; they follow the user's region whatever
// language the words are in.
void installTranslations(QApplication& application, const QString& language);

} // namespace zelvor
