#pragma once

#include "catalogs/currency_view.h"
#include "core/outlets.h"

namespace zelvor {

// The catalog of currencies. Rates are edited in the list and stored together by "applyChanges".
class CurrencyViewController : public CatalogListController<Currency> {
public:
    explicit CurrencyViewController(AppDelegate& owner);

    CurrencyView view{*this};
    Button applyButton{QStringLiteral("applyButton")};
    DatePicker lastUpdateDate{QStringLiteral("lastUpdateDate")}; // filled when the list is read

    // Stores all rates of the list, or none.
    void applyChanges();
    // Asks the rates service.
    void updateRates();
    void prepareCurrencies() { prepare(); }
    // Tells the other parts that currencies changed; no action of the catalog itself does.
    void updateCurrencies();
    void changeRates() { markStale(); }
    // Seconds since 1970 UTC; 0 in a project without settings.
    qint64 getLastUpdate() const;

    QString refusal(const Currency& currency) const override;

protected:
    CatalogListView<Currency>& list() override { return view; }
    void recordsRead() override;
};

} // namespace zelvor
