#pragma once

#include "catalogs/catalog_list.h"
#include "core/localized.h"
#include "core/outlets.h"

namespace zelvor {

// What the popovers of all flat catalogs have in common.
struct CatalogForm {
    Popover& popover;
    Label& title;
    TextField& name;
    Label& warning;
    Button& okButton;
};

// A catalog whose records are added and edited in one popover: a required name, OK, cancel.
template <class Record>
class FlatCatalogController : public CatalogListController<Record> {
public:
    using CatalogListController<Record>::CatalogListController;

    // The record behind the popover; none while it is closed.
    std::shared_ptr<Record> focusedObject;

    // Record to popover and back.
    virtual void bindFields() = 0;
    virtual void backBindFields() = 0;
    QString refusal(const Record& record) const override
    {
        return record.name.isEmpty() ? localized("Field 'Name' is required!") : QString();
    }
    void forget() override
    {
        closeForm();
        CatalogListController<Record>::forget();
    }

protected:
    typename CatalogListController<Record>::Records readRecords() override
    {
        return recordsByName<Record>(this->appDelegate.connector);
    }
    virtual CatalogForm form() = 0;
    // What an emptied popover shows beside an empty title and warning.
    virtual void clearFields() {}
    // Before the popover opens: its choosers must be up to date.
    virtual void refreshChoosers() {}

    // To be called at the end of a constructor.
    void wireForm(std::function<void()> write);
    void openNew(const QString& title);
    // False when no row is selected.
    bool openSelected(const QString& title);
    void writeForm();
    void closeForm();
    void clearForm();

private:
    void checkName();
};

// The name that goes with the news of a new record; never the null text, which stands for none.
template <class Record>
QString addedName(const Record& record)
{
    return record.name.isNull() ? QStringLiteral("") : record.name;
}

// After a number field was edited: emptied, or holding no number, it shows 0.
inline void fillNumber(NumberField& field)
{
    if (field.isEmpty() || field.value().isNaN())
        field.setValue(0);
}

template <class Record>
void FlatCatalogController<Record>::wireForm(std::function<void()> write)
{
    form().name.onUserChange = [this] { checkName(); };
    form().okButton.onUserChange = std::move(write);
    clearForm();
}

// Only here: a name that was never touched is not asked for, and OK stays as the last popover left it.
template <class Record>
void FlatCatalogController<Record>::checkName()
{
    const bool missing = form().name.text().isEmpty();
    form().okButton.setEnabled(!missing);
    form().warning.setText(missing ? localized("Field 'Name' is required!") : QString());
}

template <class Record>
void FlatCatalogController<Record>::openNew(const QString& title)
{
    refreshChoosers();
    focusedObject = std::make_shared<Record>();
    bindFields();
    form().title.setText(title);
    form().popover.open();
}

template <class Record>
bool FlatCatalogController<Record>::openSelected(const QString& title)
{
    const std::shared_ptr<Record> record = this->list().record(this->list().selectedRow());
    if (!record)
        return false;
    refreshChoosers();
    focusedObject = record;
    form().title.setText(title);
    bindFields();
    form().popover.open();
    return true;
}

template <class Record>
void FlatCatalogController<Record>::writeForm()
{
    if (!focusedObject)
        return;
    // The popover may have stood open while a document changed a balance: its fields go onto the record as
    // it is stored now.
    if (focusedObject->id != 0) {
        focusedObject = this->appDelegate.connector.template select<Record>(focusedObject->id);
        if (!focusedObject) { // what the popover showed may be out of date, so it is not stored
            this->markStale();
            closeForm();
            return;
        }
    }
    backBindFields();
    this->writeRecord(std::shared_ptr<Record>(focusedObject));
    closeForm();
}

template <class Record>
void FlatCatalogController<Record>::closeForm()
{
    clearForm();
    form().popover.close();
    focusedObject.reset();
}

template <class Record>
void FlatCatalogController<Record>::clearForm()
{
    form().title.setText({});
    form().warning.setText({});
    clearFields();
}

} // namespace zelvor
