#pragma once

#include "core/outlets.h"

#include <QtWidgets/QWidget>

class QLineEdit;

namespace zelvor {

// "Products [2 selected] [...] [x]": a filter of a report. The field tells what is chosen; the buttons open
// the popover to choose and take the choice back.
class FilterField : public QWidget {
    Q_OBJECT

public:
    // `name` is part of the buttons' object names: "chooseProducts", "clearProducts".
    FilterField(const QString& name, const QString& title, Label& display, QWidget* parent = nullptr);

    // Where a popover points at.
    QRect globalFieldRect() const;
    QWidget* firstField() const { return m_choose; }
    QWidget* lastField() const { return m_clear; }

Q_SIGNALS:
    void chooseRequested();
    void clearRequested();

private:
    QWidget* addButton(const QString& objectName, const QString& icon, const QString& tip,
                       void (FilterField::*pressed)());

    QLineEdit* m_display;
    QWidget* m_choose;
    QWidget* m_clear;
};

} // namespace zelvor
