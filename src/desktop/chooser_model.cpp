#include "desktop/chooser_model.h"

#include "core/localized.h"
#include "desktop/icons.h"
#include "desktop/tool_tip.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

void ChooserModel::setItems(const std::vector<PopUpButton::Item>& items)
{
    if (m_items == items)
        return;
    const auto sameBut = [](PopUpButton::Item a, const PopUpButton::Item& b) {
        a.enabled = b.enabled;
        return a == b;
    };
    if (std::ranges::equal(m_items, items, sameBut)) {
        m_items = items;
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
        return;
    }
    beginResetModel();
    m_items = items;
    endResetModel();
}

int ChooserModel::rowOfTag(qint64 wanted) const
{
    const auto place = std::ranges::find_if(
        m_items, [wanted](const PopUpButton::Item& item) { return !item.separator && item.tag == wanted; });
    return place == m_items.end() ? -1 : static_cast<int>(place - m_items.begin());
}

qint64 ChooserModel::tag(int row) const
{
    return row >= 0 && row < rowCount() ? m_items[static_cast<std::size_t>(row)].tag : 0;
}

int ChooserModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant ChooserModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const PopUpButton::Item& item = m_items[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return item.title;
    case Qt::DecorationRole:
        return item.image.isEmpty() ? QVariant() : QVariant(pictureIcon(item.image));
    case Qt::ToolTipRole:
        return plainToolTip(item.toolTip.isEmpty() ? item.title : item.toolTip);
    case Qt::AccessibleTextRole:
        return item.title.isEmpty() && !item.separator ? localized("None") : item.title;
    case Qt::AccessibleDescriptionRole: // by which combo boxes know their separators
        return item.separator ? QVariant(u"separator"_s) : QVariant();
    case Qt::UserRole:
        return item.tag;
    default:
        return {};
    }
}

Qt::ItemFlags ChooserModel::flags(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return Qt::NoItemFlags;
    const PopUpButton::Item& item = m_items[static_cast<std::size_t>(index.row())];
    if (item.separator)
        return Qt::ItemNeverHasChildren;
    const Qt::ItemFlags flags = Qt::ItemNeverHasChildren | Qt::ItemIsSelectable;
    return item.enabled ? flags | Qt::ItemIsEnabled : flags;
}

} // namespace zelvor
