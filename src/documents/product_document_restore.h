#pragma once

#include "documents/product_document.h"

namespace zelvor {

// A product document as it was before a write. After a rollback the record in memory is put back, ids of new
// rows and the drawn number included, so that the form can try again.
class ProductDocumentRestore {
public:
    explicit ProductDocumentRestore(const ProductDocument& document) : m_head(document)
    {
        m_rows.reserve(document.documentRows.size());
        for (const auto& row : document.documentRows)
            m_rows.push_back({row->id, row->docID, row->product});
    }

    void putBack(ProductDocument& document) const
    {
        document = m_head;
        for (std::size_t i = 0; i < m_rows.size(); ++i) {
            ProductDocumentRow& row = *document.documentRows[i];
            row.id = m_rows[i].id;
            row.docID = m_rows[i].docID;
            row.product = m_rows[i].product;
        }
    }

private:
    struct Row {
        qint64 id;
        qint64 docID;
        Link<Product> product;
    };
    ProductDocument m_head;
    std::vector<Row> m_rows;
};

} // namespace zelvor
