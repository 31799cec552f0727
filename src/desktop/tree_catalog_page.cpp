#include "desktop/tree_catalog_page.h"

#include "catalogs/add_menu_button.h"
#include "desktop/catalog_popover.h"
#include "desktop/tool_button.h"

#include <QtWidgets/QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

TreeCatalogPage::TreeCatalogPage(OutlineView& view, AddMenuButton& adding, const Calendar& calendar,
                                 const QString& emptyText, QWidget* parent)
    : TreePage(view, calendar, emptyText, parent),
      m_tools(this, tools(), [this] { perform(PageCommand::Edit); }),
      m_sortMark(list()->header(), list()->outlineModel()->columnWithIdentifier(u"name"_s),
                 [&view] { return view.child(nullptr, 0); })
{
    bindAddMenu(adding, m_tools.addButton());
    m_tools.setAddAction([&adding] { adding.choose(0); });
    m_tools.keepTabOrder(searchLine(), list());
    m_tools.setCanEdit(list()->currentNode() != nullptr);
    connect(list(), &TreeList::currentNodeChanged, this,
            [this] { m_tools.setCanEdit(list()->currentNode() != nullptr); });
    connect(list()->outlineModel(), &OutlineViewModel::reloaded, this, [this] { m_sortMark.listReset(); });
}

void TreeCatalogPage::serve(CatalogPopover* form, Popover& outlet, std::function<OutlineView::Node()> edited,
                            std::function<bool()> goesOn)
{
    form->setRowAnchor([this, edited] { return anchorOf(edited()); });
    const QPointer<TreeCatalogPage> self(this);
    outlet.onChange([self, &outlet, edited = std::move(edited), goesOn = std::move(goesOn)] {
        if (self && self->isVisible() && !outlet.isOpen() && !goesOn())
            self->show(edited());
    });
}

QRect TreeCatalogPage::anchorOf(const OutlineView::Node& node)
{
    if (!list()->outlineModel()->indexOf(node).isValid())
        return m_tools.addAnchor();
    list()->selectNode(node);
    list()->scrollTo(list()->currentIndex());
    return list()->globalRowRect(node);
}

// An edited leaf stays where it is, so nobody has told the list yet. A row that the search hides is shown.
void TreeCatalogPage::show(const OutlineView::Node& node)
{
    if (node)
        view().reloadData();
    if (node && !list()->outlineModel()->indexOf(node).isValid())
        searchLine()->clear();
    if (node) {
        list()->selectNode(node);
        list()->scrollTo(list()->currentIndex());
    }
    list()->setFocus(Qt::OtherFocusReason);
}

} // namespace zelvor
