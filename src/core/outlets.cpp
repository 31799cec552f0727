#include "core/outlets.h"

#include <algorithm>
#include <limits>

namespace zelvor {

bool Outlet::userChanged()
{
    if (!m_enabled)
        return false;
    // A copy: the action may replace itself, as a form does that prepares itself anew.
    const std::function<void()> action = onUserChange;
    if (action)
        action();
    return true;
}

void Outlet::changed() const
{
    // By index and by copy: a listener may add another one.
    for (std::size_t i = 0; i < m_listeners.size(); ++i) {
        const std::function<void()> listener = m_listeners[i];
        listener();
    }
}

qint64 NumberField::integer() const
{
    if (m_value.isNaN())
        return 0;
    Int128 whole = m_value.coefficient();
    for (int digits = m_value.scale(); digits > 0 && whole != 0; --digits)
        whole /= 10;
    constexpr Int128 lowest = std::numeric_limits<qint64>::min();
    constexpr Int128 highest = std::numeric_limits<qint64>::max();
    return static_cast<qint64>(std::clamp(whole, lowest, highest));
}

void NumberField::setValue(const Decimal& value)
{
    if (!m_empty && m_value == value)
        return;
    m_value = value;
    m_empty = false;
    changed();
}

void NumberField::clear()
{
    if (m_empty)
        return;
    m_value = Decimal();
    m_empty = true;
    changed();
}

namespace {

using Items = std::vector<PopUpButton::Item>;

Items::const_iterator itemWithTag(const Items& items, qint64 tag)
{
    return std::ranges::find_if(
        items, [tag](const PopUpButton::Item& item) { return !item.separator && item.tag == tag; });
}

} // namespace

void PopUpButton::setItems(std::vector<Item> items)
{
    const qint64 tag = itemWithTag(items, m_selectedTag) == items.end() ? 0 : m_selectedTag;
    if (m_items == items && m_selectedTag == tag)
        return;
    m_items = std::move(items);
    m_selectedTag = tag;
    changed();
}

void PopUpButton::setItemEnabled(qint64 tag, bool enabled)
{
    bool differs = false;
    for (Item& item : m_items) {
        if (item.tag != tag || item.separator || item.enabled == enabled)
            continue;
        item.enabled = enabled;
        differs = true;
    }
    if (differs)
        changed();
}

void PopUpButton::enableAllItems()
{
    bool differs = false;
    for (Item& item : m_items) {
        differs = differs || !item.enabled;
        item.enabled = true;
    }
    if (differs)
        changed();
}

QString PopUpButton::selectedTitle() const
{
    const auto item = itemWithTag(m_items, m_selectedTag);
    return item == m_items.end() ? QString() : item->title;
}

bool PopUpButton::selectTag(qint64 tag)
{
    const bool found = itemWithTag(m_items, tag) != m_items.end();
    assign(m_selectedTag, found ? tag : qint64(0));
    return found;
}

bool PopUpButton::selectTitle(const QString& title)
{
    const auto item = std::ranges::find_if(m_items, [&title](const Item& candidate) {
        return !candidate.separator && candidate.title == title;
    });
    const bool found = item != m_items.end();
    assign(m_selectedTag, found ? item->tag : qint64(0));
    return found;
}

void Slider::setValue(qint64 value)
{
    assign(m_value, std::clamp(value, m_minimum, m_maximum));
}

void Slider::setMaximum(qint64 maximum)
{
    const qint64 newMaximum = std::max(maximum, m_minimum);
    if (m_maximum == newMaximum)
        return;
    m_maximum = newMaximum;
    m_value = std::min(m_value, m_maximum);
    changed();
}

} // namespace zelvor
