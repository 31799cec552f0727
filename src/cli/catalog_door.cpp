#include "cli/catalog_door.h"

#include "core/currency_struct.h"
#include "store/user_write.h"

#include <algorithm>

namespace zelvor {

bool isGiven(const ColumnValues& values, std::string_view column)
{
    return std::ranges::any_of(values, [&](const ColumnValue& v) { return column == v.column->name; });
}

void CatalogRules<Product>::prepareNew(AppDelegate& appDelegate, Product& product)
{
    const std::shared_ptr<Params> params = appDelegate.params();
    if (!params)
        return;
    if (params->useGST)
        product.setGstRate(params->gstRate);
    if (params->useVAT)
        product.setVatRate(params->vatRate);
}

QString CatalogRules<Account>::refusal(AppDelegate& appDelegate, const Account& account,
                                       const ColumnValues& given)
{
    if (account.id == 0 || !isGiven(given, "currency_id"))
        return {};
    const auto stored = appDelegate.connector.select<Account>(account.id, Fill::Nothing);
    return stored && stored->currencyID == account.currencyID
               ? QString()
               : localized("The currency of a stored account stays as it is.");
}

QString CatalogRules<Contragent>::refusal(AppDelegate& appDelegate, const Contragent& contragent,
                                          const ColumnValues& given)
{
    if (!isGiven(given, "deferment"))
        return {};
    const std::shared_ptr<Params> params = appDelegate.params();
    const qint64 longest = params ? params->maxDeferment : Params().maxDeferment;
    return contragent.deferment >= 0 && contragent.deferment <= longest
               ? QString()
               : localized("The deferment must lie between 0 and %1 days.").arg(longest);
}

namespace {

class ParamsDoor final : public CatalogDoor {
public:
    explicit ParamsDoor(AppDelegate& appDelegate) : m_appDelegate(appDelegate) {}

    std::shared_ptr<TableModel> record(qint64 id) override
    {
        return id == 1 ? m_appDelegate.params() : nullptr;
    }

    // VAT and GST exclude each other; the number of the VAT goes with VAT.
    void settle(TableModel& record, const ColumnValues& given) override
    {
        auto& params = static_cast<Params&>(record);
        if (params.useVAT && params.useGST && !isGiven(given, "is_use_gst"))
            params.useGST = false;
        else if (params.useVAT && params.useGST && !isGiven(given, "is_use_vat"))
            params.useVAT = false;
        if (params.useGST && !isGiven(given, "is_use_vat_no"))
            params.useVATNo = false;
    }

    QString refusal(const TableModel& record, const ColumnValues&) override
    {
        const auto& params = static_cast<const Params&>(record);
        const std::shared_ptr<Params> stored = m_appDelegate.params();
        const bool isNewCurrency = stored && stored->defaultCurrency != params.defaultCurrency;
        if (isNewCurrency && stored->defaultCurrency != 0)
            return localized("The default currency of a project stays as it is.");
        if (isNewCurrency && !currencyFromInt(params.defaultCurrency))
            return localized("There is no such currency.");
        if (params.useVAT && params.useGST)
            return localized("VAT and GST cannot be used at once.");
        if (params.reportPeriod < 1 || params.reportPeriod > 3)
            return localized("The report period must be 1, 2 or 3.");
        if (params.maxDeferment < 0)
            return localized("The longest deferment must not be below 0.");
        if (params.vatRate < 0 || params.gstRate < 0)
            return localized("A tax rate must not be below 0.");
        return {};
    }

    bool write(const std::shared_ptr<TableModel>& record, const ColumnValues&) override
    {
        UserWrite write(m_appDelegate.connector);
        write.step(m_appDelegate.connector.update(static_cast<Params&>(*record)));
        return write.finish(
            [this] { m_appDelegate.notifications.post(NotificationName::DefaultsChangedNotification); });
    }

private:
    AppDelegate& m_appDelegate;
};

} // namespace

std::unique_ptr<CatalogDoor> openParamsDoor(AppDelegate& appDelegate)
{
    return std::make_unique<ParamsDoor>(appDelegate);
}

} // namespace zelvor
