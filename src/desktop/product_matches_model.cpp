#include "desktop/product_matches_model.h"

#include "desktop/cell_text.h"
#include "documents/product_document_view_controller.h"

#include <QtCore/QLocale>

namespace zelvor {

ProductMatchesModel::ProductMatchesModel(const ProductDocumentViewController& form, QObject* parent)
    : QAbstractTableModel(parent), m_form(form)
{}

void ProductMatchesModel::setProducts(std::vector<std::shared_ptr<Product>> products)
{
    beginResetModel();
    m_products = std::move(products);
    endResetModel();
}

int ProductMatchesModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_products.size());
}

int ProductMatchesModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columnsInAll;
}

QString ProductMatchesModel::text(const Product& product, int column) const
{
    if (column == Name)
        return product.name;
    if (column == Price)
        return screenAmount(m_form.rowPrice(product), QLocale());
    return product.isIntangible ? QString() : screenAmount(product.stockRow->innerAmount, QLocale());
}

QVariant ProductMatchesModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::DisplayRole)
        return text(*product(index.row()), index.column());
    if (role == Qt::TextAlignmentRole)
        return QVariant::fromValue((index.column() == Name ? Qt::AlignLeft : Qt::AlignRight) |
                                   Qt::AlignVCenter);
    return {};
}

} // namespace zelvor
