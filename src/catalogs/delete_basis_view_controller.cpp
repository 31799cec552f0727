#include "catalogs/delete_basis_view_controller.h"

namespace zelvor {

DeleteBasisViewController::DeleteBasisViewController(AppDelegate& owner) : FlatCatalogController(owner)
{
    wireForm([this] { writeBasis(); });
}

void DeleteBasisViewController::addBasis()
{
    openNew(localized("Add New Basis For Delete"));
}

void DeleteBasisViewController::editBasis()
{
    openSelected(localized("Edit Basis For Delete"));
}

} // namespace zelvor
