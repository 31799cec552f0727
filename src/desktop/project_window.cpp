#include "desktop/project_window.h"

#include "shell/application_shell.h"

#include <QtCore/QPointer>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ProjectWindow::ProjectWindow(ApplicationShell& shell)
{
    setObjectName(u"projectWindow"_s);
    ProjectSelectWindowController& controller = shell.startWindowController;
    const QPointer<ProjectWindow> self(this);
    controller.window.onChange([self, &controller] {
        if (self)
            self->setVisible(controller.window.isOpen());
    });
}

} // namespace zelvor
