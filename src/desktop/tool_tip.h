#pragma once

#include <QtCore/QString>

namespace zelvor {

// A tool tip that shows the user's own text as it is: what looks like markup in a name is not taken for it.
QString plainToolTip(const QString& text);

} // namespace zelvor
