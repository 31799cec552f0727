#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/measurement.h"

namespace zelvor {

class MeasurementViewController;

// The list of units.
class MeasurementView : public CatalogListView<Measurement> {
public:
    explicit MeasurementView(MeasurementViewController& owner);

    const Records& measurements() const { return records(); }
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;
    QVariant cell(const Measurement& unit, const QString& identifier) const override;

private:
    MeasurementViewController& m_controller;
};

} // namespace zelvor
