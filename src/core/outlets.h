#pragma once

#include "core/colors.h"
#include "core/decimal.h"

#include <QtCore/QString>
#include <QtCore/QVariant>

#include <functional>
#include <vector>

namespace zelvor {

// A value that a controller shows and takes. A controller sets an outlet's value with the setters, which
// tell the bound widget (onChange). A widget, the command line or a test that acts for the user sets the
// value and then calls userChanged(), which runs what the controller hung on it (onUserChange).
class Outlet {
public:
    explicit Outlet(QString outletName) : m_name(std::move(outletName)) {}
    virtual ~Outlet() = default;
    Outlet(const Outlet&) = delete;
    Outlet& operator=(const Outlet&) = delete;

    // The name in the domain: "balanceDue". Also the object name of the bound widget.
    const QString& name() const { return m_name; }
    bool enabled() const { return m_enabled; }
    void setEnabled(bool enabled) { assign(m_enabled, enabled); }
    bool hidden() const { return m_hidden; }
    void setHidden(bool hidden) { assign(m_hidden, hidden); }
    const Color& color() const { return m_color; }
    void setColor(const Color& color) { assign(m_color, color); }

    // Heard by the bound widget: value, state or colour changed.
    void onChange(std::function<void()> listener) { m_listeners.push_back(std::move(listener)); }
    // Run by the controller when the user changed the value, pressed, or ended editing.
    std::function<void()> onUserChange;
    // Called by whoever acts for the user; a disabled outlet does nothing and answers false.
    bool userChanged();

protected:
    template <class T>
    void assign(T& field, T value)
    {
        if (field == value)
            return;
        field = std::move(value);
        changed();
    }
    void changed() const;

private:
    QString m_name;
    bool m_enabled = true;
    bool m_hidden = false;
    Color m_color = blackColor;
    std::vector<std::function<void()>> m_listeners;
};

class TextField : public Outlet {
public:
    using Outlet::Outlet;
    const QString& text() const { return m_text; }
    void setText(QString text) { assign(m_text, std::move(text)); }

private:
    QString m_text;
};

// A label is a text field that the user cannot edit.
using Label = TextField;

// A number that may be empty while it is edited; an empty field reads as 0.
class NumberField : public Outlet {
public:
    using Outlet::Outlet;
    const Decimal& value() const { return m_value; }
    double real() const { return m_value.toDouble(); }
    qint64 integer() const; // cut towards zero; 0 for NaN
    void setValue(const Decimal& value);
    void setReal(double value) { setValue(Decimal::fromDouble(value)); }
    bool isEmpty() const { return m_empty; }
    void clear();

private:
    Decimal m_value;
    bool m_empty = false;
};

class CheckBox : public Outlet {
public:
    using Outlet::Outlet;
    bool isOn() const { return m_on; }
    void setOn(bool on) { assign(m_on, on); }

private:
    bool m_on = false;
};

// A chooser of one entry. Entries are found by tag; a tag that no entry has selects nothing (tag 0).
class PopUpButton : public Outlet {
public:
    struct Item {
        QString title = {};
        qint64 tag = 0;
        QString toolTip = {};
        QString image = {};
        bool enabled = true;
        bool separator = false;
        friend bool operator==(const Item&, const Item&) = default;
    };

    using Outlet::Outlet;
    const std::vector<Item>& items() const { return m_items; }
    // Replaces the entries; the selected tag stays when an entry still has it, otherwise nothing is selected.
    void setItems(std::vector<Item> items);
    void setItemEnabled(qint64 tag, bool enabled);
    void enableAllItems();
    qint64 selectedTag() const { return m_selectedTag; }
    QString selectedTitle() const;
    // True when an entry has the tag; otherwise nothing is selected and the tag reads 0.
    bool selectTag(qint64 tag);
    bool selectTitle(const QString& title);

private:
    std::vector<Item> m_items;
    qint64 m_selectedTag = 0;
};

// A whole number between two bounds.
class Slider : public Outlet {
public:
    using Outlet::Outlet;
    qint64 value() const { return m_value; }
    void setValue(qint64 value); // held within the bounds
    qint64 minimum() const { return m_minimum; }
    qint64 maximum() const { return m_maximum; }
    void setMaximum(qint64 maximum);

private:
    qint64 m_value = 0;
    qint64 m_minimum = 0;
    qint64 m_maximum = 100;
};

// A moment, whole seconds since 1970 UTC.
class DatePicker : public Outlet {
public:
    using Outlet::Outlet;
    qint64 moment() const { return m_moment; }
    void setMoment(qint64 moment) { assign(m_moment, moment); }

private:
    qint64 m_moment = 0;
};

// Pressing is userChanged(). `on` is the state of a button that keeps one (the locks).
class Button : public Outlet {
public:
    using Outlet::Outlet;
    bool isOn() const { return m_on; }
    void setOn(bool on) { assign(m_on, on); }

private:
    bool m_on = false;
};

// A colour that the user may choose; it is the outlet's own colour.
class ColorWell : public Outlet {
public:
    using Outlet::Outlet;
};

class Progress : public Outlet {
public:
    using Outlet::Outlet;
    bool isRunning() const { return m_running; }
    void start() { assign(m_running, true); }
    void stop() { assign(m_running, false); }

private:
    bool m_running = false;
};

class Popover : public Outlet {
public:
    using Outlet::Outlet;
    bool isOpen() const { return m_open; }
    void open() { assign(m_open, true); }
    void close() { assign(m_open, false); }

private:
    bool m_open = false;
};

// Radio cells with tags, one of them selected.
class RadioGroup : public Outlet {
public:
    using Outlet::Outlet;
    qint64 selectedTag() const { return m_selectedTag; }
    void selectTag(qint64 tag) { assign(m_selectedTag, tag); }

private:
    qint64 m_selectedTag = 0;
};

// The stand of a table: which row the user selected, and the colour of its ground.
class TableOutlet : public Outlet {
public:
    using Outlet::Outlet;
    int selectedRow() const { return m_selectedRow; } // -1 for none
    void selectRow(int row) { assign(m_selectedRow, row); }

private:
    int m_selectedRow = -1;
};

} // namespace zelvor
