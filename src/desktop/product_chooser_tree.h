#pragma once

#include "desktop/tree_list.h"

namespace zelvor {

class ProductDocumentViewController;

// The tree of products beside a document. In front stand the columns that one sells and buys by, which never
// roll out of sight; the others follow as far as there is room.
class ProductChooserTree : public TreeList {
    Q_OBJECT

public:
    explicit ProductChooserTree(ProductDocumentViewController& form, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    std::vector<int> columnsBehindName() const;
    int widthOf(int column) const;
    void arrangeColumns();

    std::vector<QString> m_inFront; // behind the name
};

} // namespace zelvor
