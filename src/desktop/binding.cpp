#include "desktop/binding.h"

#include "core/formats.h"
#include "core/localized.h"
#include "desktop/cell_text.h"
#include "desktop/icons.h"
#include "desktop/theme.h"

#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QGuiApplication>
#include <QtGui/QStandardItemModel>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDateTimeEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QProgressBar>
#include <QtWidgets/QSlider>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

// Names the widget and keeps it in step with the outlet from now on.
template <class Widget, class Show>
void follow(Outlet& outlet, Widget* widget, const QString& accessibleName, Show show)
{
    widget->setObjectName(outlet.name());
    if (!accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName);
    const QPointer<Widget> shown(widget);
    const auto update = [&outlet, shown, show] {
        if (!shown)
            return;
        shown->setEnabled(outlet.enabled());
        shown->setVisible(!outlet.hidden());
        const QSignalBlocker quiet(shown.data());
        show(shown.data());
    };
    outlet.onChange(update);
    if (!outlet.hidden()) // a widget that has no window yet is shown with it
        widget->setEnabled(outlet.enabled());
    else
        widget->setVisible(false);
    const QSignalBlocker quiet(widget);
    show(widget);
}

void paintInk(QWidget* widget, const Color& color)
{
    QPalette palette = QGuiApplication::palette();
    if (!(color == blackColor)) {
        palette.setColor(QPalette::WindowText, textColor(color, palette));
        palette.setColor(QPalette::Text, textColor(color, palette));
    }
    widget->setPalette(palette);
}

void paintWrong(QWidget* widget, bool wrong)
{
    QPalette palette = QGuiApplication::palette();
    if (wrong)
        palette.setColor(QPalette::Text, textColor(redColor, palette));
    widget->setPalette(palette);
    widget->setToolTip(wrong ? localized("This is not a number. Write 1234.50 or 1234,50.") : QString());
}

} // namespace

void bind(TextField& outlet, QLineEdit* widget, const QString& accessibleName)
{
    follow(outlet, widget, accessibleName, [&outlet](QLineEdit* edit) {
        if (edit->text() != outlet.text())
            edit->setText(outlet.text());
    });
    QObject::connect(widget, &QLineEdit::textEdited, widget, [&outlet](const QString& text) {
        outlet.setText(text);
        outlet.userChanged();
    });
}

void bind(TextField& outlet, QPlainTextEdit* widget, const QString& accessibleName)
{
    follow(outlet, widget, accessibleName, [&outlet](QPlainTextEdit* edit) {
        if (edit->toPlainText() != outlet.text())
            edit->setPlainText(outlet.text());
    });
    QObject::connect(widget, &QPlainTextEdit::textChanged, widget, [&outlet, widget] {
        if (outlet.text() == widget->toPlainText())
            return;
        outlet.setText(widget->toPlainText());
        outlet.userChanged();
    });
}

void bind(Label& outlet, QLabel* widget)
{
    widget->setTextFormat(Qt::PlainText);
    follow(outlet, widget, {}, [&outlet](QLabel* label) {
        label->setText(outlet.text());
        paintInk(label, outlet.color());
    });
}

void bind(NumberField& outlet, QLineEdit* widget, const QString& accessibleName, int decimals)
{
    widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    follow(outlet, widget, accessibleName, [&outlet, decimals](QLineEdit* edit) {
        paintWrong(edit, false);
        const bool same = !outlet.isEmpty() && amountFromUserText(edit->text(), QLocale()) == outlet.value();
        if (edit->hasFocus() && same)
            return; // what is being typed is not rewritten under the cursor
        edit->setText(outlet.isEmpty() ? QString() : editedNumber(outlet.value(), QLocale(), decimals));
    });
    QObject::connect(widget, &QLineEdit::textEdited, widget, [&outlet, widget](const QString& text) {
        const Decimal number = text.trimmed().isEmpty() ? Decimal() : amountFromUserText(text, QLocale());
        paintWrong(widget, number.isNaN());
        if (!number.isNaN())
            outlet.setValue(number);
    });
    QObject::connect(widget, &QLineEdit::editingFinished, widget, [&outlet, widget, decimals] {
        if (!widget->isModified())
            return;
        widget->setModified(false);
        if (widget->text().trimmed().isEmpty())
            outlet.clear();
        outlet.userChanged();
        const QSignalBlocker quiet(widget);
        paintWrong(widget, false);
        widget->setText(outlet.isEmpty() ? QString() : editedNumber(outlet.value(), QLocale(), decimals));
    });
}

