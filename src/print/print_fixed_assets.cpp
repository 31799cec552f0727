#include "print/print_fixed_assets.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintFixedAssets::PrintFixedAssets(AppDelegate& owner)
    : TableForm(owner, landscape, localized("Fixed Assets List"),
                {
                    {QString(), u"#"_s, 30, Integer},
                    {u"name"_s, localized("Name"), 200},
                    {u"date"_s, localized("Date"), 50, Date},
                    {u"cost"_s, localized("Cost"), 70, Amount},
                    {u"currentCost"_s, localized("Residual Value"), 70, Amount},
                    {u"isAmortized"_s, localized("Depreciating"), 70, CheckBox},
                    {u"period"_s, localized("Period"), 50, Integer},
                    {u"description"_s, localized("Description"), 210},
                })
{}

QString PrintFixedAssets::heading() const
{
    return localized("Fixed Assets Total: ") + numberText(total) + localized(" on date: ") + dateText(date);
}

} // namespace zelvor
