#pragma once

#include <QtGui/QIcon>

namespace zelvor {

// A line icon of the program by its name ("save"), drawn in the text colour of the palette of the moment. An
// unknown name gives the empty icon.
QIcon lineIcon(const QString& name);
// A picture as it was drawn: flags, the program's own icon.
QIcon pictureIcon(const QString& name);
// Makes the resources inside this library known to the program; safe to call again.
void loadDesktopResources();

} // namespace zelvor
