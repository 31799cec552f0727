#include "desktop/product_chooser_tree.h"

#include "catalogs/product_view_controller.h"
#include "desktop/measures.h"
#include "documents/product_document_view_controller.h"

#include <QtWidgets/QHeaderView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

namespace {

constexpr int readableName = 30; // letters that the name keeps when other columns come
constexpr int shortestName = 10; // letters that it keeps in the narrowest panel

// What is left of the stock where goods leave, else what is counted; and the price by which a row is made.
std::vector<QString> inFrontFor(const ProductDocumentViewController& form)
{
    const bool goodsLeave = form.stockFromEnabled();
    const DocType type = form.document->docType();
    const bool sells =
        type == DocType::SellProduct || type == DocType::SellIntangibles || type == DocType::Return;
    return {goodsLeave ? u"amount"_s : u"measurementName"_s, sells ? u"priceCost"_s : u"baseCost"_s};
}

} // namespace

ProductChooserTree::ProductChooserTree(ProductDocumentViewController& form, QWidget* parent)
    : TreeList(form.mainProductView().view, form.appDelegate.calendar, parent), m_inFront(inFrontFor(form))
{
    setIndentation(measures::groupGap);
    header()->setSectionResizeMode(QHeaderView::Fixed); // the panel's width says what there is room for
    setMinimumWidth(fontMetrics().averageCharWidth() * shortestName +
                    static_cast<int>(m_inFront.size()) * widthOf(-1) + 2 * frameWidth());
    connect(outlineModel(), &OutlineViewModel::reloaded, this, [this] { arrangeColumns(); });
    connect(this, &QTreeView::expanded, this, [this] { arrangeColumns(); });
}

// Those in front first, then the rest as the catalog has them.
std::vector<int> ProductChooserTree::columnsBehindName() const
{
    std::vector<int> places;
    for (const QString& identifier : m_inFront)
        places.push_back(outlineModel()->columnWithIdentifier(identifier));
    const std::vector<ViewColumn>& columns = outlineModel()->columns();
    for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
        const ViewColumn& column = columns[static_cast<std::size_t>(i)];
        if (!column.hidden && column.identifier != "name"_L1 && std::ranges::find(places, i) == places.end())
            places.push_back(i);
    }
    return places;
}

int ProductChooserTree::widthOf(int column) const
{
    const int number = fontMetrics().horizontalAdvance(u"0 000.00"_s) + 2 * measures::rowPadding;
    return column < 0 ? number
                      : std::max({number, header()->sectionSizeHint(column), sizeHintForColumn(column)});
}

void ProductChooserTree::arrangeColumns()
{
    QHeaderView& bar = *header();
    const int name = outlineModel()->columnWithIdentifier(u"name"_s);
    const int letter = fontMetrics().averageCharWidth();
    int left = viewport()->width();
    int place = bar.visualIndex(name) + 1;
    int shown = 0;
    for (const int column : columnsBehindName()) {
        const int width = widthOf(column);
        const bool fits =
            ++shown <= static_cast<int>(m_inFront.size()) || left - width >= letter * readableName;
        bar.setSectionHidden(column, !fits);
        if (!fits)
            continue;
        bar.moveSection(bar.visualIndex(column), place++);
        bar.resizeSection(column, width);
        left -= width;
    }
    bar.resizeSection(name, std::max(letter * shortestName, left));
}

void ProductChooserTree::showEvent(QShowEvent* event)
{
    TreeList::showEvent(event);
    arrangeColumns();
}

void ProductChooserTree::resizeEvent(QResizeEvent* event)
{
    TreeList::resizeEvent(event);
    arrangeColumns();
}

} // namespace zelvor
