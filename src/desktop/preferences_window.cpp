#include "desktop/preferences_window.h"

#include "shell/application_shell.h"

#include <QtCore/QPointer>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

PreferencesWindow::PreferencesWindow(ApplicationShell& shell)
{
    setObjectName(u"preferencesWindow"_s);
    UserDefaultsController& controller = shell.preferences;
    const QPointer<PreferencesWindow> self(this);
    controller.window.onChange([self, &controller] {
        if (self)
            self->setVisible(controller.window.isOpen());
    });
}

} // namespace zelvor
