#pragma once

#include "core/view.h"
#include "store/model_controller.h"

#include <memory>

namespace zelvor {

// What stands under one tab: a view, and for a document or a report the controller that lives as long as
// the tab does. A permanent view (a catalog, the balance) has none.
struct TabPage {
    BaseView* view = nullptr;
    std::shared_ptr<ModelViewController> controller = {};
};

} // namespace zelvor
