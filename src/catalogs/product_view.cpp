#include "catalogs/product_view.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

namespace {

ViewColumn amountColumn(const QString& identifier, const QString& title, bool hidden = false)
{
    return {.identifier = identifier,
            .title = title,
            .kind = CellKind::Amount,
            .alignment = CellAlignment::Right,
            .hidden = hidden};
}

ViewColumn checkColumn(const QString& identifier, const QString& title, bool hidden = false)
{
    return {.identifier = identifier,
            .title = title,
            .kind = CellKind::CheckBox,
            .editable = !hidden,
            .hidden = hidden};
}

std::vector<ViewColumn> productColumns()
{
    return {
        checkColumn(u"selected"_s, localized("Selected"), true),
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        amountColumn(u"amount"_s, localized("Qty"), true),
        amountColumn(u"reserve"_s, localized("Reserve"), true),
        {.identifier = u"measurementName"_s, .title = localized("Unit")},
        {.identifier = u"packName"_s, .title = localized("Pack")},
        amountColumn(u"packAmount"_s, localized("Pack Amount")),
        amountColumn(u"baseCost"_s, localized("Base Cost")),
        amountColumn(u"priceCost"_s, localized("Price")),
        {.identifier = u"description"_s, .title = localized("Description")},
        checkColumn(u"intangible"_s, localized("Intangible")),
        checkColumn(u"hidden"_s, localized("Hidden")),
    };
}

} // namespace

ProductView::ProductView(TreeCatalogOwner<ProductModel>& owner)
    : TreeCatalogView(owner, localized("Products Catalog"), productColumns())
{}

const ProductView::Measurements& ProductView::measurements() const
{
    topLevel();
    return m_measurements;
}

bool* ProductView::checkBox(ProductModel& node, const QString& identifier) const
{
    if (identifier == u"hidden")
        return &node.isHidden;
    if (identifier == u"intangible" && !node.isGroup())
        return &static_cast<Product&>(node).isIntangible;
    return nullptr;
}

bool ProductView::groupShows(const QString& identifier) const
{
    return identifier == u"name" || identifier == u"description" || identifier == u"hidden";
}

} // namespace zelvor
