#include "desktop/picture.h"

#include <QtGui/QImageReader>

namespace zelvor {

QPixmap pictureFile(const QString& path, QSize size, qreal devicePixelRatio)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    reader.setDecideFormatFromContent(true);
    const QSize room = size * devicePixelRatio;
    const QSize stored = reader.size();
    if (stored.width() > room.width() || stored.height() > room.height())
        reader.setScaledSize(stored.scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QPixmap picture = QPixmap::fromImage(reader.read());
    picture.setDevicePixelRatio(devicePixelRatio);
    return picture;
}

} // namespace zelvor
