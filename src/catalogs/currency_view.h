#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/currency.h"

namespace zelvor {

class CurrencyViewController;

// The list of currencies; only the rate is edited.
class CurrencyView : public CatalogListView<Currency> {
public:
    explicit CurrencyView(CurrencyViewController& owner);

    const Records& currencies() const { return records(); }
    std::vector<ViewColumn> columns() const override;
    bool setValue(int row, const QString& identifier, const QVariant& value) override;

protected:
    Less orderOf(const QString& key) const override;
    QVariant cell(const Currency& currency, const QString& identifier) const override;

private:
    CurrencyViewController& m_controller;
};

} // namespace zelvor
