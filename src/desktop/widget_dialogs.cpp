#include "desktop/widget_dialogs.h"

#include "core/localized.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// What it stands for holds from the tick on, whatever button is pressed then.
void addCheckBox(QMessageBox& box, const AlertCheckBox& given)
{
    auto* const check = new QCheckBox(QString(given.title).replace(u'&', u"&&"_s), &box);
    check->setObjectName(u"alertCheckBox"_s);
    check->setChecked(given.on);
    QObject::connect(check, &QCheckBox::toggled, &box, [onToggled = given.onToggled](bool on) {
        if (onToggled)
            onToggled(on);
    });
    box.setCheckBox(check);
}

// The buttons in their order, so that the first one is firstButton.
std::vector<QAbstractButton*> fill(QMessageBox& box, const Alert& alert)
{
    box.setIcon(alert.alertStyle == 0 ? QMessageBox::Warning : QMessageBox::Question);
    box.setTextFormat(Qt::PlainText);
    box.setText(alert.messageText);
    box.setInformativeText(alert.informativeText);
    // The box's own text format is for the first text only.
    if (auto* const informative = box.findChild<QLabel*>(u"qt_msgbox_informativelabel"_s))
        informative->setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (const QString& title : alert.buttons)
        buttons.push_back(box.addButton(QString(title).replace(u'&', u"&&"_s), QMessageBox::ActionRole));
    if (buttons.empty())
        buttons.push_back(box.addButton(QMessageBox::Close));
    if (alert.checkBox)
        addCheckBox(box, *alert.checkBox);
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.back());
    return buttons;
}

QString startFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

QWidget* WidgetDialogs::parent() const
{
    QWidget* const active = QApplication::activeWindow();
    return active && active->isVisible() ? active : parentWindow.data();
}

// A question stays behind the call that asks it. A dialog that is active now, the preferences or the question
// before, is often one that leads to it and closes; what hangs on it would go with it.
QWidget* WidgetDialogs::parentOfQuestion() const
{
    QWidget* const active = parent();
    const bool goes = qobject_cast<QDialog*>(active) && parentWindow && parentWindow->isVisible();
    return goes ? parentWindow.data() : active;
}

void WidgetDialogs::showAlert(const Alert& alert)
{
    QMessageBox box(parent());
    fill(box, alert);
    box.exec();
}

void WidgetDialogs::ask(const Alert& alert, std::function<void(int)> answer)
{
    auto* const box = new QMessageBox(parentOfQuestion());
    box->setAttribute(Qt::WA_DeleteOnClose);
    const std::vector<QAbstractButton*> buttons = fill(*box, alert);
    box->setWindowModality(Qt::WindowModal);
    QObject::connect(box, &QDialog::finished, box, [box, buttons, answer = std::move(answer)] {
        int chosen = static_cast<int>(buttons.size()) - 1;
        for (std::size_t i = 0; i < buttons.size(); ++i) {
            if (buttons[i] == box->clickedButton())
                chosen = static_cast<int>(i);
        }
        if (answer)
            answer(firstButton + chosen);
    });
    box->open();
}

// The controller decides about the file's final name, and never overwrites one; so the panel asks nothing.
std::optional<QString> WidgetDialogs::savePath(const SavePanel& panel)
{
    QFileDialog dialog(parent(), panel.title, startFolder());
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setLabelText(QFileDialog::FileName, panel.nameLabel + u':');
    dialog.setLabelText(QFileDialog::Accept, panel.prompt);
    if (!panel.extension.isEmpty())
        dialog.setNameFilter(u"*."_s + panel.extension);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

std::optional<QString> WidgetDialogs::openPath(const OpenPanel& panel)
{
    QFileDialog dialog(parent(), panel.title, startFolder());
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setLabelText(QFileDialog::FileName, panel.nameLabel + u':');
    dialog.setLabelText(QFileDialog::Accept, panel.prompt);
    QStringList patterns;
    for (const QString& type : panel.allowedTypes)
        patterns << u"*."_s + type;
    if (!patterns.isEmpty())
        dialog.setNameFilter(patterns.join(u' '));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().constFirst();
}

} // namespace zelvor
