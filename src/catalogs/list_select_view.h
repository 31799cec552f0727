#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/selection_owner.h"
#include "core/localized.h"
#include "core/outlets.h"
#include "store/app_delegate.h"

#include <unordered_set>

namespace zelvor {

// A flat list of records with a tick in each row, in a popover that hands its owner the ids of what is
// ticked. It shows the records that are not hidden; they are read when somebody asks for them.
template <class Record>
class ListSelectView : public TableView {
public:
    using Records = std::vector<std::shared_ptr<Record>>;
    using IDs = std::vector<qint64>;

    Popover selectPopover{QStringLiteral("selectPopover")};
    Button okButton{QStringLiteral("okButton")};
    SelectionOwner* sender = nullptr; // the owner; stays when the popover closes

    const Records& records() const
    {
        if (m_stale)
            const_cast<ListSelectView*>(this)->load();
        return m_records;
    }
    // Reads the records now; what was ticked before is ticked again.
    void load();
    // Something changed in the file: read at the next question, or now while the popover is open.
    void markStale()
    {
        m_stale = true;
        if (selectPopover.isOpen())
            load();
    }

    // The list of ids by the ticks, and back.
    void updateSelections();
    void backUpdateSelections();
    // Ticks every record; the list stays.
    void selectAll();
    // The user ticks everything or nothing at once; either way the filter is empty.
    void tickAll(bool on);
    // OK: hands the list to an owner that takes it, and closes.
    void sendIDs();
    void cancelPopover() { selectPopover.close(); }

    std::vector<ViewColumn> columns() const override;
    int numberOfRows() const override { return static_cast<int>(records().size()); }
    QVariant value(int row, const QString& identifier) const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;

protected:
    explicit ListSelectView(AppDelegate& owner)
        : TableView(QString(), catalogTitleColor), m_appDelegate(owner)
    {
        okButton.onUserChange = [this] { sendIDs(); };
    }
    virtual IDs& selectedIDs() = 0;
    // False when the sender is no owner that takes the list.
    virtual bool handOver(const IDs& ids) = 0;

private:
    std::shared_ptr<Record> record(int row) const
    {
        const bool inside = row >= 0 && row < numberOfRows();
        return inside ? m_records[static_cast<std::size_t>(row)] : nullptr;
    }

    AppDelegate& m_appDelegate;
    Records m_records;
    bool m_stale = true;
};

template <class Record>
void ListSelectView<Record>::load()
{
    m_stale = false;
    m_records = m_appDelegate.connector.freeSQL<Record>("WHERE is_hidden=?", {Parameter(false)});
    std::ranges::stable_sort(m_records, NameLess{});
    selectRow(-1);
    if (!selectedIDs().empty())
        backUpdateSelections();
    reloadData();
}

template <class Record>
void ListSelectView<Record>::updateSelections()
{
    const Records& rows = records();
    selectedIDs().clear();
    for (const auto& row : rows) {
        if (row->selected)
            selectedIDs().push_back(row->id);
    }
}

template <class Record>
void ListSelectView<Record>::backUpdateSelections()
{
    const Records& rows = records();
    const std::unordered_set<qint64> ids(selectedIDs().begin(), selectedIDs().end());
    for (const auto& row : rows)
        row->selected = ids.contains(row->id);
}

template <class Record>
void ListSelectView<Record>::selectAll()
{
    for (const auto& row : records())
        row->selected = true;
}

template <class Record>
void ListSelectView<Record>::tickAll(bool on)
{
    for (const auto& row : records())
        row->selected = on;
    selectedIDs().clear();
    reloadData();
}

template <class Record>
void ListSelectView<Record>::sendIDs()
{
    if (!sender || !handOver(selectedIDs()))
        return;
    sender->setStringPredicates();
    selectPopover.close();
}

template <class Record>
std::vector<ViewColumn> ListSelectView<Record>::columns() const
{
    return {
        {.identifier = QStringLiteral("name"), .title = localized("Name")},
        {.identifier = QStringLiteral("selected"),
         .title = localized("Selected"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

template <class Record>
QVariant ListSelectView<Record>::value(int row, const QString& identifier) const
{
    const std::shared_ptr<Record> shown = record(row);
    if (shown && identifier == u"name")
        return shown->name;
    if (shown && identifier == u"selected")
        return shown->selected;
    return QString();
}

template <class Record>
bool ListSelectView<Record>::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Record> ticked = record(row);
    if (!ticked || identifier != u"selected")
        return false;
    ticked->selected = value.toBool();
    updateSelections();
    reloadData();
    return true;
}

} // namespace zelvor
