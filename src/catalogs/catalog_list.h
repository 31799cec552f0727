#pragma once

#include "catalogs/catalog_write.h"
#include "core/text_order.h"
#include "core/view.h"
#include "store/model_controller.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zelvor {

template <class Record>
class CatalogListController;

// The list of one catalog: a row a record, a cell what the record answers to the column's identifier. Every
// question about the rows reads them anew first when they are stale.
template <class Record>
class CatalogListView : public TableView {
public:
    using Records = std::vector<std::shared_ptr<Record>>;

    CatalogListView(CatalogListController<Record>& controller, const QString& viewName)
        : TableView(viewName, catalogTitleColor), m_controller(controller)
    {}

    const Records& records() const;
    // The record of a row, none outside the list.
    std::shared_ptr<Record> record(int row) const;
    int numberOfRows() const override { return static_cast<int>(records().size()); }
    QVariant value(int row, const QString& identifier) const override;
    void sort(const QString& key, bool ascending) override;

    // The rows as they were last read, stale or not.
    const Records& loadedRecords() const { return m_records; }
    // For the controller: the rows just read. The selection stays on its record, here as after sorting.
    void setRecords(Records records);

protected:
    using Less = std::function<bool(const Record& a, const Record& b)>;
    // The ascending order of a sort key; none for a key that does not sort.
    virtual Less orderOf(const QString& key) const = 0;
    virtual QVariant cell(const Record& record, const QString& identifier) const
    {
        return record.valueForIdentifier(identifier);
    }

private:
    CatalogListController<Record>& m_controller;
    Records m_records;
};

// Reads and writes the records of one catalog. The list starts stale and is read when somebody asks for it;
// after a change it is read at once only while its view is on the screen.
template <class Record>
class CatalogListController : public ModelController {
public:
    using ModelController::ModelController;
    using Records = typename CatalogListView<Record>::Records;

    // Stores a record, new or not, in one transaction and tells the other parts before the commit. False when
    // nothing was stored; a new record has id 0 then.
    virtual bool writeRecord(const std::shared_ptr<Record>& record);
    // The warning that keeps the record from being stored; empty when it may be.
    virtual QString refusal(const Record&) const { return {}; }

    // Reads the list when it is stale.
    virtual void refresh()
    {
        if (m_stale)
            prepare();
    }
    // Something changed in the file: the list is read at the next question, or now while it is on the screen.
    void markStale();
    bool isStale() const { return m_stale; }
    // Another project is coming: nothing of the one that was read stays, and nothing is read yet.
    virtual void forget()
    {
        list().setRecords({});
        m_stale = true;
    }

protected:
    virtual CatalogListView<Record>& list() = 0;
    // The rows in the order in which they are first shown.
    virtual Records readRecords() { return this->appDelegate.connector.template freeSQL<Record>(); }
    // After the rows were read, before the view is told.
    virtual void recordsRead() {}
    // Posts what a stored record means to others.
    virtual void announceWritten(const Record&, bool /*isNew*/) {}
    // The same for a check box of the list.
    virtual void announceUpdated(const Record&) {}

    // Reads the list now.
    void prepare();
    // Stores what a check box of the list changed; the list keeps its order.
    bool updateRecord(Record& record);
    void observe(NotificationName name, NotificationCenter::Handler handler)
    {
        m_observations.push_back(appDelegate.notifications.observe(name, std::move(handler)));
    }

private:
    bool m_stale = true;
    std::vector<NotificationCenter::Observation> m_observations;
};

// By name, as every catalog's list first stands.
template <class Record>
std::vector<std::shared_ptr<Record>> recordsByName(Connector& connector)
{
    auto records = connector.freeSQL<Record>();
    std::ranges::stable_sort(records, NameLess{});
    return records;
}

// Orders amounts for a list; a value that is no number stands before all others.
inline bool amountLess(const Decimal& a, const Decimal& b)
{
    if (a.isNaN() || b.isNaN())
        return a.isNaN() && !b.isNaN();
    return a < b;
}

template <class Record>
const typename CatalogListView<Record>::Records& CatalogListView<Record>::records() const
{
    m_controller.refresh();
    return m_records;
}

template <class Record>
std::shared_ptr<Record> CatalogListView<Record>::record(int row) const
{
    const Records& rows = records();
    if (row < 0 || static_cast<std::size_t>(row) >= rows.size())
        return nullptr;
    return rows[static_cast<std::size_t>(row)];
}

template <class Record>
QVariant CatalogListView<Record>::value(int row, const QString& identifier) const
{
    const std::shared_ptr<Record> shown = record(row);
    return shown ? cell(*shown, identifier) : QVariant(QString());
}

template <class Record>
void CatalogListView<Record>::sort(const QString& key, bool ascending)
{
    Records sorted = records();
    if (const Less less = orderOf(key)) {
        std::ranges::stable_sort(
            sorted, [&](const auto& a, const auto& b) { return ascending ? less(*a, *b) : less(*b, *a); });
    }
    setRecords(std::move(sorted));
    reloadData();
}

template <class Record>
void CatalogListView<Record>::setRecords(Records records)
{
    const int row = selectedRow();
    const bool hadRow = row >= 0 && static_cast<std::size_t>(row) < m_records.size();
    const qint64 selectedID = hadRow ? m_records[static_cast<std::size_t>(row)]->id : 0;
    m_records = std::move(records);
    const auto place =
        std::ranges::find_if(m_records, [&](const auto& r) { return hadRow && r->id == selectedID; });
    selectRow(place == m_records.end() ? -1 : static_cast<int>(place - m_records.begin()));
}

template <class Record>
bool CatalogListController<Record>::writeRecord(const std::shared_ptr<Record>& record)
{
    const bool stored = writeCatalogRecord<Record>(appDelegate, *record, [&](bool isNew) {
        markStale();
        announceWritten(*record, isNew);
    });
    if (!stored)
        markStale(); // what was shown may be what was taken back
    return stored;
}

template <class Record>
void CatalogListController<Record>::markStale()
{
    m_stale = true;
    if (list().isVisible())
        prepare();
}

template <class Record>
void CatalogListController<Record>::prepare()
{
    m_stale = false;
    list().setRecords(readRecords());
    recordsRead();
    list().reloadData();
}

template <class Record>
bool CatalogListController<Record>::updateRecord(Record& record)
{
    UserWrite write(appDelegate.connector);
    write.step(appDelegate.connector.update(record));
    return write.finish([&] { announceUpdated(record); });
}

} // namespace zelvor
