#pragma once

#include <QtCore/QAbstractItemModel>
#include <QtCore/QString>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

class QAbstractItemView;
class QMessageBox;

namespace zelvor {

// The visible widget of an outlet anywhere in the program, or null. Of several the one in the window in
// front.
template <class Widget = QWidget>
Widget* shown(const QString& name)
{
    Widget* found = nullptr;
    for (QWidget* const top : QApplication::topLevelWidgets()) {
        for (Widget* const widget : top->findChildren<Widget*>(name)) {
            if (widget->isVisible() && (!found || top->isActiveWindow()))
                found = widget;
        }
    }
    return found;
}

// The index of the row, anywhere in a list or tree, that shows this text in one of its columns.
QModelIndex indexShowing(const QAbstractItemView& list, const QString& text, const QModelIndex& below = {});

// Without a window manager nobody gives the focus back when a message or a window has closed.
void focusWindowInFront();

// What a person does at the program's windows, by way of the windowing system: a click goes to whatever
// stands at that place, a key to whatever has the focus. Widgets are known by their outlets' names. After a
// fatal failure of the test the hand does nothing more.
class Hand {
public:
    virtual ~Hand() = default;

    virtual void press(const QString& button) = 0;
    virtual void tick(const QString& checkBox) = 0;
    // Replaces what stands in a field.
    virtual void fill(const QString& field, const QString& text) = 0;
    virtual void choose(const QString& chooser, const QString& entry) = 0;
    virtual void answer(QMessageBox& question, const QString& button) = 0;

    // An entry of the menu tree; true for its page.
    virtual void openEntry(const QString& title) = 0;
    // The form of a new record on the page of a catalog; `button` opens a menu where it has one.
    virtual void addRecord(const QString& button) = 0;
    // The OK of a form.
    virtual void accept(const QString& okButton) = 0;

    // On the form of a product document.
    virtual void chooseContragent(const QString& name) = 0;
    virtual void enterRow(const QString& product, const QString& amount, const QString& price) = 0;
    virtual void changeAmount(const QString& product, const QString& amount) = 0;
    virtual void save() = 0;
    virtual void confirm() = 0;

    virtual void refresh() = 0;
    virtual void quit() = 0;
};

} // namespace zelvor
