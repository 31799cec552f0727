#pragma once

#include <QtCore/QString>

namespace zelvor {

// One entry of the list of known projects.
struct Business {
    QString name; // as shown, blanks in place of underscores
    QString url;  // the path of the project file
};

} // namespace zelvor
