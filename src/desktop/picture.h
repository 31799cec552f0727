#pragma once

#include <QtGui/QPixmap>

namespace zelvor {

// The picture in a file, fitted into a size in device-independent pixels, never enlarged. Empty when the
// file cannot be read or is no picture.
QPixmap pictureFile(const QString& path, QSize size, qreal devicePixelRatio);

} // namespace zelvor
