#pragma once

#include "catalogs/product_view.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

#include <memory>
#include <vector>

namespace zelvor {

// Finds the products of a tree by what is typed of their names. The names are folded and sorted once, so that
// a key costs one pass over them and no query. It follows the tree: what that holds back, and what is hidden,
// is not found.
class ProductFinder {
public:
    explicit ProductFinder(ProductView& products);

    // Those whose name holds every typed word, letters of either case the same: first the names that begin
    // with the typed text, then those where a word does, then the rest, each by name. Nothing typed finds
    // nothing.
    std::vector<std::shared_ptr<Product>> find(const QString& typed, std::size_t limit);

private:
    struct Entry {
        QString name; // folded
        std::shared_ptr<Product> product;
    };
    void collect(const ProductView::Nodes& nodes);
    void readWhenStale();

    ProductView& m_products;
    std::vector<Entry> m_entries; // by name
    std::shared_ptr<bool> m_stale = std::make_shared<bool>(true);
};

} // namespace zelvor
