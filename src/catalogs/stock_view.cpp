#include "catalogs/stock_view.h"

#include "catalogs/stock_view_controller.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

StockView::StockView(StockViewController& owner)
    : CatalogListView<Stock>(owner, localized("Warehouses List")), m_controller(owner)
{}

const std::vector<std::shared_ptr<Manager>>& StockView::managers() const
{
    return m_controller.linkedRecords();
}

std::vector<ViewColumn> StockView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"address"_s, .title = localized("Address"), .sortKey = u"address"_s},
        {.identifier = u"manager"_s, .title = localized("Manager")},
        {.identifier = u"default"_s,
         .title = localized("Default"),
         .kind = CellKind::CheckBox,
         .editable = true},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

bool StockView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Stock> stock = record(row);
    if (!stock)
        return false;
    const bool stored = clickDefaultOrHidden(m_controller, stock, identifier, value.toBool());
    reloadData();
    return stored;
}

void StockView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editStock();
}

StockView::Less StockView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Stock& a, const Stock& b) { return textLess(a.name, b.name); };
    if (key == "address"_L1)
        return [](const Stock& a, const Stock& b) { return textLess(a.address, b.address); };
    return {};
}

} // namespace zelvor
