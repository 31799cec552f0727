#pragma once

#include "catalogs/flat_catalog_controller.h"
#include "store/link.h"

namespace zelvor {

// A flat catalog whose records hold one record of another catalog (`ID` and `Held`), chosen in the popover;
// a new one can be added from there. The other catalog's list is as lazy as the own one.
template <class Record, class Linked, qint64 Record::*ID, Link<Linked> Record::*Held>
class LinkedCatalogController : public FlatCatalogController<Record> {
public:
    using FlatCatalogController<Record>::FlatCatalogController;
    using LinkedRecords = std::vector<std::shared_ptr<Linked>>;

    // Every record of the other catalog, by name.
    const LinkedRecords& linkedRecords()
    {
        refreshChoosers();
        return m_linked;
    }
    void refresh() override
    {
        FlatCatalogController<Record>::refresh();
        refreshChoosers();
    }
    void forget() override
    {
        FlatCatalogController<Record>::forget();
        m_linked.clear();
        m_linkedStale = true;
    }

protected:
    virtual PopUpButton& chooser() = 0;

    void recordsRead() override { prepareLinked(); }
    void refreshChoosers() override
    {
        if (m_linkedStale)
            prepareLinked();
    }
    // Reads the other catalog now, refills the chooser and renews the link of every row.
    void prepareLinked();
    // The record of that id, a fresh empty one when there is none.
    std::shared_ptr<Linked> linkedWithID(qint64 id);
    // The other catalog changed. A name in the notification is that of a record added from our popover when
    // `adding` is set: it is chosen, and the flag cleared.
    void linkedChanged(const Notification& notification, bool& adding);

private:
    LinkedRecords m_linked;
    bool m_linkedStale = true;
};

template <class Record, class Linked, qint64 Record::*ID, Link<Linked> Record::*Held>
void LinkedCatalogController<Record, Linked, ID, Held>::prepareLinked()
{
    m_linkedStale = false;
    m_linked = recordsByName<Linked>(this->appDelegate.connector);
    std::vector<PopUpButton::Item> items{{.title = QString(), .tag = 0}};
    for (const auto& linked : m_linked)
        items.push_back({.title = linked->name, .tag = linked->id});
    chooser().setItems(std::move(items));
    for (const auto& record : this->list().loadedRecords()) {
        if (record.get()->*ID != 0)
            record.get()->*Held = linkedWithID(record.get()->*ID);
    }
}

template <class Record, class Linked, qint64 Record::*ID, Link<Linked> Record::*Held>
std::shared_ptr<Linked> LinkedCatalogController<Record, Linked, ID, Held>::linkedWithID(qint64 id)
{
    refreshChoosers();
    const auto place = std::ranges::find_if(m_linked, [id](const auto& linked) { return linked->id == id; });
    return place == m_linked.end() ? std::make_shared<Linked>() : *place;
}

template <class Record, class Linked, qint64 Record::*ID, Link<Linked> Record::*Held>
void LinkedCatalogController<Record, Linked, ID, Held>::linkedChanged(const Notification& notification,
                                                                      bool& adding)
{
    m_linkedStale = true;
    const bool added = adding && !notification.text.isNull();
    const bool visible = this->list().isVisible();
    if (added || visible || this->form().popover.isOpen())
        refreshChoosers();
    if (added) {
        chooser().selectTitle(notification.text);
        adding = false;
    }
    if (visible)
        this->list().reloadData();
}

} // namespace zelvor
