#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/property.h"

namespace zelvor {

class PropertyJournalViewController;

// The list of the fixed assets that are held, edited in place.
class PropertyJournalView : public CatalogListView<Property> {
public:
    explicit PropertyJournalView(PropertyJournalViewController& owner);

    const Records& properties() const { return records(); }
    // Of all listed assets, as the journal shows it.
    Decimal currentCost() const;
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    bool canExportToExcel() const override { return true; }

protected:
    Less orderOf(const QString& key) const override;
    QVariant cell(const Property& property, const QString& identifier) const override;

private:
    PropertyJournalViewController& m_controller;
};

} // namespace zelvor
