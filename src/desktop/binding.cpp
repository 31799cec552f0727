#include "desktop/binding.h"

#include "core/formats.h"
#include "core/localized.h"
#include "desktop/cell_text.h"
#include "desktop/chooser_model.h"
#include "desktop/number_entry.h"
#include "desktop/page.h"
#include "desktop/popover_panel.h"
#include "desktop/theme.h"

#include <QtCore/QEvent>
#include <QtCore/QPointer>
#include <QtCore/QSignalBlocker>
#include <QtGui/QGuiApplication>
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

#include <functional>
#include <memory>
#include <utility>

namespace zelvor {

namespace {

// The tie of one widget to its outlet; goes with the widget. Shows the outlet again when it changes, and
// when the colours of the desktop do.
class Tie final : public QObject {
public:
    Tie(Outlet& outlet, QWidget* widget, std::function<void()> show)
        : QObject(widget), m_outlet(outlet), m_widget(widget), m_show(std::move(show))
    {
        widget->installEventFilter(this);
    }

    void update()
    {
        m_widget->setEnabled(m_outlet.enabled());
        // Only a change is told: a widget without a window yet is shown together with it.
        if (std::exchange(m_hidden, m_outlet.hidden()) != m_outlet.hidden())
            m_widget->setVisible(!m_outlet.hidden());
        m_show();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
            m_show();
        // A wheel that rolls over a form changes nothing in it unless the field was chosen.
        if (event->type() == QEvent::Wheel && m_ignoresWheel && !m_widget->hasFocus()) {
            event->ignore();
            return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    Outlet& m_outlet;
    QWidget* m_widget;
    std::function<void()> m_show;
    bool m_hidden = false;

public:
    bool m_ignoresWheel = false;
};

// Names the widget and keeps it in step with the outlet from now on.
Tie* follow(Outlet& outlet, QWidget* widget, const QString& accessibleName, std::function<void()> show)
{
    widget->setObjectName(outlet.name());
    if (!accessibleName.isEmpty())
        widget->setAccessibleName(accessibleName);
    auto* const tie = new Tie(outlet, widget, std::move(show));
    const QPointer<Tie> shown(tie);
    outlet.onChange([shown] {
        if (shown)
            shown->update();
    });
    tie->update();
    return tie;
}

void ignoreWheel(Tie* tie, QWidget* widget)
{
    widget->setFocusPolicy(Qt::StrongFocus); // not by the wheel
    tie->m_ignoresWheel = true;
}

// The colour of the text alone; everything else goes on following the palette of the program.
class Ink {
public:
    void paint(QWidget* widget, const Color& color)
    {
        const bool coloured = !(color == blackColor);
        const QColor ink = textColor(color, QGuiApplication::palette());
        if (m_coloured == coloured && (!coloured || widget->palette().color(QPalette::WindowText) == ink))
            return;
        m_coloured = coloured;
        QPalette own;
        if (coloured) {
            own.setColor(QPalette::WindowText, ink);
            own.setColor(QPalette::Text, ink);
        }
        widget->setPalette(own);
    }

private:
    bool m_coloured = false;
};

// What is stored together with the widget: the popover, the page or the window that it stands in.
QWidget& formOf(QWidget* widget)
{
    QWidget* form = widget;
    while (!form->isWindow() && !qobject_cast<PopoverPanel*>(form) && !qobject_cast<Page*>(form))
        form = form->parentWidget();
    return *form;
}

// Whether a widget is being shown what its outlet holds: what it tells of then is no change of the user. An
// assistive tool sets a text as a program does, so the signals for typing alone are not enough to listen to.
class Showing {
public:
    template <class Show>
    void run(Show show)
    {
        const bool before = std::exchange(*m_on, true);
        show();
        *m_on = before;
    }
    bool isOn() const { return *m_on; }

private:
    std::shared_ptr<bool> m_on = std::make_shared<bool>(false);
};

NumberEntry::Number numberOf(const NumberField& outlet)
{
    return outlet.isEmpty() ? NumberEntry::Number() : outlet.value();
}

} // namespace

void bind(TextField& outlet, QLineEdit* widget, const QString& accessibleName)
{
    Showing showing;
    follow(outlet, widget, accessibleName, [&outlet, widget, showing]() mutable {
        if (widget->text() == outlet.text())
            return;
        const int place = widget->cursorPosition();
        showing.run([&] { widget->setText(outlet.text()); });
        if (widget->hasFocus())
            widget->setCursorPosition(place);
    });
    QObject::connect(widget, &QLineEdit::textChanged, widget, [&outlet, showing](const QString& text) {
        if (showing.isOn())
            return;
        outlet.setText(text);
        outlet.userChanged();
    });
}

void bind(TextField& outlet, QPlainTextEdit* widget, const QString& accessibleName)
{
    widget->setTabChangesFocus(true);
    Showing showing;
    follow(outlet, widget, accessibleName, [&outlet, widget, showing]() mutable {
        if (widget->toPlainText() != outlet.text())
            showing.run([&] { widget->setPlainText(outlet.text()); });
    });
    QObject::connect(widget, &QPlainTextEdit::textChanged, widget, [&outlet, widget, showing] {
        if (showing.isOn() || outlet.text() == widget->toPlainText())
            return;
        outlet.setText(widget->toPlainText());
        outlet.userChanged();
    });
}

void bind(Label& outlet, QLabel* widget)
{
    widget->setTextFormat(Qt::PlainText);
    follow(outlet, widget, {}, [&outlet, widget, ink = Ink()]() mutable {
        widget->setText(outlet.text());
        ink.paint(widget, outlet.color());
    });
}

void bind(NumberField& outlet, QLineEdit* widget, const QString& accessibleName, int decimals)
{
    auto* const entry = new NumberEntry(widget, decimals);
    follow(outlet, widget, accessibleName, [&outlet, entry] { entry->show(numberOf(outlet)); });
    entry->onTyped = [&outlet](const NumberEntry::Number& number) {
        number ? outlet.setValue(*number) : outlet.clear();
    };
    entry->onDone = [&outlet, entry] {
        outlet.userChanged();
        entry->show(numberOf(outlet));
    };
}

void bind(NumberField& outlet, QLabel* widget, int decimals)
{
    widget->setTextFormat(Qt::PlainText);
    widget->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    follow(outlet, widget, {}, [&outlet, widget, decimals, ink = Ink()]() mutable {
        widget->setText(decimals == 2 ? screenAmount(outlet.value(), QLocale())
                                      : editedNumber(outlet.value(), QLocale(), decimals));
        ink.paint(widget, outlet.color());
    });
}

void bind(CheckBox& outlet, QCheckBox* widget)
{
    follow(outlet, widget, widget->accessibleName().isEmpty() ? widget->text() : widget->accessibleName(),
           [&outlet, widget] { widget->setChecked(outlet.isOn()); });
    QObject::connect(widget, &QCheckBox::clicked, widget, [&outlet](bool on) {
        outlet.setOn(on);
        outlet.userChanged();
    });
}

void bind(PopUpButton& outlet, QComboBox* widget, const QString& accessibleName)
{
    auto* const model = new ChooserModel(widget);
    const QSignalBlocker quiet(widget);
    widget->setModel(model);
    widget->setMaxVisibleItems(20);
    ignoreWheel(follow(outlet, widget, accessibleName,
                       [&outlet, widget, model] {
                           const QSignalBlocker silent(widget);
                           model->setItems(outlet.items());
                           widget->setCurrentIndex(model->rowOfTag(outlet.selectedTag()));
                       }),
                widget);
    QObject::connect(widget, &QComboBox::activated, widget, [&outlet, model](int row) {
        outlet.selectTag(model->tag(row));
        outlet.userChanged();
    });
}

void bind(Slider& outlet, QSlider* widget, const QString& accessibleName)
{
    ignoreWheel(follow(outlet, widget, accessibleName,
                       [&outlet, widget] {
                           const QSignalBlocker quiet(widget);
                           widget->setRange(static_cast<int>(outlet.minimum()),
                                            static_cast<int>(outlet.maximum()));
                           widget->setValue(static_cast<int>(outlet.value()));
                       }),
                widget);
    QObject::connect(widget, &QSlider::valueChanged, widget, [&outlet](int value) {
        outlet.setValue(value);
        outlet.userChanged();
    });
}

// The widget works on a clock without a zone; the calendar alone knows which moment its local time means.
void bind(DatePicker& outlet, QDateTimeEdit* widget, const QString& accessibleName, const Calendar& calendar)
{
    const auto show = [&outlet, widget, &calendar] {
        const QDateTime local = calendar.dateTime(outlet.moment());
        const QSignalBlocker quiet(widget);
        widget->setDateTime(QDateTime(local.date(), local.time(), Qt::UTC));
    };
    const bool dateOnly = qobject_cast<QDateEdit*>(widget) != nullptr;
    widget->setTimeSpec(Qt::UTC);
    widget->setDisplayFormat(dateOnly ? shortDateFormat(QLocale()) : shortDateTimeFormat(QLocale()));
    widget->setCalendarPopup(true);
    widget->setKeyboardTracking(false); // half a date is none
    ignoreWheel(follow(outlet, widget, accessibleName, show), widget);
    // What an assistive tool sets is whole, and nobody leaves the field behind it.
    if (auto* const line = widget->findChild<QLineEdit*>()) {
        QObject::connect(line, &QLineEdit::textChanged, widget, [widget, line] {
            if (!line->isModified() && !widget->hasFocus())
                widget->interpretText();
        });
    }
    QObject::connect(widget, &QDateTimeEdit::dateTimeChanged, widget,
                     [&outlet, &calendar, show](const QDateTime& local) {
                         outlet.setMoment(calendar.moment(local.date(), local.time()));
                         outlet.userChanged();
                         show(); // a time that the clock skips is shown as the one that it means
                     });
}

void bind(Button& outlet, QAbstractButton* widget)
{
    const auto show = [&outlet, widget] {
        if (widget->isCheckable())
            widget->setChecked(outlet.isOn());
    };
    follow(outlet, widget, widget->accessibleName(), show);
    QObject::connect(widget, &QAbstractButton::clicked, widget, [&outlet, widget, show](bool on) {
        if (!endEditing(formOf(widget))) {
            show();
            return;
        }
        outlet.setOn(on);
        outlet.userChanged();
    });
}

void bind(Progress& outlet, QProgressBar* widget)
{
    widget->setRange(0, 0);
    widget->setTextVisible(false);
    widget->setVisible(false);
    follow(outlet, widget, localized("Busy"),
           [&outlet, widget] { widget->setVisible(outlet.isRunning() && !outlet.hidden()); });
}

void bind(RadioGroup& outlet, QButtonGroup* group, QWidget* frame, const QString& accessibleName)
{
    const QPointer<QButtonGroup> buttons(group);
    follow(outlet, frame, accessibleName, [&outlet, buttons] {
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
