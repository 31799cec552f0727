#include "catalogs/manager_select_view.h"

namespace zelvor {

bool ManagerSelectView::handOver(const IDs& ids)
{
    auto* const receiver = dynamic_cast<SelectedManagersReceiver*>(sender);
    if (!receiver)
        return false;
    receiver->setSelectedManagers(ids);
    return true;
}

} // namespace zelvor
