#pragma once

#include <QtCore/QCoreApplication>
#include <QtCore/QString>

namespace zelvor {

// The user's text for an English one, through the installed translation table.
inline QString localized(const char* english)
{
    return QCoreApplication::translate("Zelvor", english);
}

} // namespace zelvor
