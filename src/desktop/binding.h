#pragma once

#include "core/calendar.h"
#include "core/outlets.h"

class QAbstractButton;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QDateTimeEdit;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QSlider;
class QWidget;

namespace zelvor {

// Ties an outlet to its widget, both ways: the widget shows value, state and colour; what the user does goes
// to the outlet and runs the controller's action. The widget gets the outlet's name as object name, and the
// accessible name where one is given. The outlet outlives the widget.
void bind(TextField& outlet, QLineEdit* widget, const QString& accessibleName);
void bind(TextField& outlet, QPlainTextEdit* widget, const QString& accessibleName);
// Shows plain text only.
void bind(Label& outlet, QLabel* widget);
// Takes "12,5" and "12.5" in every locale; what is no number turns red and does not leave the field.
// `decimals` are shown at least.
void bind(NumberField& outlet, QLineEdit* widget, const QString& accessibleName, int decimals = 2);
// A number that is shown only.
void bind(NumberField& outlet, QLabel* widget, int decimals = 2);
void bind(CheckBox& outlet, QCheckBox* widget);
void bind(PopUpButton& outlet, QComboBox* widget, const QString& accessibleName);
void bind(Slider& outlet, QSlider* widget, const QString& accessibleName);
void bind(DatePicker& outlet, QDateTimeEdit* widget, const QString& accessibleName, const Calendar& calendar);
// A checkable button shows and sets the state of a button that keeps one.
void bind(Button& outlet, QAbstractButton* widget);
// Busy while it runs.
void bind(Progress& outlet, QProgressBar* widget);
// The ids of the buttons are the tags.
void bind(RadioGroup& outlet, QButtonGroup* group, QWidget* frame, const QString& accessibleName);

} // namespace zelvor
