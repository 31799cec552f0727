#include "catalogs/delete_basis_view.h"

#include "catalogs/delete_basis_view_controller.h"
#include "core/localized.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {

DeleteBasisView::DeleteBasisView(DeleteBasisViewController& owner)
    : CatalogListView<DeleteBasis>(owner, localized("Basis For Delete List")), m_controller(owner)
{}

std::vector<ViewColumn> DeleteBasisView::columns() const
{
    return {{.identifier = u"name"_s, .title = localized("Name"), .sortKey = u"name"_s}};
}

void DeleteBasisView::doubleAction(int row)
{
    selectRow(row);
    m_controller.editBasis();
}

DeleteBasisView::Less DeleteBasisView::orderOf(const QString& key) const
{
    if (key == "name"_L1)
        return [](const DeleteBasis& a, const DeleteBasis& b) { return textLess(a.name, b.name); };
    return {};
}

} // namespace zelvor
