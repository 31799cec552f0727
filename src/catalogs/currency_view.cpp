#include "catalogs/currency_view.h"

#include "catalogs/cell_number.h"
#include "catalogs/currency_view_controller.h"
#include "core/currency_struct.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

QString nameOf(const Currency& currency)
{
    const auto known = currencyFromInt(currency.code);
    return known ? currencyName(*known) : QString();
}

} // namespace

CurrencyView::CurrencyView(CurrencyViewController& owner)
    : CatalogListView<Currency>(owner, localized("Currencies Catalog")), m_controller(owner)
{}

std::vector<ViewColumn> CurrencyView::columns() const
{
    return {
        {.identifier = u"code"_s,
         .title = localized("Code"),
         .kind = CellKind::Integer,
         .alignment = CellAlignment::Right},
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"short"_s, .title = localized("Short")},
        {.identifier = u"image"_s,
         .title = localized("Flag"),
         .kind = CellKind::Image,
         .alignment = CellAlignment::Center},
        {.identifier = u"sign"_s, .title = localized("Sign"), .alignment = CellAlignment::Center},
        // Text: a rate has four digits, an amount two.
        {.identifier = u"rate"_s,
         .title = localized("Rate"),
         .alignment = CellAlignment::Right,
         .editable = true,
         .sortKey = u"rate"_s},
    };
}

QVariant CurrencyView::cell(const Currency& currency, const QString& identifier) const
{
    const auto known = currencyFromInt(currency.code);
    if (identifier == "name"_L1)
        return nameOf(currency);
    if (identifier == "short"_L1)
        return known ? currencyShort(*known) : QString();
    if (identifier == "image"_L1)
        return known ? currencyImage(*known) : QString();
    if (identifier == "sign"_L1)
        return known ? currencySign(*known) : QString();
    return currency.valueForIdentifier(identifier);
}

bool CurrencyView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Currency> currency = record(row);
    if (!currency || identifier != "rate"_L1)
        return false;
    const Decimal rate = cellNumber(value).rounded(Currency::decimalHandler);
    const bool taken = rate.isPositive(); // every sum in the currency is divided by it
    if (taken) {
        currency->innerRate = rate;
        m_controller.applyButton.setEnabled(true);
    }
    reloadData();
    return taken;
}

CurrencyView::Less CurrencyView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Currency& a, const Currency& b) { return textLess(nameOf(a), nameOf(b)); };
    if (key == "rate"_L1)
        return [](const Currency& a, const Currency& b) { return amountLess(a.innerRate, b.innerRate); };
    return {};
}

} // namespace zelvor
