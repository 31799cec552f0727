#pragma once

#include "catalogs/product.h"
#include "catalogs/tree_catalog_view.h"

namespace zelvor {

// The list of the product catalog. In a document form it also shows what the warehouse holds: the columns
// "amount" and "reserve", hidden until then, like "selected".
class ProductView : public TreeCatalogView<ProductModel> {
public:
    using Measurements = std::vector<std::shared_ptr<Measurement>>;

    explicit ProductView(TreeCatalogOwner<ProductModel>& owner);

    const Nodes& products() const { return topLevel(); }
    const Nodes& productGroups() const { return groups(); }
    // Every unit, by name.
    const Measurements& measurements() const;
    const Measurements& loadedMeasurements() const { return m_measurements; }
    void setMeasurements(Measurements measurements) { m_measurements = std::move(measurements); }
    bool canExportToExcel() const override { return true; }

protected:
    bool* checkBox(ProductModel& node, const QString& identifier) const override;
    bool groupShows(const QString& identifier) const override;

private:
    Measurements m_measurements;
};

} // namespace zelvor
