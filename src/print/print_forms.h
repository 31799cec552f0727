#pragma once

#include "core/view.h"
#include "print/print_view.h"

namespace zelvor {

// The print form of a view, filled with its visible rows and the settings and ready for a print job; or none
// when the view has no form, or refuses to be printed, which an alert then told.
std::unique_ptr<PrintView> makePrintForm(const BaseView& view, AppDelegate& appDelegate);

} // namespace zelvor
