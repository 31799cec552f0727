#pragma once

#include "core/dialogs.h"

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

#include <functional>

namespace zelvor {

// Messages, questions and file panels of the desktop. Questions hang on the window that is active as sheets;
// Escape answers with the last button. Texts are shown as plain text.
class WidgetDialogs final : public Dialogs {
public:
    void showAlert(const Alert& alert) override;
    void ask(const Alert& alert, std::function<void(int)> answer) override;
    std::optional<QString> savePath(const SavePanel& panel) override;
    std::optional<QString> openPath(const OpenPanel& panel) override;

    // The main window: what is asked hangs on it when no other window is active.
    QPointer<QWidget> parentWindow;

private:
    QWidget* parent() const;
    QWidget* parentOfQuestion() const;
};

} // namespace zelvor
