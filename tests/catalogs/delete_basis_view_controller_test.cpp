#include "catalogs/delete_basis_view_controller.h"

#include "catalogs/flat_catalog_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace zelvor {
namespace {

class DeleteBasisCatalog : public FlatCatalogFixture {
protected:
    DeleteBasisViewController controller{program.appDelegate};
};

TEST_F(DeleteBasisCatalog, listAndPopoverHaveTheirTitles)
{
    EXPECT_EQ(controller.view.name(), u"Basis For Delete List"_s);
    EXPECT_EQ(identifiers(controller.view), QStringList{u"name"_s});
    controller.addBasis();
    EXPECT_EQ(controller.basisPopoverTitle.text(), u"Add New Basis For Delete"_s);
    controller.cancelBasisPopover();
    storeNamed<DeleteBasis>(u"Stolen"_s);
    controller.view.doubleAction(0);
    EXPECT_EQ(controller.basisPopoverTitle.text(), u"Edit Basis For Delete"_s);
}

TEST_F(DeleteBasisCatalog, tellsNobodyOfAChange)
{
    controller.addBasis();
    type(controller.basisName, u"Broken"_s);
    controller.okButton.userChanged();
    EXPECT_EQ(stored<DeleteBasis>(1)->name, u"Broken"_s);
    EXPECT_TRUE(program.posted.names.empty());
}

} // namespace
} // namespace zelvor
