#include "catalogs/property_journal_view.h"

#include "catalogs/cell_number.h"
#include "catalogs/property_journal_view_controller.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

bool writeCell(Property& property, const QString& identifier, const QVariant& value)
{
    if (identifier == "isAmortized"_L1) {
        property.isAmortized = value.toBool();
        return true;
    }
    if (identifier == "description"_L1) {
        property.descriptionString = value.toString();
        return true;
    }
    if (identifier == "period"_L1) {
        bool isNumber = false;
        const qint64 periods = value.toLongLong(&isNumber);
        if (!isNumber || periods < 0) // below 0 an asset would gain value each month
            return false;
        property.amortizationPeriod = periods;
        return true;
    }
    if (identifier == "currentCost"_L1) {
        const Decimal cost = cellNumber(value).rounded(Property::decimalHandler);
        if (cost.isNaN())
            return false;
        property.innerCurrentCost = cost;
        return true;
    }
    return false;
}

} // namespace

PropertyJournalView::PropertyJournalView(PropertyJournalViewController& owner)
    : CatalogListView<Property>(owner, localized("Fixed Assets List")), m_controller(owner)
{}

Decimal PropertyJournalView::currentCost() const
{
    m_controller.refresh();
    return m_controller.currentCost.value();
}

std::vector<ViewColumn> PropertyJournalView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"date"_s, .title = localized("Date"), .kind = CellKind::Date, .sortKey = u"date"_s},
        {.identifier = u"cost"_s,
         .title = localized("Cost"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right,
         .sortKey = u"cost"_s},
        {.identifier = u"currentCost"_s,
         .title = localized("Current Cost"),
         .kind = CellKind::Amount,
         .alignment = CellAlignment::Right,
         .editable = true,
         .sortKey = u"currentCost"_s},
        {.identifier = u"isAmortized"_s,
         .title = localized("Amortized"),
         .kind = CellKind::CheckBox,
         .editable = true},
        {.identifier = u"period"_s,
         .title = localized("Period"),
         .kind = CellKind::Integer,
         .alignment = CellAlignment::Right,
         .editable = true},
        {.identifier = u"description"_s, .title = localized("Description"), .editable = true},
    };
}

QVariant PropertyJournalView::cell(const Property& property, const QString& identifier) const
{
    return identifier == "cost"_L1 ? QVariant(property.baseCost()) : property.valueForIdentifier(identifier);
}

bool PropertyJournalView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Property> property = record(row);
    if (!property || !writeCell(*property, identifier, value))
        return false;
    m_controller.applyButton.setEnabled(true);
    reloadData();
    m_controller.calculateCurrentCost();
    return true;
}

PropertyJournalView::Less PropertyJournalView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Property& a, const Property& b) { return textLess(a.name, b.name); };
    if (key == "date"_L1)
        return [](const Property& a, const Property& b) { return a.date < b.date; };
    if (key == "cost"_L1)
        return
            [](const Property& a, const Property& b) { return amountLess(a.innerBaseCost, b.innerBaseCost); };
    if (key == "currentCost"_L1)
        return [](const Property& a, const Property& b) {
            return amountLess(a.innerCurrentCost, b.innerCurrentCost);
        };
    return {};
}

} // namespace zelvor
