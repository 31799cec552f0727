#include "desktop/sort_keeper.h"

#include "desktop/table_list.h"

#include <QtWidgets/QHeaderView>

namespace zelvor {

SortKeeper::SortKeeper(TableList* list) : QObject(list), m_list(list)
{
    const QHeaderView* const header = list->horizontalHeader();
    connect(header, &QHeaderView::sectionClicked, this, [this, header] {
        if (!header->isSortIndicatorShown())
            return; // a column that does not sort, and none before it
        m_section = header->sortIndicatorSection();
        m_order = header->sortIndicatorOrder();
    });
}

void SortKeeper::sortAgain()
{
    if (m_section < 0)
        return;
    m_list->tableModel()->sort(m_section, m_order);
    showMark();
}

void SortKeeper::showMark()
{
    if (m_section < 0)
        return;
    m_list->horizontalHeader()->setSortIndicator(m_section, m_order);
    m_list->horizontalHeader()->setSortIndicatorShown(true);
}

} // namespace zelvor
