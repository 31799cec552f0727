#include "desktop/product_chooser_panel.h"

#include "catalogs/product_view_controller.h"
#include "core/localized.h"
#include "desktop/elided_label.h"
#include "desktop/measurement_popover.h"
#include "desktop/measures.h"
#include "desktop/product_chooser_tree.h"
#include "desktop/product_group_popover.h"
#include "desktop/product_popover.h"
#include "desktop/search_line.h"
#include "desktop/tool_button.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QPointer>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

ProductChooserPanel::ProductChooserPanel(ProductDocumentViewController& form, QWidget* parent)
    : QWidget(parent), m_form(form), m_tree(new ProductChooserTree(form)), m_search(new SearchLine(m_tree)),
      m_title(new ElidedLabel)
{
    m_tree->setObjectName(u"mainProductView"_s);
    m_tree->setAccessibleName(localized("Products that the document can take"));
    m_tree->setDragDropMode(QAbstractItemView::DragOnly);
    m_tree->setDefaultDropAction(Qt::CopyAction);
    m_tree->setFrameShape(QFrame::StyledPanel);
    m_tree->rowAction = [this](const OutlineView::Node& node) {
        return chooseNode(std::dynamic_pointer_cast<ProductModel>(node));
    };
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(measures::labelGap);
    rows->addWidget(makeTitle());
    rows->addWidget(m_search);
    rows->addWidget(m_tree, 1);
    makePopovers();
    connect(m_search, &QLineEdit::textChanged, m_tree, &TreeList::setFilter);
}

QWidget* ProductChooserPanel::makeTitle()
{
    Label& outlet = m_form.mainProductView().stockNameLabelForProducts;
    m_title->setObjectName(outlet.name());
    QFont bold = font();
    bold.setBold(true);
    m_title->setFont(bold);
    const QPointer<ElidedLabel> title(m_title);
    const auto show = [title, &outlet] {
        if (title) // where goods come in no warehouse is named
            title->setText(outlet.text().isEmpty() ? localized("All Products") : outlet.text());
    };
    outlet.onChange(show);
    show();
    auto* const line = new QWidget;
    auto* const layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(measures::rowGap);
    layout->addWidget(m_title, 1);
    m_add = new ToolButton(u"add"_s, localized("Add"), localized("Add to the catalog"), line);
    bindAddMenu(m_form.mainProductView().addProductButton, m_add);
    layout->addWidget(m_add);
    return line;
}

// The forms of what is added here; the units that they choose from are this document's own.
void ProductChooserPanel::makePopovers()
{
    ProductViewController& products = m_form.mainProductView();
    auto* const product = new ProductPopover(products, this);
    auto* const group = new ProductGroupPopover(products, this);
    new MeasurementPopover(*products.measurementController, this);
    for (CatalogPopover* const popover :
         {static_cast<CatalogPopover*>(product), static_cast<CatalogPopover*>(group)})
        popover->setRowAnchor([this] { return QRect(m_add->mapToGlobal(QPoint()), m_add->size()); });
}

bool ProductChooserPanel::chooseNode(const std::shared_ptr<ProductModel>& node)
{
    if (!node)
        return true;
    if (!node->isGroup()) {
        Q_EMIT productChosen(std::static_pointer_cast<Product>(node));
        return true;
    }
    const QModelIndex row = m_tree->currentIndex().siblingAtColumn(0);
    m_tree->setExpanded(row, !m_tree->isExpanded(row));
    return true;
}

void ProductChooserPanel::showEvent(QShowEvent* event)
{
    m_form.mainProductView().view.setVisible(true);
    QWidget::showEvent(event);
}

void ProductChooserPanel::hideEvent(QHideEvent* event)
{
    m_form.mainProductView().view.setVisible(false);
    QWidget::hideEvent(event);
}

} // namespace zelvor
