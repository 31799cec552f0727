#pragma once

#include "catalogs/selection_owner.h"
#include "core/localized.h"
#include "core/notification_center.h"

#include <cstddef>

namespace zelvor {

// What the filters of all reports have in common.

// The text beside a filter: "all", or how many were chosen.
inline QString filterText(std::size_t chosen, bool isEmpty)
{
    return isEmpty ? localized("all") : QString::number(chosen) + QLatin1Char(' ') + localized("selected");
}

// Opens the popover with the ticks of the filter; an empty one has everything ticked.
template <class SelectView>
void openAsFilter(SelectView& view, SelectionOwner& owner, bool everything)
{
    if (everything)
        view.selectAll();
    else
        view.backUpdateSelections();
    view.sender = &owner;
    view.selectPopover.open();
}

// A popover reads its records when it is opened next, or now while it is open.
template <class SelectView>
NotificationCenter::Observation staleWhen(NotificationCenter& center, NotificationName name, SelectView& view)
{
    return center.observe(name, [&view](const Notification&) { view.markStale(); });
}

} // namespace zelvor
