#include "desktop/list_catalog_page.h"

#include "desktop/catalog_popover.h"
#include "desktop/tool_button.h"

#include <QtWidgets/QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ListCatalogPage::ListCatalogPage(TableView& view, Catalog catalog, const Calendar& calendar,
                                 const QString& emptyText, QWidget* parent)
    : TablePage(view, calendar, emptyText, parent), m_catalog(std::move(catalog)),
      m_tools(this, tools(), [this] { perform(PageCommand::Edit); }),
      m_sortMark(list()->horizontalHeader(), list()->tableModel()->columnWithIdentifier(u"name"_s),
                 m_catalog.firstRecord)
{
    m_tools.addButton()->setObjectName(m_catalog.addButtonName);
    connect(m_tools.addButton(), &QToolButton::clicked, this, m_catalog.add);
    m_tools.setAddAction(m_catalog.add);
    m_tools.keepTabOrder(searchLine(), list());
    m_tools.setCanEdit(list()->currentRow() >= 0);
    connect(list(), &TableList::currentRowChanged, this, [this](int row) { m_tools.setCanEdit(row >= 0); });
    connect(list()->tableModel(), &TableViewModel::reloaded, this, [this] { m_sortMark.listReset(); });
}

void ListCatalogPage::serve(CatalogPopover* form, Popover& outlet)
{
    const QPointer<ListCatalogPage> self(this);
    form->setRowAnchor(
        [self] { return self && self->isVisible() ? self->anchorOf(self->m_catalog.editedRow()) : QRect(); });
    outlet.onChange([self, &outlet] {
        if (self && self->isVisible() && !outlet.isOpen())
            self->show(self->m_catalog.editedRow());
    });
}

QRect ListCatalogPage::anchorOf(int row)
{
    const int shown = list()->tableModel()->shownRow(row);
    if (shown < 0)
        return m_tools.addAnchor();
    list()->scrollTo(list()->tableModel()->index(shown, list()->currentIndex().column()));
    return list()->globalRowRect(row);
}

// A row that the search hides is shown.
void ListCatalogPage::show(int row)
{
    if (row >= 0 && list()->tableModel()->shownRow(row) < 0)
        searchLine()->clear();
    if (row >= 0) {
        list()->selectViewRow(row);
        list()->scrollTo(list()->currentIndex());
    }
    list()->setFocus(Qt::OtherFocusReason);
}

} // namespace zelvor