void bind(NumberField& outlet, QLabel* widget, int decimals)
{
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    follow(outlet, widget, {}, [&outlet, decimals](QLabel* label) {
        label->setText(decimals == 2 ? screenAmount(outlet.value(), QLocale())
                                     : editedNumber(outlet.value(), QLocale(), decimals));
        paintInk(label, outlet.color());
    });
}

void bind(CheckBox& outlet, QCheckBox* widget)
{
    follow(outlet, widget, widget->text(), [&outlet](QCheckBox* box) { box->setChecked(outlet.isOn()); });
    QObject::connect(widget, &QCheckBox::clicked, widget, [&outlet](bool on) {
        outlet.setOn(on);
        outlet.userChanged();
    });
}

void bind(PopUpButton& outlet, QComboBox* widget, const QString& accessibleName)
{
    follow(outlet, widget, accessibleName, [&outlet](QComboBox* box) {
        box->clear();
        int selected = -1;
        for (const PopUpButton::Item& item : outlet.items()) {
            if (item.separator) {
                box->insertSeparator(box->count());
                continue;
            }
            box->addItem(pictureIcon(item.image), item.title, item.tag);
            const int last = box->count() - 1;
            box->setItemData(last, item.toolTip.toHtmlEscaped(), Qt::ToolTipRole);
            auto* const entry = static_cast<QStandardItemModel*>(box->model())->item(last);
            entry->setEnabled(item.enabled);
            if (item.tag == outlet.selectedTag())
                selected = selected < 0 ? last : selected;
        }
        box->setCurrentIndex(selected);
    });
    QObject::connect(widget, &QComboBox::activated, widget, [&outlet, widget](int index) {
        outlet.selectTag(widget->itemData(index).toLongLong());
        outlet.userChanged();
    });
}

void bind(Slider& outlet, QSlider* widget, const QString& accessibleName)
{
    follow(outlet, widget, accessibleName, [&outlet](QSlider* slider) {
        slider->setRange(static_cast<int>(outlet.minimum()), static_cast<int>(outlet.maximum()));
        slider->setValue(static_cast<int>(outlet.value()));
    });
    QObject::connect(widget, &QSlider::valueChanged, widget, [&outlet](int value) {
        outlet.setValue(value);
        outlet.userChanged();
    });
}

void bind(DatePicker& outlet, QDateTimeEdit* widget, const QString& accessibleName, const Calendar& calendar)
{
    follow(outlet, widget, accessibleName, [&outlet, &calendar](QDateTimeEdit* edit) {
        edit->setDateTime(calendar.dateTime(outlet.moment()));
    });
    QObject::connect(widget, &QDateTimeEdit::dateTimeChanged, widget, [&outlet](const QDateTime& moment) {
        outlet.setMoment(moment.toSecsSinceEpoch());
        outlet.userChanged();
    });
}

void bind(Button& outlet, QAbstractButton* widget)
{
    follow(outlet, widget, widget->accessibleName(), [&outlet](QAbstractButton* button) {
        if (button->isCheckable())
            button->setChecked(outlet.isOn());
    });
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&outlet](bool on) {
        outlet.setOn(on);
        outlet.userChanged();
    });
}

void bind(Progress& outlet, QProgressBar* widget)
{
    widget->setRange(0, 0);
    widget->setTextVisible(false);
    follow(outlet, widget, localized("Busy"),
           [&outlet](QProgressBar* bar) { bar->setVisible(outlet.isRunning()); });
}

void bind(RadioGroup& outlet, QButtonGroup* group, QWidget* frame, const QString& accessibleName)
{
    const QPointer<QButtonGroup> buttons(group);
    follow(outlet, frame, accessibleName, [&outlet, buttons](QWidget*) {
        if (QAbstractButton* const button =
                buttons ? buttons->button(static_cast<int>(outlet.selectedTag())) : nullptr)
            button->setChecked(true);
    });
    QObject::connect(group, &QButtonGroup::idClicked, frame, [&outlet](int tag) {
        outlet.selectTag(tag);
        outlet.userChanged();
    });
}

} // namespace zelvor
