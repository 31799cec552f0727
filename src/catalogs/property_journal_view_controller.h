#pragma once

#include "catalogs/property_journal_view.h"
#include "core/outlets.h"

namespace zelvor {

// The journal of fixed assets. Assets come and go by documents; here the held ones are edited in the list and
// stored together by "applyChanges".
class PropertyJournalViewController : public CatalogListController<Property> {
public:
    explicit PropertyJournalViewController(AppDelegate& owner);

    PropertyJournalView view{*this};
    Button applyButton{QStringLiteral("applyButton")};
    NumberField currentCost{QStringLiteral("currentCost")}; // of all listed assets, currency of the project

    void prepareProperties() { prepare(); }
    void calculateCurrentCost();
    // Stores all assets of the list, or none.
    void applyChanges();
    void updateProperties(const Notification& notification);

    // Only a stored asset that is still held can be written.
    bool writeRecord(const std::shared_ptr<Property>& property) override;
    QString refusal(const Property& property) const override;

protected:
    CatalogListView<Property>& list() override { return view; }
    Records readRecords() override;
    void recordsRead() override;
    void announceWritten(const Property&, bool isNew) override;
};

} // namespace zelvor
