#pragma once

#include <QtCore/QString>

#include <vector>

namespace zelvor {

// One entry of the menu's seed list; an entry's place in the list, from 1, is its DocType raw value.
struct MenuSeed {
    QString name;
    qint64 parentID = 0;
};

// The seed list of the program's resource MainMenu.plist. The resource belongs to the program: a missing or
// unreadable one is a fatal program error.
std::vector<MenuSeed> mainMenuSeed();

} // namespace zelvor
