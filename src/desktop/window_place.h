#pragma once

#include <QtCore/QSize>
#include <QtCore/QString>

class QWidget;

namespace zelvor {

class DesktopSettings;

// Where a window stood at the last end. Restored inside a screen that is there now; the first time it gets
// the size given, or the screen's.
void rememberPlace(const QWidget& window, DesktopSettings& settings, const QString& key);
void restorePlace(QWidget& window, const DesktopSettings& settings, const QString& key, QSize firstSize);
// The window moved and, where it must, made smaller to lie on its screen whole.
void moveOntoScreen(QWidget& window);

} // namespace zelvor
