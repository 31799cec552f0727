#include "catalogs/property_select_view.h"

#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

PropertySelectView::PropertySelectView() : TableView(QString(), catalogTitleColor) {}

void PropertySelectView::setProperties(Records properties)
{
    m_properties = std::move(properties);
    selectRow(-1);
    reloadData();
}

std::vector<ViewColumn> PropertySelectView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name")},
        {.identifier = u"date"_s, .title = localized("Date"), .kind = CellKind::Date},
        {.identifier = u"currentCost"_s,
         .title = localized("Current Cost"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right},
    };
}

std::shared_ptr<Property> PropertySelectView::property(int row) const
{
    if (row < 0 || row >= numberOfRows())
        return nullptr;
    return m_properties[static_cast<std::size_t>(row)];
}

QVariant PropertySelectView::value(int row, const QString& identifier) const
{
    const std::shared_ptr<Property> shown = property(row);
    return shown ? shown->valueForIdentifier(identifier) : QVariant(QString());
}

void PropertySelectView::doubleAction(int row)
{
    const std::shared_ptr<Property> clicked = property(row);
    selectRow(row);
    if (clicked && addProperty)
        addProperty(clicked);
}

} // namespace zelvor
