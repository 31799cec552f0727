#pragma once

#include "catalogs/product.h"

#include <QtCore/QAbstractTableModel>

#include <memory>
#include <vector>

namespace zelvor {

class ProductDocumentViewController;

// The products that a typed name may mean, with what the warehouse holds and what a row of them costs.
class ProductMatchesModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Name, Stock, Price, columnsInAll };

    explicit ProductMatchesModel(const ProductDocumentViewController& form, QObject* parent = nullptr);

    void setProducts(std::vector<std::shared_ptr<Product>> products);
    const std::shared_ptr<Product>& product(int row) const
    {
        return m_products[static_cast<std::size_t>(row)];
    }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;

private:
    QString text(const Product& product, int column) const;

    const ProductDocumentViewController& m_form;
    std::vector<std::shared_ptr<Product>> m_products;
};

} // namespace zelvor
