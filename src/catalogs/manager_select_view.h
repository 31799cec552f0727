#pragma once

#include "catalogs/list_select_view.h"
#include "catalogs/manager.h"

namespace zelvor {

// The popover that filters by employees.
class ManagerSelectView : public ListSelectView<Manager> {
public:
    explicit ManagerSelectView(AppDelegate& owner) : ListSelectView(owner) {}

    IDs selectedManagers; // ids of the ticked records

    const Records& managers() const { return records(); }

protected:
    IDs& selectedIDs() override { return selectedManagers; }
    bool handOver(const IDs& ids) override;
};

} // namespace zelvor
