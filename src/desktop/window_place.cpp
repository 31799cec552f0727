#include "desktop/window_place.h"

#include "desktop/desktop_settings.h"

#include <QtGui/QScreen>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace zelvor {

void rememberPlace(const QWidget& window, DesktopSettings& settings, const QString& key)
{
    settings.setBytes(key, window.saveGeometry());
}

void restorePlace(QWidget& window, const DesktopSettings& settings, const QString& key, QSize firstSize)
{
    if (!window.restoreGeometry(settings.bytes(key)))
        window.resize(firstSize.boundedTo(window.screen()->availableSize()));
    if (!window.isMaximized() && !window.isFullScreen())
        moveOntoScreen(window);
}

void moveOntoScreen(QWidget& window)
{
    const QRect room = window.screen()->availableGeometry();
    const QSize frame = window.frameGeometry().size() - window.size();
    const QSize size = window.size().boundedTo(room.size() - frame);
    if (size != window.size())
        window.resize(size);
    const QSize whole = size + frame;
    const int x =
        std::clamp(window.x(), room.left(), std::max(room.left(), room.right() + 1 - whole.width()));
    const int y =
        std::clamp(window.y(), room.top(), std::max(room.top(), room.bottom() + 1 - whole.height()));
    if (QPoint(x, y) != window.pos())
        window.move(x, y);
}

} // namespace zelvor
