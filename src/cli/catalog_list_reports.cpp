#include "catalogs/measurement_view_controller.h"
#include "catalogs/property_journal_view_controller.h"
#include "cli/report.h"

using namespace Qt::Literals::StringLiterals;

// The two lists of the catalogs that can be printed.

namespace zelvor {

namespace {

template <class Controller>
int run(AppDelegate& appDelegate, const Arguments&, const Report::Print& print)
{
    Controller controller(appDelegate);
    return print({controller.view, [](int) { return u"item"_s; }});
}

} // namespace

const Report fixedAssetsReport{"fixed-assets", "", {}, run<PropertyJournalViewController>};
const Report unitsReport{"units", "", {}, run<MeasurementViewController>};

} // namespace zelvor
