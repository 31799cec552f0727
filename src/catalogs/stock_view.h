#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/stock.h"

namespace zelvor {

class StockViewController;

// The list of warehouses.
class StockView : public CatalogListView<Stock> {
public:
    explicit StockView(StockViewController& owner);

    const Records& stocks() const { return records(); }
    const std::vector<std::shared_ptr<Manager>>& managers() const;
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;

private:
    StockViewController& m_controller;
};

} // namespace zelvor
