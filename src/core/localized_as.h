#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace zelvor {

// localized() for an English text that other languages say in several ways: `meaning` tells the translator
// which one is meant ("warehouse" for a From that is a place and no date). Falls back to the text without a
// meaning.
inline QString localizedAs(const char* english, const char* meaning)
{
    return QCoreApplication::translate("Zelvor", english, meaning);
}

} // namespace zelvor
