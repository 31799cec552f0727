#pragma once

#include "core/localized.h"
#include "core/outlets.h"

#include <functional>
#include <utility>
#include <vector>

namespace zelvor {

// The one add button of a tree catalog: pressing it opens a context menu that asks what to add.
class AddMenuButton : public Button {
public:
    struct Entry {
        QString title;
        std::function<void()> action;
    };

    using Button::Button;

    QString menuTitle() const { return localized("Context"); }
    const std::vector<Entry>& entries() const { return m_entries; }
    void setEntries(std::vector<Entry> entries) { m_entries = std::move(entries); }
    // What choosing an entry does; false when the button is disabled or has no such entry.
    bool choose(std::size_t index)
    {
        if (!enabled() || index >= m_entries.size())
            return false;
        m_entries[index].action();
        return true;
    }

private:
    std::vector<Entry> m_entries;
};

} // namespace zelvor
