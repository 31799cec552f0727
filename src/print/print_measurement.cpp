#include "print/print_measurement.h"

#include "core/localized.h"

namespace zelvor {

using namespace Qt::Literals::StringLiterals;

using enum CellKind;

PrintMeasurement::PrintMeasurement(AppDelegate& owner)
    : TableForm(owner, portrait, localized("List of Units"),
                {
                    {QString(), u"#"_s, 30, Integer},
                    {u"name"_s, localized("Name"), 391},
                    {u"shorthand"_s, localized("Short"), 100},
                })
{}

} // namespace zelvor
