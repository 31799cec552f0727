#pragma once

#include "catalogs/catalog_list.h"

namespace zelvor {

// Which of the two check boxes of a warehouse or an account was changed last.
enum class DefaultHiddenBox { Default, Hidden };

// The two boxes exclude each other on a record, the box changed last winning, and only one record is the
// default. Stores the record, new or not, and the other records that lose the default, in one transaction. On
// false nothing was stored and the record's boxes are as they were handed in.
template <class Record>
bool storeDefaultAndHidden(Connector& connector, Record& record, DefaultHiddenBox changed)
{
    const bool isNew = record.id == 0;
    const bool wasDefault = record.isDefault;
    const bool wasHidden = record.isHidden;
    if (changed == DefaultHiddenBox::Default && record.isDefault)
        record.isHidden = false;
    if (changed == DefaultHiddenBox::Hidden && record.isHidden)
        record.isDefault = false;

    UserWrite write(connector);
    const bool takesDefault = changed == DefaultHiddenBox::Default && record.isDefault;
    if (write.step(isNew ? connector.insert(record) : connector.update(record)) && takesDefault) {
        const auto others =
            connector.freeSQL<Record>("WHERE is_default=? AND id!=?", {true, record.id}, Fill::Nothing);
        for (const auto& other : others) {
            other->isDefault = false;
            if (!write.step(connector.update(*other)))
                break;
        }
    }
    if (write.finish())
        return true;
    record.isDefault = wasDefault;
    record.isHidden = wasHidden;
    if (isNew)
        record.id = 0;
    return false;
}

// The same for a record that may stand in the catalog's list: the list follows.
template <class Record>
bool writeDefaultAndHiddenOf(CatalogListController<Record>& controller, const CatalogListView<Record>& view,
                             const std::shared_ptr<Record>& record, DefaultHiddenBox changed)
{
    if (!storeDefaultAndHidden(controller.appDelegate.connector, *record, changed))
        return false;
    const auto& rows = view.loadedRecords();
    if (std::ranges::find(rows, record) == rows.end())
        controller.markStale();
    else if (changed == DefaultHiddenBox::Default && record->isDefault) {
        for (const auto& other : rows)
            other->isDefault = other == record;
    }
    return true;
}

// A click on the "default" or the "hidden" box in the list of a controller that offers writeDefaultAndHidden.
// False, and nothing changed, for another column and when the store failed.
template <class Record, class Controller>
bool clickDefaultOrHidden(Controller& controller, const std::shared_ptr<Record>& record,
                          const QString& identifier, bool on)
{
    const bool isDefaultBox = identifier == QLatin1StringView("default");
    if (!isDefaultBox && identifier != QLatin1StringView("hidden"))
        return false;
    const bool wasDefault = record->isDefault;
    const bool wasHidden = record->isHidden;
    (isDefaultBox ? record->isDefault : record->isHidden) = on;
    if (controller.writeDefaultAndHidden(record,
                                         isDefaultBox ? DefaultHiddenBox::Default : DefaultHiddenBox::Hidden))
        return true;
    record->isDefault = wasDefault;
    record->isHidden = wasHidden;
    return false;
}

// A click on the "hidden" box of a catalog without a default; `update` stores the record.
template <class Record, class Update>
bool clickHidden(Record& record, bool on, Update update)
{
    const bool before = record.isHidden;
    record.isHidden = on;
    if (update())
        return true;
    record.isHidden = before;
    return false;
}

} // namespace zelvor
