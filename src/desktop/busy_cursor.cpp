#include "desktop/busy_cursor.h"

#include "core/outlets.h"

#include <QtCore/QPointer>
#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

namespace zelvor {

void showBusyCursor(Progress& progress, QObject* shown)
{
    const QPointer<QObject> alive(shown);
    progress.onChange([&progress, alive] {
        if (!alive)
            return;
        if (progress.isRunning())
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        else
            QGuiApplication::restoreOverrideCursor();
    });
}

} // namespace zelvor
