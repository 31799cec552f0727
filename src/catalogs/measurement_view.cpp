#include "catalogs/measurement_view.h"

#include "catalogs/default_and_hidden.h"
#include "catalogs/measurement_view_controller.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

MeasurementView::MeasurementView(MeasurementViewController& owner)
    : CatalogListView<Measurement>(owner, localized("Units Catalog")), m_controller(owner)
{}

std::vector<ViewColumn> MeasurementView::columns() const
{
    return {
        {.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s},
        {.identifier = u"shorthand"_s, .title = localized("Shorthand"), .sortKey = u"shorthand"_s},
        {.identifier = u"hidden"_s,
         .title = localized("Hidden"),
         .kind = CellKind::CheckBox,
         .editable = true},
    };
}

QVariant MeasurementView::cell(const Measurement& unit, const QString& identifier) const
{
    return identifier == "hidden"_L1 ? QVariant(unit.isHidden) : unit.valueForIdentifier(identifier);
}

bool MeasurementView::setValue(int row, const QString& identifier, const QVariant& value)
{
    const std::shared_ptr<Measurement> unit = record(row);
    if (!unit || identifier != "hidden"_L1)
        return false;
    const bool stored =
        clickHidden(*unit, value.toBool(), [&] { return m_controller.updateMeasurement(unit); });
    reloadData();
    return stored;
}

void MeasurementView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editMeasurement();
}

MeasurementView::Less MeasurementView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const Measurement& a, const Measurement& b) { return textLess(a.name, b.name); };
    if (key == "shorthand"_L1)
        return [](const Measurement& a, const Measurement& b) { return textLess(a.shorthand, b.shorthand); };
    return {};
}

} // namespace zelvor
