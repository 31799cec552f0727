#pragma once

#include "catalogs/catalog_list.h"
#include "catalogs/delete_basis.h"

namespace zelvor {

class DeleteBasisViewController;

// The list of reasons for writing an asset off.
class DeleteBasisView : public CatalogListView<DeleteBasis> {
public:
    explicit DeleteBasisView(DeleteBasisViewController& owner);

    const Records& basises() const { return records(); }
    std::vector<ViewColumn> columns() const override;
    void doubleAction(int row) override;

protected:
    Less orderOf(const QString& key) const override;

private:
    DeleteBasisViewController& m_controller;
};

} // namespace zelvor
